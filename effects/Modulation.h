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

    /// The number of a kind of distortion, 0 to 4. Others count as 0.
    enum class Kind : std::int32_t
    {
    };

    Kind type{0};       ///< hides the operation of the base, which remains as `Object::type()`
    double boost = 0.1; ///< how hard the sound is driven; passed on as it is
    double tone = 0.5;  ///< how bright the result is; passed on as it is

    static constexpr auto describe()
    {
        return description("Overdrives the sound.", readsIntensity(), parameter("type", &AudioDistortion::type),
            parameter("boost", &AudioDistortion::boost), parameter("tone", &AudioDistortion::tone));
    }
};

/// Puts the sound into a room.
struct EFFECTS_API AudioReverb : AudioFilter
{
    EFFECT_CLASS(AudioReverb)
    AudioReverb();

    std::int64_t delay = 10;     ///< before the room answers, in milliseconds
    std::int64_t duration = 600; ///< of the room's answer, in milliseconds
    double dryWetBalance = 0.3;  ///< -1 all dry to 1 all wet, 0 both at full level; not clamped
    std::int32_t frequency =
        16000; ///< where the low pass ends, in hertz; at most half the sample rate reaches the engine

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("Puts the sound into a room.", readsIntensity(), parameter("delay", &AudioReverb::delay),
            parameter("duration", &AudioReverb::duration), parameter("dryWetBalance", &AudioReverb::dryWetBalance),
            parameter("frequency", &AudioReverb::frequency));
    }
};

/// Adds a copy with a wandering delay.
struct EFFECTS_API AudioFlanger : AudioEffect
{
    EFFECT_FILTER_CLASS(AudioFlanger)

    /// The number of the wave that moves the delay, 0 or 1. Others count as 1.
    enum class Shape : std::int32_t
    {
    };
    /// The number of a way to interpolate between samples, 0 or 1. Others count as 0.
    enum class Interpolation : std::int32_t
    {
    };

    Shape shape{1};                 ///< of the wave
    Interpolation interpolation{0}; ///< between samples
    std::int64_t delay = 0;         ///< in milliseconds
    std::int64_t depth = 2;         ///< how far the delay wanders, in milliseconds
    double regen = 0.0;             ///< how much of the output is fed back
    double speed = 0.5;             ///< of the wave
    double phase = 25.0;            ///< between the channels

    static constexpr auto describe()
    {
        return description("Adds a copy with a wandering delay.", parameter("shape", &AudioFlanger::shape),
            parameter("interpolation", &AudioFlanger::interpolation), parameter("delay", &AudioFlanger::delay),
            parameter("depth", &AudioFlanger::depth), parameter("regen", &AudioFlanger::regen),
            parameter("speed", &AudioFlanger::speed), parameter("phase", &AudioFlanger::phase));
    }
};

/// Makes the pitch tremble.
struct EFFECTS_API AudioVibrato : AudioEffect
{
    EFFECT_FILTER_CLASS(AudioVibrato)

    double frequencyHz = 15.0; ///< of the trembling, in hertz

    static constexpr auto describe()
    {
        return description(
            "Makes the pitch tremble.", readsIntensity(), parameter("frequencyHz", &AudioVibrato::frequencyHz));
    }
};

} // namespace Effect
