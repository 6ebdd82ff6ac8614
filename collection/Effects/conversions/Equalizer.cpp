#include <collection/Effects/Conversions.h>
#include <effects/Equalizer.h>
#include <effects/Identity.h>
#include <Settings/SettingsAudio.h>

namespace Effect::Factory {

void addEqualizer(Conversions & table)
{
    table.add<AudioEqualizer, Proc::SettingsAudioEqualizer>(
        Id::AudioEqualizer, [](auto & settings, AudioEqualizer const & effect) {
            std::vector<Proc::SettingsAudioEqualizer::BandEq> bands;
            for (auto const & band : effect.multiband)
                bands.push_back({band.centralFrequency, band.gain});
            settings.SetMultiband(bands);
        });
}

} // namespace Effect::Factory
