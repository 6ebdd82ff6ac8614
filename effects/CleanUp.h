/// @file
/// Effects that clean a recording up: two filters, and descriptors of what the editor does outside the render engine.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Removes noise. The intensity is ignored.
struct EFFECTS_API AudioNoiseSuppress : AudioFilter
{
    EFFECT_CLASS(AudioNoiseSuppress)
    AudioNoiseSuppress();

    std::int32_t levelPercent = 50; ///< strength, in percent; not clamped

    static constexpr auto describe()
    {
        return description("Removes noise from the sound.", parameter("levelPercent", &AudioNoiseSuppress::levelPercent)
                                                                .label("Strength")
                                                                .text("Higher removes more noise, from 3 % on")
                                                                .unit(Unit::percent)
                                                                .suggest(0, 100));
    }
};

/// Mixes the channels down to one. The intensity is ignored.
struct EFFECTS_API AudioMonoChannel : AudioFilter
{
    EFFECT_CLASS(AudioMonoChannel)
    AudioMonoChannel();

    static constexpr auto describe() { return description("Mixes all channels down to one."); }
};

/// Removes noise with a trained model.
struct EFFECTS_API AudioAiDenoise : EffectDescriptor
{
    EFFECT_CLASS(AudioAiDenoise)
    AudioAiDenoise();

    QString aiModelPath{QLatin1String("")}; ///< path of the model's file; not checked

    /// The model's path: another model gives another result.
    QString processingSettingsId() const override;

    static constexpr auto describe()
    {
        return description("Removes noise from the sound with a trained model.",
            parameter("aiModelPath", &AudioAiDenoise::aiModelPath).label("Model").text("File of the trained model"));
    }
};

/// Brings the sound to a common loudness.
struct EFFECTS_API AudioNormalize : EffectDescriptor
{
    EFFECT_CLASS(AudioNormalize)
    AudioNormalize();

    QString defaultTag() const override;

    static constexpr auto describe() { return description("Brings quiet and loud recordings to the same loudness."); }
};

/// Cuts the background out of a picture with a trained model.
struct EFFECTS_API BackgroundRemove : EffectDescriptor
{
    EFFECT_CLASS(BackgroundRemove)
    BackgroundRemove();

    std::int32_t downscalingFrameSize = 256; ///< size to which pictures are scaled down for the model, in pixels
    QString aiModelPath{QLatin1String("")};  ///< path of the model's file; not checked

    /// The model's path and the frame size, joined by a colon.
    QString processingSettingsId() const override;

    static constexpr auto describe()
    {
        return description("Cuts the background out of the picture with a trained model.",
            parameter("downscalingFrameSize", &BackgroundRemove::downscalingFrameSize)
                .label("Analysis size")
                .text("Higher finds finer outlines and takes longer; the stock uses 256 and 512 px")
                .unit(Unit::pixels)
                .suggest(256, 512),
            parameter("aiModelPath", &BackgroundRemove::aiModelPath).label("Model").text("File of the trained model"));
    }
};

} // namespace Effect
