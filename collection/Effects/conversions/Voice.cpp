#include <cmath>

#include <collection/Effects/Conversions.h>
#include <effects/PrivateIdentity.h>
#include <effects/Voice.h>
#include <Settings/SettingsAudio.h>

namespace Effect::Factory {

namespace {

using Bands = std::vector<Proc::SettingsAudioEqualizer::BandEq>;

/// Ten bands an octave apart, 32 to 16384 Hz, each with the gain of its exponent.
template <class Gain> Bands octaves(Gain gain)
{
    Bands bands;
    for (int exponent = 5; exponent <= 14; ++exponent)
        bands.push_back({1 << exponent, gain(exponent)});
    return bands;
}

/// A frequency as the nearest power of two. Where there is none, at 0 Hz and below, it lies below every band.
int nearestExponent(std::int32_t frequency)
{
    return saturatedInt(std::round(std::log2(frequency)));
}

/// The effect's `gainUp` between its bounds, 0 at the bounds and its `gainDown` taken away outside.
template <class Effect> Bands bandPass(Effect const & effect)
{
    int const low = nearestExponent(effect.lBound);
    int const high = nearestExponent(effect.rBound);
    return octaves([&](int exponent) -> double {
        if (exponent == low || exponent == high)
            return 0;
        if (low < exponent && exponent < high)
            return effect.gainUp;
        // Negated as an integer, which has no -0, and as 64 bits, which hold the negation of every int32.
        return static_cast<double>(-std::int64_t(effect.gainDown));
    });
}

/// The sum modulo 2^32.
std::int32_t wrappingSum(std::int32_t a, std::int32_t b)
{
    return static_cast<std::int32_t>(static_cast<std::uint32_t>(a) + static_cast<std::uint32_t>(b));
}

} // namespace

void addVoice(Conversions & table)
{
    table.add<AudioPhone, Proc::SettingsAudioEqualizer>(Id::AudioPhone, [](auto & settings, AudioPhone const & effect) {
        settings.SetMultiband(bandPass(effect));
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<AudioMuffle, Proc::SettingsAudioEqualizer>(
        Id::AudioMuffle, [](auto & settings, AudioMuffle const & effect) {
            double const peak = std::log2(effect.mean);
            double const width = 2 * (effect.dispersion * effect.dispersion);
            double const height = wrappingSum(effect.gainUp, effect.gainDown);
            settings.SetMultiband(octaves([&](int exponent) {
                double const distance = peak - exponent;
                return height * std::exp(-(distance * distance) / width) - effect.gainDown;
            }));
            settings.SetIntensity(floatIntensity(effect));
        });

    table.add<AudioRadio, Proc::SettingsAudioRadio>(Id::AudioRadio, [](auto & settings, AudioRadio const & effect) {
        Proc::SettingsAudioEqualizer equalizer;
        equalizer.SetMultiband(bandPass(effect));
        settings.SetEqSettings(equalizer);
        settings.SetCracklePrecision(effect.cracklePrecision);
        settings.SetNoiseLevel(effect.noiseLevel);
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<AudioEcho, Proc::SettingsAudioEcho>(Id::AudioEcho, [](auto & settings, AudioEcho const & effect) {
        std::vector<Proc::SettingsAudioEcho::Echo> echos;
        for (auto const & echo : effect.echos)
            echos.push_back({echo.delay, echo.decay});
        settings.SetGainInOut(effect.gainIn, effect.gainOut);
        settings.SetEchos(echos);
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<AudioPitch, Proc::SettingsAudioPitch>(Id::AudioPitch, [](auto & settings, AudioPitch const & effect) {
        settings.SetPitch(effect.pitch);
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<AudioRobot, Proc::SettingsAudioRobot>(Id::AudioRobot, [](auto & settings, AudioRobot const & effect) {
        settings.SetLevel(effect.level);
        Proc::SettingsAudioPitch pitch;
        pitch.SetPitch(effect.pitch);
        settings.SetPitchSettings(pitch);
        settings.SetIntensity(floatIntensity(effect));
    });
}

} // namespace Effect::Factory
