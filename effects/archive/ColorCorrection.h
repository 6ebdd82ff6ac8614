#pragma once

#include <effects/archive/Base.h>
#include <effects/ColorCorrection.h>

namespace Effect {

EFFECT_FIELDS(AutoContrast, VideoEffect)
EFFECT_FIELDS(AutoSaturation, VideoEffect)
EFFECT_FIELDS(WhiteBalance, VideoEffect, color)
EFFECT_FIELDS(MagicEnhance, VideoEffect)
EFFECT_FIELDS(
    ManualEnhance, VideoEffect, gamma, highlights, shadows, brightness, contrast, saturation, hue, temperature, tint)

} // namespace Effect
