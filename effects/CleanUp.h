/// @file
/// Cleaning a recording up: two filters, and descriptors of what the editor does outside the render engine.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Takes noise away. Its intensity has no effect.
struct EFFECTS_API AudioNoiseSuppress : AudioFilter
{
    EFFECT_CLASS(AudioNoiseSuppress)
    AudioNoiseSuppress();

    std::int32_t levelPercent = 50; ///< strength; not clamped

    static constexpr auto describe()
    {
        return description("Takes noise away.", parameter("levelPercent", &AudioNoiseSuppress::levelPercent));
    }
};

/// Mixes the channels down to one.
struct EFFECTS_API AudioMonoChannel : AudioFilter
{
    EFFECT_CLASS(AudioMonoChannel)
    AudioMonoChannel();

    static constexpr auto describe() { return description("Mixes the channels down to one."); }
};

/// Takes noise away with a trained model.
struct EFFECTS_API AudioAiDenoise : EffectDescriptor
{
    EFFECT_CLASS(AudioAiDenoise)
    AudioAiDenoise();

    QString aiModelPath{QLatin1String("")}; ///< of the model's file; not checked

    /// The model's path: another model gives another result.
    QString processingSettingsId() const override;

    static constexpr auto describe()
    {
        return description(
            "Takes noise away with a trained model.", parameter("aiModelPath", &AudioAiDenoise::aiModelPath));
    }
};

/// Brings the sound to a common loudness.
struct EFFECTS_API AudioNormalize : EffectDescriptor
{
    EFFECT_CLASS(AudioNormalize)
    AudioNormalize();

    QString defaultTag() const override;

    static constexpr auto describe() { return description("Brings the sound to a common loudness."); }
};

/// Cuts the background of a picture out with a trained model.
struct EFFECTS_API BackgroundRemove : EffectDescriptor
{
    EFFECT_CLASS(BackgroundRemove)
    BackgroundRemove();

    std::int32_t downscalingFrameSize = 256; ///< to which pictures are scaled down for the model, in pixels
    QString aiModelPath{QLatin1String("")};  ///< of the model's file; not checked

    /// The model's path and the frame size, joined by a colon.
    QString processingSettingsId() const override;

    static constexpr auto describe()
    {
        return description("Cuts the background of a picture out with a trained model.",
            parameter("downscalingFrameSize", &BackgroundRemove::downscalingFrameSize),
            parameter("aiModelPath", &BackgroundRemove::aiModelPath));
    }
};

} // namespace Effect
