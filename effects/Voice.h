/// @file
/// Effects that give a voice another character.
#pragma once

#include <cstdint>
#include <deque>

#include <effects/Base.h>

namespace Effect {

/// A voice on the phone: what lies between two frequencies is raised, the rest lowered.
struct AudioPhone : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioPhone)

    std::int32_t gainUp = 10;   ///< between the bounds, in decibels
    std::int32_t gainDown = 50; ///< taken away outside of them, in decibels
    std::int32_t lBound = 100;  ///< lower bound, in hertz
    std::int32_t rBound = 1500; ///< upper bound, in hertz

    static constexpr auto describe()
    {
        return description("A voice on the phone: what lies between two frequencies is raised, the rest lowered.",
            readsIntensity(), parameter("gainUp", &AudioPhone::gainUp), parameter("gainDown", &AudioPhone::gainDown),
            parameter("lBound", &AudioPhone::lBound), parameter("rBound", &AudioPhone::rBound));
    }
};

/// A voice through a wall: a bell curve over the octaves.
struct AudioMuffle : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioMuffle)

    std::int32_t gainUp = 10;   ///< of the curve's peak, in decibels
    std::int32_t gainDown = 50; ///< taken away far from the peak, in decibels
    std::int32_t mean = 1000;   ///< frequency of the peak, in hertz
    double dispersion = 1.0;    ///< width of the curve, in octaves

    static constexpr auto describe()
    {
        return description("A voice through a wall: a bell curve over the octaves.", readsIntensity(),
            parameter("gainUp", &AudioMuffle::gainUp), parameter("gainDown", &AudioMuffle::gainDown),
            parameter("mean", &AudioMuffle::mean), parameter("dispersion", &AudioMuffle::dispersion));
    }
};

/// A voice on the radio: bounded as on the phone, with crackle and noise.
struct AudioRadio : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioRadio)

    std::int32_t gainUp = 0;     ///< between the bounds, in decibels
    std::int32_t gainDown = 0;   ///< taken away outside of them, in decibels
    std::int32_t lBound = 20;    ///< lower bound, in hertz
    std::int32_t rBound = 20000; ///< upper bound, in hertz
    std::int32_t cracklePrecision = 8;
    double noiseLevel = 0.05;

    static constexpr auto describe()
    {
        return description("A voice on the radio: bounded as on the phone, with crackle and noise.", readsIntensity(),
            parameter("gainUp", &AudioRadio::gainUp), parameter("gainDown", &AudioRadio::gainDown),
            parameter("lBound", &AudioRadio::lBound), parameter("rBound", &AudioRadio::rBound),
            parameter("crackleP", &AudioRadio::cracklePrecision), parameter("noise", &AudioRadio::noiseLevel));
    }
};

/// Repeats the voice.
struct AudioEcho : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioEcho)

    /// One repeat.
    struct Echo : Serialize::ISerializable
    {
        EFFECT_CLASS(AudioEcho::Echo)
        Echo();
        Echo(std::int32_t after, double share);

        std::int32_t delay = 0; ///< in the engine's unit
        double decay = 0;       ///< how much of the voice is left, 1 being all of it

        static constexpr auto describe()
        {
            return description(
                "One repeat.", readsIntensity(), parameter("delay", &Echo::delay), parameter("decay", &Echo::decay));
        }
    };

    double gainIn = 1.0;
    double gainOut = 1.0;
    std::deque<Echo> echos;

    static constexpr auto describe()
    {
        return description("Repeats the voice.", parameter("gainIn", &AudioEcho::gainIn),
            parameter("gainOut", &AudioEcho::gainOut), parameter("echos", &AudioEcho::echos));
    }
};

/// Moves the voice up or down.
struct AudioPitch : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioPitch)

    double pitch = 1.0; ///< factor on the frequencies

    static constexpr auto describe()
    {
        return description("Moves the voice up or down.", readsIntensity(), parameter("pitch", &AudioPitch::pitch));
    }
};

/// A robot's voice.
struct AudioRobot : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioRobot)

    double level = 1.0;
    double pitch = 1.0; ///< factor on the frequencies

    static constexpr auto describe()
    {
        return description("A robot's voice.", readsIntensity(), parameter("level", &AudioRobot::level),
            parameter("pitch", &AudioRobot::pitch));
    }
};

} // namespace Effect
