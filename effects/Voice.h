/// @file
/// Effects that give a voice another character.
#pragma once

#include <cstdint>
#include <deque>

#include <effects/Base.h>

namespace Effect {

/// Describes a bound of a band pass. The conversion has ten bands, 32 to 16384 Hz, and rounds a bound to the nearest
/// octave: an octave beyond the bands, all of them lie on one side of it, and going further changes nothing.
template <class Bound> constexpr Bound bandPassBound(Bound const & bound)
{
    return bound.unit(Unit::hertz).range(16, 32768).beyond(Beyond::Clamped);
}

/// A voice on the phone: what lies between two frequencies is raised, the rest is lowered.
struct AudioPhone : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioPhone)

    std::int32_t gainUp = 10;   ///< gain between the bounds, in decibels
    std::int32_t gainDown = 50; ///< attenuation outside the bounds, in decibels
    std::int32_t lBound = 100;  ///< lower bound, in hertz
    std::int32_t rBound = 1500; ///< upper bound, in hertz

    static constexpr auto describe()
    {
        return description("Makes a voice sound as if it came over the telephone.", readsIntensity(),
            parameter("gainUp", &AudioPhone::gainUp)
                .label("Boost")
                .text("How much what is let through is raised; the stock uses 6 to 10 dB")
                .unit(Unit::decibels)
                .suggest(6, 10),
            parameter("gainDown", &AudioPhone::gainDown)
                .label("Attenuation")
                .text("How much the rest is lowered; the stock uses 50 to 60 dB")
                .unit(Unit::decibels)
                .suggest(50, 60),
            bandPassBound(parameter("lBound", &AudioPhone::lBound)
                              .label("Lower frequency")
                              .text("Higher removes more of the low sounds; the bands lie at 32 to 16384 Hz")),
            bandPassBound(parameter("rBound", &AudioPhone::rBound)
                              .label("Upper frequency")
                              .text("Higher keeps more of the high sounds; the bands lie at 32 to 16384 Hz")));
    }
};

/// A voice through a wall: the gain is a bell curve over the octaves.
struct AudioMuffle : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioMuffle)

    std::int32_t gainUp = 10;   ///< gain at the peak of the curve, in decibels
    std::int32_t gainDown = 50; ///< attenuation far from the peak, in decibels
    std::int32_t mean = 1000;   ///< frequency of the peak, in hertz
    double dispersion = 1.0;    ///< width of the curve, in octaves

    static constexpr auto describe()
    {
        return description("Makes a voice sound as if it came through a wall.", readsIntensity(),
            parameter("gainUp", &AudioMuffle::gainUp)
                .label("Boost")
                .text("How much what is let through is raised; the stock uses 4 to 10 dB")
                .unit(Unit::decibels)
                .suggest(4, 10),
            parameter("gainDown", &AudioMuffle::gainDown)
                .label("Attenuation")
                .text("How much the rest is lowered; the stock uses 40 to 60 dB")
                .unit(Unit::decibels)
                .suggest(40, 60),
            parameter("mean", &AudioMuffle::mean)
                .label("Frequency")
                .text("What is let through best; the stock uses 180 to 1000 Hz")
                .unit(Unit::hertz)
                .suggest(180, 1000),
            parameter("dispersion", &AudioMuffle::dispersion)
                .label("Width")
                .text("Higher also lets more distant frequencies through; the stock uses 0.8 to 1.2 octaves")
                .unit(Unit::octaves)
                .suggest(0.8, 1.2));
    }
};

