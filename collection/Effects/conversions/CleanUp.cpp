#include <collection/Effects/Conversions.h>
#include <effects/CleanUp.h>
#include <effects/Identity.h>
#include <Settings/SettingsAudio.h>

namespace Effect::Factory {

void addCleanUp(Conversions & table)
{
    table.add<AudioNoiseSuppress, Proc::SettingsAudioNoiseSuppress>(
        Id::NoiseSuppress,
        [](auto & settings, AudioNoiseSuppress const & effect) {
            // Truncated, not rounded, so 1 and 2 percent suppress nothing. Every percentage fits an int.
            settings.SetLevel(static_cast<int>(0.5 - 0.6 * effect.levelPercent));
        },
        Stage::audio, Proc::ImplNames::SPEEX);

    table.add<AudioMonoChannel, Proc::SettingsFilterResample>(
        Id::AudioMonoChannel, [](auto & settings, AudioMonoChannel const &) { settings.channelCount = 1; });
}

} // namespace Effect::Factory
