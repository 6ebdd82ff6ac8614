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
    /// The number of a level detector, 0 or 1. Others count as 0.
    enum class Detection : std::int32_t
    {
    };
    /// The number of a way to link the channels, 0 or 1. Others count as 0.
    enum class Link : std::int32_t
    {
    };

    Detection detection{0};                          ///< how the level is measured
    Link link{0};                                    ///< how the channels are linked
    Decibel gainIn = 0.0_dB;                         ///< level at the input
    Decibel threshold = Decibel::fromDbLevel(-18.1); ///< level at which the processor acts
    double ratio = 2.0;                              ///< of the change of level, passed on as it is
    std::int64_t attack = 20;                        ///< in milliseconds; the engine gets at least 0.01
    std::int64_t release = 250;                      ///< in milliseconds; the engine gets at least 0.01
    Decibel gainOut = 0.0_dB;                        ///< make-up gain
    double knee;                                     ///< width of the knee, as a ratio

    /// The description of a processor with these fields.
    static constexpr auto describe(char const * text)
    {
        return description(text, readsIntensity(), parameter("detection", &AudioDynamics::detection),
            parameter("link", &AudioDynamics::link), parameter("gainIn", &AudioDynamics::gainIn),
            parameter("threshold", &AudioDynamics::threshold), parameter("ratio", &AudioDynamics::ratio),
            parameter("attack", &AudioDynamics::attack), parameter("release", &AudioDynamics::release),
            parameter("gainOut", &AudioDynamics::gainOut), parameter("knee", &AudioDynamics::knee));
    }
};

/// Silences what is below the threshold.
struct EFFECTS_API AudioNoiseGate : AudioEffect, AudioDynamics
{
    EFFECT_FILTER_CLASS(AudioNoiseGate)

    /// The intensity seen from the other end, 1 being no gate at all. It hides the range of the base, which remains
    /// as `Object::range`.
    double range() const;
    void setRange(double value); ///< sets the intensity to 1 - value

    static constexpr auto describe() { return AudioDynamics::describe("Silences what is below the threshold."); }
};

/// Turns down what is above the threshold.
struct EFFECTS_API AudioCompressor : AudioEffect, AudioDynamics
{
    EFFECT_FILTER_CLASS(AudioCompressor)

    static constexpr auto describe() { return AudioDynamics::describe("Turns down what is above the threshold."); }
};

} // namespace Effect
