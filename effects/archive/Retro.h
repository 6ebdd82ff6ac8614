#pragma once

#include <effects/archive/Base.h>
#include <effects/Retro.h>

namespace Effect {

EFFECT_VIDEO_FIELDS(RetroArtefacts, shake, vignetting, grain, scratches, rollerTrack)
EFFECT_VIDEO_FIELDS(RetroColors, type)
EFFECT_VIDEO_FIELDS(VHS, speed, shift, smoothness, relief)
EFFECT_VIDEO_FIELDS(Television70s, stripesWidth)
EFFECT_VIDEO_FIELDS(GlitchMpeg)
EFFECT_VIDEO_FIELDS(GlitchSecurityCam, randDistortion, constDistortion)
EFFECT_VIDEO_FIELDS(FilmStrip, type)

} // namespace Effect
