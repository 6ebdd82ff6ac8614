#include <collection/Effects/Conversions.h>

namespace Effect::Factory {

void fill(Proc::SettingsAudioEqualizer & settings, AudioEqualizer const & effect, AudioParams const &)
{
    std::vector<Proc::SettingsAudioEqualizer::BandEq> bands;
    for (auto const & band : effect.multiband)
        bands.push_back({band.centralFrequency, band.gain});
    settings.SetMultiband(bands);
}

} // namespace Effect::Factory
