#pragma once

#include <effects/archive/Base.h>
#include <effects/Distortion.h>

namespace Effect {

EFFECT_FIELDS(Twirl, VideoEffect, startRotate, speedRotate, startTwirl, speedTwirl)
EFFECT_FIELDS(Vertigo, VideoEffect, scale, speed)
EFFECT_FIELDS(FishEye, VideoEffect, deviation)
EFFECT_FIELDS(LensDistortion, VideoEffect, zoom, distortion, memberCount)
EFFECT_FIELDS(CameraShake, VideoEffect, shuft_x, shuft_y, rotate, frequency, persistence)
EFFECT_FIELDS(ChromaticAberration, VideoEffect)

} // namespace Effect
