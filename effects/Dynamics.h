/// @file
/// Dynamics: a noise gate and a compressor.
#pragma once

#include <cstdint>

#include <EditorModel/Decibel.h>
#include <effects/Base.h>

namespace Effect {

/// The fields that both dynamics processors have. Each archives them as its own.
struct AudioDynamics
{
    /// The number of a level detector, 0 or 1. Other numbers count as 0.
    enum class Detection : std::int32_t
    {
    };
    /// The known values of `detection`.
    static constexpr Choice detectionChoices[] = {{0, "Detector0", "Detector 0"}, {1, "Detector1", "Detector 1"}};

    /// The number of a way to link the channels, 0 or 1. Other numbers count as 0.
    enum class Link : std::int32_t
    {
    };
    /// The known values of `link`.
    static constexpr Choice linkChoices[] = {{0, "Link0", "Link 0"}, {1, "Link1", "Link 1"}};

    Detection detection{0};                          ///< how the level is measured
    Link link{0};                                    ///< how the channels are linked
    Decibel gainIn = 0.0_dB;                         ///< gain at the input
    Decibel threshold = Decibel::fromDbLevel(-18.1); ///< level at which the processor acts
    double ratio = 2.0;                              ///< ratio of the change of level; passed on unchanged
    std::int64_t attack = 20;                        ///< attack time, in milliseconds; the engine gets at least 0.01
    std::int64_t release = 250;                      ///< release time, in milliseconds; the engine gets at least 0.01
    Decibel gainOut = 0.0_dB;                        ///< make-up gain at the output
    double knee;                                     ///< width of the knee, as a ratio; each class has its own default

    /// The description of a processor with these fields.
    /// @param threshold, ratio  these two parameters, which mean something else to each processor
    template <class Threshold, class Ratio>
    static constexpr auto describe(char const * text, Threshold const & threshold, Ratio const & ratio)
    {
        return description(text, readsIntensity(),
            parameter("detection", &AudioDynamics::detection)
                .label("Detection")
                .text("How the level of the sound is measured")
                .choices(detectionChoices)
                .fallback(0),
            parameter("link", &AudioDynamics::link)
                .label("Channel link")
                .text("How the channels act on each other")
                .choices(linkChoices)
                .fallback(0),
            parameter("gainIn", &AudioDynamics::gainIn)
                .label("Input gain")
                .text("Higher makes the sound louder before it is processed")
                .unit(Unit::decibels),
            threshold, ratio,
            parameter("attack", &AudioDynamics::attack)
                .label("Attack")
                .text(
                    "Higher reacts more slowly; 0 counts as 0.01 ms, gates and compressors of the stock use 1 to 30 ms")
                .unit(Unit::milliseconds)
                .atLeast(0)
                .beyond(Beyond::Clamped)
                .suggest(1, 30),
            parameter("release", &AudioDynamics::release)
                .label("Release")
                .text("Higher recovers more slowly; 0 counts as 0.01 ms, gates and compressors of the stock use 60 to "
                      "300 ms")
                .unit(Unit::milliseconds)
                .atLeast(0)
                .beyond(Beyond::Clamped)
                .suggest(60, 300),
            parameter("gainOut", &AudioDynamics::gainOut)
                .label("Output gain")
                .text("Higher makes the result louder; compressors of the stock go up to 9 dB")
                .unit(Unit::decibels)
                .suggest(0, 9),
            parameter("knee", &AudioDynamics::knee)
                .label("Knee")
                .text("Higher makes a smoother transition around the threshold; the stock uses 2.83"));
    }
};

/// Silences what is below the threshold.
struct EFFECTS_API AudioNoiseGate : AudioEffect, AudioDynamics
{
    EFFECT_FILTER_CLASS(AudioNoiseGate)

    /// The intensity counted from the other end: 1 is no gate at all. Hides the range of the base, which remains
    /// accessible as `Object::range`.
    double range() const;
    void setRange(double value); ///< sets the intensity to 1 - value

    static constexpr auto describe()
    {
        return AudioDynamics::describe("Silences the pauses by turning down what is quieter than the threshold.",
            parameter("threshold", &AudioDynamics::threshold)
                .label("Threshold")
                .text("Higher also silences louder sounds; the stock uses -54 to -18.1 dB")
                .unit(Unit::decibels)
                .suggest(-54, -18.1),
            parameter("ratio", &AudioDynamics::ratio)
                .label("Ratio")
                .text("Higher turns quiet sounds down further; the stock uses 2 to 6")
                .suggest(2, 6));
    }
};

/// Turns down what is above the threshold.
struct EFFECTS_API AudioCompressor : AudioEffect, AudioDynamics
{
    EFFECT_FILTER_CLASS(AudioCompressor)

    static constexpr auto describe()
    {
        return AudioDynamics::describe("Evens out the volume by turning down what is louder than the threshold.",
            parameter("threshold", &AudioDynamics::threshold)
                .label("Threshold")
                .text("Higher leaves more of the sound as it is; the stock uses -28 to -3 dB")
                .unit(Unit::decibels)
                .suggest(-28, -3),
            parameter("ratio", &AudioDynamics::ratio)
                .label("Ratio")
                .text("Higher turns loud sounds down further; the stock uses 1.8 to 20")
                .suggest(1.8, 20));
    }
};

} // namespace Effect
