/// @file
/// Settings of the audio effects. Levels are relative, not in decibels, unless said otherwise.
#pragma once

#include <cstdint>
#include <vector>

#include <Settings/Members.h>

namespace Quoril::Proc {

/// A graphic equalizer.
class SETTINGS_EXPORT SettingsAudioEqualizer final : public Settings
{
    SETTINGS_CLASS(SettingsAudioEqualizer)

    /// One band.
    struct BandEq
    {
        std::int32_t centralFrequency = 0; ///< in hertz
        double gain = 0;                   ///< in decibels
    };

    SETTING(Multiband, std::vector<BandEq> const &)
    SETTING(Intensity, float)
};

/// A gate: silences what is below its threshold.
class SETTINGS_EXPORT SettingsAudioGate final : public Settings
{
    SETTINGS_CLASS(SettingsAudioGate)
    SETTING(Threshold, float)
    SETTINGS_FIELD(detection, std::int32_t) ///< the level detector, 0 or 1
    SETTINGS_FIELD(link, std::int32_t)      ///< how the channels are linked, 0 or 1
    SETTING(LevelIn, float)
    SETTING(Intensity, float)
    SETTING(Ratio, float)
    SETTING(AttackMs, float)  ///< in milliseconds
    SETTING(ReleaseMs, float) ///< in milliseconds
    SETTING(Makeup, float)
    SETTING(Knee, float)
};

/// A compressor: turns down what is above its threshold.
class SETTINGS_EXPORT SettingsAudioCompressor final : public Settings
{
    SETTINGS_CLASS(SettingsAudioCompressor)
    SETTING(Intensity, float)
    SETTINGS_FIELD(detection, std::int32_t) ///< the level detector, 0 or 1
    SETTINGS_FIELD(link, std::int32_t)      ///< how the channels are linked, 0 or 1
    SETTING(LevelIn, float)
    SETTING(Threshold, double)
    SETTING(Ratio, float)
    SETTING(Attack, float)  ///< in milliseconds
    SETTING(Release, float) ///< in milliseconds
    SETTING(Makeup, float)
    SETTING(Knee, float)
};

/// Adds a copy with a wandering delay.
class SETTINGS_EXPORT SettingsAudioFlanger final : public Settings
{
    SETTINGS_CLASS(SettingsAudioFlanger)
    SETTING(Intensity, float)
    SETTINGS_FIELD(shape, std::int32_t)         ///< of the wave, 0 or 1
    SETTINGS_FIELD(interpolation, std::int32_t) ///< between samples, 0 or 1
    SETTING(Delay, float)                       ///< in milliseconds
    SETTING(Depth, float)                       ///< in milliseconds
    SETTING(Regen, float)
    SETTING(Speed, float)
    SETTING(Phase, float)
};

/// Makes the pitch tremble.
class SETTINGS_EXPORT SettingsAudioVibrato final : public Settings
{
    SETTINGS_CLASS(SettingsAudioVibrato)
    SETTING(Intensity, float)
    SETTING(Frequency, float) ///< in hertz
};

/// Overdrives the sound.
class SETTINGS_EXPORT SettingsAudioDistortion final : public Settings
{
    SETTINGS_CLASS(SettingsAudioDistortion)
    SETTING(Intensity, float)
    SETTINGS_FIELD(type, std::int32_t) ///< 0 to 4
    SETTING(Tone, float)
    SETTING(Boost, float)
};

/// Reverberation by an impulse response that the engine computes.
class SETTINGS_EXPORT SettingsAudioReverberationImpulseResponse final : public Settings
{
    SETTINGS_CLASS(SettingsAudioReverberationImpulseResponse)
    SETTING(ReverberationTime, double) ///< in seconds
    SETTING(Delay, std::int64_t)       ///< in milliseconds
    SETTING(SlpfFrequency, int)        ///< where the low pass ends, in hertz
    SETTINGS_FIELD(modeA, std::int32_t)
    SETTINGS_FIELD(modeB, std::int32_t)
    SETTINGS_FIELD(modeC, std::int32_t)
    SETTING(DryGain, double)
    SETTING(WetGain, double)
};

/// Moves the pitch by a factor.
class SETTINGS_EXPORT SettingsAudioPitch final : public Settings
{
    SETTINGS_CLASS(SettingsAudioPitch)
    SETTING(Pitch, double)
    SETTING(Intensity, float)
};

/// A crackling, noisy radio.
class SETTINGS_EXPORT SettingsAudioRadio final : public Settings
{
    SETTINGS_CLASS(SettingsAudioRadio)
    SETTING(EqSettings, SettingsAudioEqualizer const &)
    SETTING(CracklePrecision, int)
    SETTING(NoiseLevel, double)
    SETTING(Intensity, float)
};

/// A robot's voice.
class SETTINGS_EXPORT SettingsAudioRobot final : public Settings
{
    SETTINGS_CLASS(SettingsAudioRobot)
    SETTING(Level, double)
    SETTING(PitchSettings, SettingsAudioPitch const &)
    SETTING(Intensity, float)
};

/// Repeats the sound.
class SETTINGS_EXPORT SettingsAudioEcho final : public Settings
{
    SETTINGS_CLASS(SettingsAudioEcho)

    /// One repeat.
    struct Echo
    {
        std::int32_t delay = 0; ///< in the engine's unit
        double decay = 0;       ///< the share of the level that is left
    };

    SETTING(GainInOut, double, double)
    SETTING(Echos, std::vector<Echo> const &)
    SETTING(Intensity, float)
};

/// Takes noise away.
class SETTINGS_EXPORT SettingsAudioNoiseSuppress final : public Settings
{
    SETTINGS_CLASS(SettingsAudioNoiseSuppress)
    SETTING(Level, int) ///< in decibels, negative
};

/// Converts the sample format.
class SETTINGS_EXPORT SettingsFilterResample final : public Settings
{
    SETTINGS_CLASS(SettingsFilterResample)
    SETTINGS_FIELD(channelCount, std::int32_t)
};

} // namespace Quoril::Proc
