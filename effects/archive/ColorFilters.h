#pragma once

#include <effects/archive/Base.h>
#include <effects/ColorFilters.h>

namespace Effect {

EFFECT_FIELDS(ColorBrush, VideoEffect, pType, angle, size, rough)
EFFECT_FIELDS(ColorFilter, VideoEffect, preset)
EFFECT_FIELDS(ColorMixBurn, VideoEffect)
EFFECT_FIELDS(ColorSelect, VideoEffect, color, hueTolerance, noiseLevel, harshness, transparency)
EFFECT_FIELDS(ColorMixExchange, VideoEffect, color)
EFFECT_FIELDS(Invert, VideoEffect)

} // namespace Effect
