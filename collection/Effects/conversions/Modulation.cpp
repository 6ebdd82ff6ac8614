#include <algorithm>

#include <collection/Effects/Conversions.h>
#include <effects/Identity.h>
#include <effects/Modulation.h>
#include <Settings/SettingsAudio.h>

namespace Effect::Factory {

void addModulation(Conversions & table)
{
    table.add<AudioDistortion, Proc::SettingsAudioDistortion>(
        Id::Distortion, [](auto & settings, AudioDistortion const & effect) {
            settings.SetIntensity(floatIntensity(effect));
            settings.type = knownValue(effect.type, 5);
            settings.SetTone(static_cast<float>(effect.tone));
            settings.SetBoost(static_cast<float>(effect.boost));
        });

    table.add<AudioReverb, Proc::SettingsAudioReverberationImpulseResponse>(
        Id::Reverb, [](auto & settings, AudioReverb const & effect, auto const & params) {
            settings.SetReverberationTime(static_cast<double>(effect.duration) / 1000.0); // milliseconds to seconds
            settings.SetDelay(effect.delay);
            settings.SetSlpfFrequency(std::min(effect.frequency, params.sampleRate / 2));
            settings.modeA = 2;
            settings.modeB = 1;
            settings.modeC = 1;
            // The balance only attenuates one side; in the middle both are at full level.
            double const balance = effect.dryWetBalance;
            settings.SetDryGain(balance > 0 ? 1 - balance : 1);
            settings.SetWetGain(balance < 0 ? 1 + balance : 1);
        });

    table.add<AudioFlanger, Proc::SettingsAudioFlanger>(Id::Flanger, [](auto & settings, AudioFlanger const & effect) {
        settings.SetIntensity(floatIntensity(effect));
        settings.shape = knownValue(effect.shape, 2, 1);
        settings.interpolation = knownValue(effect.interpolation, 2);
        settings.SetDelay(static_cast<float>(effect.delay));
        settings.SetDepth(static_cast<float>(effect.depth));
        settings.SetRegen(static_cast<float>(effect.regen));
        settings.SetSpeed(static_cast<float>(effect.speed));
        settings.SetPhase(static_cast<float>(effect.phase));
    });

    table.add<AudioVibrato, Proc::SettingsAudioVibrato>(Id::Vibrato, [](auto & settings, AudioVibrato const & effect) {
        settings.SetIntensity(floatIntensity(effect));
        settings.SetFrequency(static_cast<float>(effect.frequencyHz));
    });
}

} // namespace Effect::Factory
