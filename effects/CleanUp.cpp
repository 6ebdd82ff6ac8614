#include <effects/CleanUp.h>

#include <effects/Identity.h>

namespace Effect {

AudioNoiseSuppress::AudioNoiseSuppress()
    : AudioFilter(Id::NoiseSuppress, Group::GroupAudioNoiseReduction)
{
    tag = Tags::tagNoizeSupress;
}

AudioAiDenoise::AudioAiDenoise()
    : EffectDescriptor(Id::AiDenoise, Group::GroupAudioNoiseReduction, Type::Audio)
{
    tag = Tags::tagAiDenoise;
    range.emplace();
}

QString AudioAiDenoise::processingSettingsId() const
{
    return aiModelPath;
}

AudioNormalize::AudioNormalize()
    : EffectDescriptor(Id::Normalize, Id::Normalize, Type::Audio)
{
    tag = Tags::tagAudioNormalize;
}

QString AudioNormalize::defaultTag() const
{
    return Tags::tagAudioNormalize;
}

BackgroundRemove::BackgroundRemove()
    : EffectDescriptor(Id::BackgroundRemove, Id::BackgroundRemove, Type::Video)
{
    tag = Tags::tagBackgroundRemove;
    range.emplace();
}

QString BackgroundRemove::processingSettingsId() const
{
    // Put together, not formatted: a path may hold a per cent sign and a number.
    return aiModelPath + QLatin1Char(':') + QString::number(downscalingFrameSize);
}

} // namespace Effect
