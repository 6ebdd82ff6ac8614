#include <algorithm>

#include <collection/Effects/Conversions.h>
#include <effects/Dynamics.h>
#include <effects/Identity.h>
#include <Settings/SettingsAudio.h>

namespace Effect::Factory {

namespace {

float relativeLevel(Decibel level)
{
    return static_cast<float>(level.toRelativeLevel());
}

/// At least 0.01 ms, since the engine divides by it. The maximum is taken before the conversion to float.
float raisedTime(std::int64_t milliseconds)
{
    return static_cast<float>(std::max(static_cast<double>(milliseconds), 0.01));
}

template <class Settings> void setDetectionAndLink(Settings & settings, AudioDynamics const & effect)
{
    settings.detection = knownValue(effect.detection, 2);
    settings.link = knownValue(effect.link, 2);
}

} // namespace

void addDynamics(Conversions & table)
{
    table.add<AudioNoiseGate, Proc::SettingsAudioGate>(
        Id::NoiseGate, [](auto & settings, AudioNoiseGate const & effect) {
            settings.SetThreshold(relativeLevel(effect.threshold));
            setDetectionAndLink(settings, effect);
            settings.SetLevelIn(relativeLevel(effect.gainIn));
            settings.SetIntensity(floatIntensity(effect));
            settings.SetRatio(static_cast<float>(effect.ratio));
            settings.SetAttackMs(raisedTime(effect.attack));
            settings.SetReleaseMs(raisedTime(effect.release));
            settings.SetMakeup(relativeLevel(effect.gainOut));
            settings.SetKnee(static_cast<float>(effect.knee));
        });

    table.add<AudioCompressor, Proc::SettingsAudioCompressor>(Id::Compressor, [](auto & settings,
                                                                                  AudioCompressor const & effect) {
        settings.SetIntensity(floatIntensity(effect));
        setDetectionAndLink(settings, effect);
        settings.SetLevelIn(relativeLevel(effect.gainIn));
        settings.SetThreshold(effect.threshold.toRelativeLevel()); // the only level that the engine takes as a double
        settings.SetRatio(static_cast<float>(effect.ratio));
        settings.SetAttack(raisedTime(effect.attack));
        settings.SetRelease(raisedTime(effect.release));
        settings.SetMakeup(relativeLevel(effect.gainOut));
        settings.SetKnee(static_cast<float>(effect.knee));
    });
}

} // namespace Effect::Factory
