#pragma once

#include <effects/archive/Base.h>
#include <effects/CleanUp.h>

namespace Effect {

template <class Archive> void AudioNoiseSuppress::serialize(Archive & archive)
{
    fields<AudioFilter>(archive, *this, field("levelPercent", levelPercent));
}

template <class Archive> void AudioMonoChannel::serialize(Archive & archive)
{
    fields<AudioFilter>(archive, *this);
}

template <class Archive> void AudioAiDenoise::serialize(Archive & archive)
{
    fields<EffectDescriptor>(archive, *this, field("aiModelPath", aiModelPath));
}

template <class Archive> void AudioNormalize::serialize(Archive & archive)
{
    fields<EffectDescriptor>(archive, *this);
}

template <class Archive> void BackgroundRemove::serialize(Archive & archive)
{
    fields<EffectDescriptor>(
        archive, *this, field("downscalingFrameSize", downscalingFrameSize), field("aiModelPath", aiModelPath));
}

} // namespace Effect
