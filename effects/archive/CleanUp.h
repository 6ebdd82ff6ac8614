#pragma once

#include <effects/archive/Base.h>
#include <effects/CleanUp.h>

namespace Effect {

EFFECT_FIELDS(AudioNoiseSuppress, AudioFilter, levelPercent)
EFFECT_FIELDS(AudioMonoChannel, AudioFilter)
EFFECT_FIELDS(AudioAiDenoise, EffectDescriptor, aiModelPath)
EFFECT_FIELDS(AudioNormalize, EffectDescriptor)
EFFECT_FIELDS(BackgroundRemove, EffectDescriptor, downscalingFrameSize, aiModelPath)

} // namespace Effect
