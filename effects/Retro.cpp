#include <effects/Retro.h>

#include <effects/PrivateIdentity.h>

namespace Effect {

EFFECT_VIDEO_FILTER(RetroArtefacts)
EFFECT_VIDEO_FILTER(RetroColors)
EFFECT_VIDEO_FILTER(VHS)
EFFECT_VIDEO_FILTER(Television70s)
EFFECT_VIDEO_FILTER(GlitchMpeg)
EFFECT_VIDEO_FILTER(GlitchSecurityCam)

EFFECT_CONSTRUCTOR(FilmStrip, VideoEffect, Id::FilmStrip, Id::FilmStrip, Tags::tagFilmStrip)
EFFECT_DEFAULT_TAG(FilmStrip, Tags::tagFilmStrip)

} // namespace Effect
