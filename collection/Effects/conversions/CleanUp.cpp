#include <collection/Effects/Conversions.h>

namespace Effect::Factory {

void fill(Proc::SettingsAudioNoiseSuppress & settings, AudioNoiseSuppress const & effect, AudioParams const &)
{
    // Truncated, not rounded: 1 and 2 per cent are no suppression at all. No percentage leaves the range.
    settings.SetLevel(static_cast<int>(0.5 - 0.6 * effect.levelPercent));
}

void fill(Proc::SettingsFilterResample & settings, AudioMonoChannel const &, AudioParams const &)
{
    settings.channelCount = 1;
}

} // namespace Effect::Factory