/// A voice on the radio: bounded as on the phone, with crackle and noise.
struct AudioRadio : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioRadio)

    std::int32_t gainUp = 0;           ///< gain between the bounds, in decibels
    std::int32_t gainDown = 0;         ///< attenuation outside the bounds, in decibels
    std::int32_t lBound = 20;          ///< lower bound, in hertz
    std::int32_t rBound = 20000;       ///< upper bound, in hertz
    std::int32_t cracklePrecision = 8; ///< precision of the crackle, in the engine's unit
    double noiseLevel = 0.05;          ///< level of the noise, in the engine's unit

    static constexpr auto describe()
    {
        return description("Makes a voice sound as if it came from a receiver, with crackle and noise.",
            readsIntensity(),
            parameter("gainUp", &AudioRadio::gainUp)
                .label("Boost")
                .text("How much what is let through is raised; the stock uses 0 to 8 dB")
                .unit(Unit::decibels)
                .suggest(0, 8),
            parameter("gainDown", &AudioRadio::gainDown)
                .label("Attenuation")
                .text("How much the rest is lowered; the stock uses 0 to 60 dB")
                .unit(Unit::decibels)
                .suggest(0, 60),
            bandPassBound(parameter("lBound", &AudioRadio::lBound)
                              .label("Lower frequency")
                              .text("Higher removes more of the low sounds; the bands lie at 32 to 16384 Hz")),
            bandPassBound(parameter("rBound", &AudioRadio::rBound)
                              .label("Upper frequency")
                              .text("Higher keeps more of the high sounds; the bands lie at 32 to 16384 Hz")),
            parameter("crackleP", &AudioRadio::cracklePrecision)
                .label("Crackle precision")
                .text("How the crackle sounds; the stock uses 6 to 9")
                .unit(Unit::engine)
                .suggest(6, 9),
            parameter("noise", &AudioRadio::noiseLevel)
                .label("Noise level")
                .text("Higher adds more noise; the stock uses 0.05 to 0.15")
                .unit(Unit::engine)
                .suggest(0.05, 0.15));
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
        /// @param after  the delay
        /// @param share  the decay
        Echo(std::int32_t after, double share);

        std::int32_t delay = 0; ///< time until the repeat, in the engine's unit
        double decay = 0;       ///< level of the repeat as a factor; 1 is that of the voice

        static constexpr auto describe()
        {
            return description("One repeat of the voice.",
                parameter("delay", &Echo::delay)
                    .label("Delay")
                    .text("Higher lets the repeat come later; the stock uses 90 to 1500")
                    .unit(Unit::engine)
                    .suggest(90, 1500),
                parameter("decay", &Echo::decay)
                    .label("Level")
                    .text("Higher makes the repeat louder; 1 is as loud as the voice")
                    .suggest(0, 1));
        }
    };

    double gainIn = 1.0;    ///< level at the input as a factor; 1 changes nothing
    double gainOut = 1.0;   ///< level at the output as a factor; 1 changes nothing
    std::deque<Echo> echos; ///< the repeats, passed on in this order

    static constexpr auto describe()
    {
        return description("Repeats the voice, as a rock face does.", readsIntensity(),
            parameter("gainIn", &AudioEcho::gainIn)
                .label("Input level")
                .text("Higher makes the voice louder before it is repeated; 1 changes nothing")
                .suggest(0, 1),
            parameter("gainOut", &AudioEcho::gainOut)
                .label("Output level")
                .text("Higher makes the result louder; 1 changes nothing")
                .suggest(0, 1),
            parameter("echos", &AudioEcho::echos).label("Repeats").text("When the voice comes back, and how loud"));
    }
};

/// Moves the voice up or down.
struct AudioPitch : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioPitch)

    double pitch = 1.0; ///< factor on the frequencies

    static constexpr auto describe()
    {
        return description("Makes a voice higher or lower.", readsIntensity(),
            parameter("pitch", &AudioPitch::pitch)
                .label("Pitch")
                .text("Higher voice above 1, lower below; the stock uses 0.7 to 1.9")
                .suggest(0.7, 1.9));
    }
};

/// A robot's voice.
struct AudioRobot : AudioFilter
{
    EFFECT_FILTER_CLASS(AudioRobot)

    double level = 1.0; ///< level of the effect, in the engine's unit
    double pitch = 1.0; ///< factor on the frequencies

    static constexpr auto describe()
    {
        return description("Makes a voice sound like a machine.", readsIntensity(),
            parameter("level", &AudioRobot::level)
                .label("Level")
                .text("Higher sounds more like a machine; the stock uses 0.7 to 1")
                .unit(Unit::engine)
                .suggest(0.7, 1),
            parameter("pitch", &AudioRobot::pitch)
                .label("Pitch")
                .text("Higher voice above 1, lower below; the stock uses 0.75 to 1.1")
                .suggest(0.75, 1.1));
    }
};

} // namespace Effect
