#pragma once

#include <effects/archive/Base.h>
#include <effects/Retro.h>

namespace Effect {

EFFECT_FIELDS(RetroArtefacts, VideoEffect, shake, vignetting, grain, scratches, rollerTrack)
EFFECT_FIELDS(RetroColors, VideoEffect, type)
EFFECT_FIELDS(VHS, VideoEffect, speed, shift, smoothness, relief)
EFFECT_FIELDS(Television70s, VideoEffect, stripesWidth)
EFFECT_FIELDS(GlitchMpeg, VideoEffect)
EFFECT_FIELDS(GlitchSecurityCam, VideoEffect, randDistortion, constDistortion)
EFFECT_FIELDS(FilmStrip, VideoEffect, type)

} // namespace Effect
