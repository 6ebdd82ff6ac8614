/// @file
/// Modulation and space: distortion, reverberation, flanger and vibrato.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Overdrives the sound.
struct EFFECTS_API AudioDistortion : AudioEffect
{
    EFFECT_FILTER_CLASS(AudioDistortion)

    /// The number of a kind of distortion, 0 to 4. Other numbers count as 0.
    enum class Kind : std::int32_t
    {
    };
    /// The known values of `type`.
    EFFECTS_HIDDEN static constexpr Choice kindChoices[] = {{0, "Kind0", "Kind 0"}, {1, "Kind1", "Kind 1"},
        {2, "Kind2", "Kind 2"}, {3, "Kind3", "Kind 3"}, {4, "Kind4", "Kind 4"}};

    Kind type{0};       ///< kind of distortion; hides the member function of the base, which remains `Object::type()`
    double boost = 0.1; ///< how hard the sound is driven, in the engine's unit
    double tone = 0.5;  ///< how bright the result is, in the engine's unit

    static constexpr auto describe()
    {
        return description("Overdrives the sound until it becomes rough.", readsIntensity(),
            parameter("type", &AudioDistortion::type)
                .label("Kind")
                .text("How the sound is distorted")
                .choices(kindChoices)
                .fallback(0),
            parameter("boost", &AudioDistortion::boost)
                .label("Drive")
                .text("Higher drives the sound harder; the stock uses 0.1 to 0.45")
                .unit(Unit::engine)
                .suggest(0.1, 0.45),
            parameter("tone", &AudioDistortion::tone)
                .label("Tone")
                .text("Higher makes the result brighter; the stock uses 0.5 to 0.7")
                .unit(Unit::engine)
                .suggest(0.5, 0.7));
    }
};

/// Puts the sound into a room. The intensity is ignored.
struct EFFECTS_API AudioReverb : AudioFilter
{
    EFFECT_CLASS(AudioReverb)
    AudioReverb();

    std::int64_t delay = 10;     ///< time before the room answers, in milliseconds
    std::int64_t duration = 600; ///< time that the room's answer lasts, in milliseconds
    double dryWetBalance = 0.3;  ///< -1 only dry to 1 only wet, 0 both at full level; values beyond are passed on
    /// Where the low-pass filter ends, in hertz. The engine gets at most half the sample rate.
    std::int32_t frequency = 16000;

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("Makes the sound seem to come from a room.",
            parameter("delay", &AudioReverb::delay)
                .label("Delay")
                .text("Time before the room answers; the stock uses 3 to 45 ms")
                .unit(Unit::milliseconds)
                .suggest(3, 45),
            parameter("duration", &AudioReverb::duration)
                .label("Duration")
                .text("Higher makes the room larger and its answer longer; the stock uses 350 to 4500 ms")
                .unit(Unit::milliseconds)
                .suggest(350, 4500),
            parameter("dryWetBalance", &AudioReverb::dryWetBalance)
                .label("Balance")
                .text("-1 is only the sound, 1 is only the room, 0 is both at full level")
                .range(-1, 1)
                .beyond(Beyond::Passed),
            parameter("frequency", &AudioReverb::frequency)
                .label("Cutoff frequency")
                .text("Higher makes the room brighter, up to half the sample rate; the stock uses 6500 to 16000 Hz")
                .unit(Unit::hertz)
                .suggest(6500, 16000));
    }
};

/// Adds a copy with a wandering delay.
struct EFFECTS_API AudioFlanger : AudioEffect
{
    EFFECT_FILTER_CLASS(AudioFlanger)

    /// The number of the wave that moves the delay, 0 or 1. Other numbers count as 1.
    enum class Shape : std::int32_t
    {
    };
    /// The known values of `shape`.
    EFFECTS_HIDDEN static constexpr Choice shapeChoices[] = {{0, "Shape0", "Shape 0"}, {1, "Shape1", "Shape 1"}};

    /// The number of a way to interpolate between samples, 0 or 1. Other numbers count as 0.
    enum class Interpolation : std::int32_t
    {
    };
    /// The known values of `interpolation`.
    EFFECTS_HIDDEN static constexpr Choice interpolationChoices[] = {
        {0, "Interpolation0", "Interpolation 0"}, {1, "Interpolation1", "Interpolation 1"}};

    Shape shape{1};                 ///< wave that moves the delay
    Interpolation interpolation{0}; ///< how values between samples are found
    std::int64_t delay = 0;         ///< delay of the copy, in milliseconds
    std::int64_t depth = 2;         ///< how far the delay wanders, in milliseconds
    double regen = 0.0;             ///< how much of the output is fed back, in the engine's unit
    double speed = 0.5;             ///< speed of the wave, in the engine's unit
    double phase = 25.0;            ///< offset of the wave between the channels, in the engine's unit

    static constexpr auto describe()
    {
        return description("Adds a copy of the sound with a wandering delay, which gives a sweeping whoosh.",
            readsIntensity(),
            parameter("shape", &AudioFlanger::shape)
                .label("Wave shape")
                .text("How the delay wanders")
                .choices(shapeChoices)
                .fallback(1),
            parameter("interpolation", &AudioFlanger::interpolation)
                .label("Interpolation")
                .text("How values between the samples are found")
                .choices(interpolationChoices)
                .fallback(0),
            parameter("delay", &AudioFlanger::delay)
                .label("Delay")
                .text("Higher lets the copy come later; the stock uses 0 to 1 ms")
                .unit(Unit::milliseconds)
                .suggest(0, 1),
            parameter("depth", &AudioFlanger::depth)
                .label("Depth")
                .text("Higher lets the delay wander further; the stock uses 2 to 6 ms")
                .unit(Unit::milliseconds)
                .suggest(2, 6),
            parameter("regen", &AudioFlanger::regen)
                .label("Feedback")
                .text("Higher feeds more of the result back in; the stock goes up to 0.5")
                .unit(Unit::engine)
                .suggest(0, 0.5),
            parameter("speed", &AudioFlanger::speed)
                .label("Speed")
                .text("Higher lets the delay wander faster; the stock uses 0.2 to 0.5")
                .unit(Unit::engine)
                .suggest(0.2, 0.5),
            parameter("phase", &AudioFlanger::phase)
                .label("Phase")
                .text("Higher moves the channels further apart; the stock uses 25")
                .unit(Unit::engine));
    }
};

/// Makes the pitch tremble.
struct EFFECTS_API AudioVibrato : AudioEffect
{
    EFFECT_FILTER_CLASS(AudioVibrato)

    double frequencyHz = 15.0; ///< how often the pitch goes up and down, in hertz

    static constexpr auto describe()
    {
        return description("Makes the pitch tremble.", readsIntensity(),
            parameter("frequencyHz", &AudioVibrato::frequencyHz)
                .label("Frequency")
                .text("Higher trembles faster; the stock uses 5 to 15 Hz")
                .unit(Unit::hertz)
                .suggest(5, 15));
    }
};

} // namespace Effect
