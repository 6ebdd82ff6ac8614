#pragma once

#include <effects/archive/Base.h>
#include <effects/ColorFilters.h>

namespace Effect {

EFFECT_VIDEO_FIELDS(ColorBrush, pType, angle, size, rough)
EFFECT_VIDEO_FIELDS(ColorFilter, preset)
EFFECT_VIDEO_FIELDS(ColorMixBurn)
EFFECT_VIDEO_FIELDS(ColorSelect, color, hueTolerance, noiseLevel, harshness, transparency)
EFFECT_VIDEO_FIELDS(ColorMixExchange, color)
EFFECT_VIDEO_FIELDS(Invert)

} // namespace Effect
