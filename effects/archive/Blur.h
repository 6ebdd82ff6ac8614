#pragma once

#include <effects/archive/Base.h>
#include <effects/Blur.h>

namespace Effect {

EFFECT_FIELDS(Blur, VideoEffect)
EFFECT_FIELDS(BokehBlur, VideoEffect, preset)
EFFECT_FIELDS(MotionBlur, VideoEffect)
EFFECT_FIELDS(TiltShift, VideoEffect, a1, b1, c1, a2, b2, c2, smns)
EFFECT_FIELDS(Sharpen, VideoEffect)

} // namespace Effect
