#include <collection/Effects/Conversions.h>

namespace Effect::Factory {

void fill(Proc::SettingsEffectTransform & settings, Flip const & effect, VideoParams const &)
{
    double const x = effect.horizontal ? -1 : 1;
    double const y = effect.vertical ? -1 : 1;
    settings.mode = Proc::SettingsEffectTransform::Mode::Place;
    settings.matrix = {x, 0, 0, 0, y, 0, 0, 0, 1};
}

void fill(Proc::SettingsEffectMirror & settings, Mirror const & effect, VideoParams const &)
{
    // A number that the engine does not know leaves the axis as it is.
    settings.horizontal = knownValue(effect.horizontal, 3, settings.horizontal);
    settings.vertical = knownValue(effect.vertical, 3, settings.vertical);
}

} // namespace Effect::Factory
