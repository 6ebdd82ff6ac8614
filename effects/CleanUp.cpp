#include <effects/CleanUp.h>

#include <effects/Identity.h>

namespace Effect {

EFFECT_CONSTRUCTOR(
    AudioNoiseSuppress, AudioFilter, Id::NoiseSuppress, Group::GroupAudioNoiseReduction, Tags::tagNoizeSupress)
EFFECT_CONSTRUCTOR(AudioMonoChannel, AudioFilter, Id::AudioMonoChannel, Id::AudioMonoChannel, Tags::tagAudioMonoChannel)

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

EFFECT_DEFAULT_TAG(AudioNormalize, Tags::tagAudioNormalize)

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
