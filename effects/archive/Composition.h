#pragma once

#include <effects/archive/Base.h>
#include <effects/Composition.h>

namespace Effect {

EFFECT_FIELDS(PictureInPicture, VideoEffect, transform)
EFFECT_FIELDS(SideBySide, VideoEffect, transformSrc, transformDst)
EFFECT_FIELDS(Opacity, VideoEffect, opacity)
EFFECT_FIELDS(ChromaKey, VideoEffect, color, hueTolerance, noiseLevel, harshness, transparency)

// The class between is no link in the archives.
EFFECT_FIELDS(Overlay, VideoEffect, mode)
EFFECT_FIELDS(ColorBlending, VideoEffect, mode)
EFFECT_FIELDS(AlphaInserter, VideoEffect)

} // namespace Effect
