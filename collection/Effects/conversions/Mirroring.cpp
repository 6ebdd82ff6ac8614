#include <collection/Effects/Conversions.h>
#include <effects/Mirroring.h>
#include <effects/PrivateIdentity.h>
#include <Settings/SettingsTransform.h>

namespace Effect::Factory {

void addMirroring(Conversions & table)
{
    table.add<Flip, Proc::SettingsEffectTransform>(Id::Flip, [](auto & settings, Flip const & effect) {
        double const x = effect.horizontal ? -1 : 1;
        double const y = effect.vertical ? -1 : 1;
        settings.mode = Proc::SettingsEffectTransform::Mode::Place;
        settings.matrix = {x, 0, 0, 0, y, 0, 0, 0, 1};
    });

    table.add<Mirror, Proc::SettingsEffectMirror>(Id::Mirror, [](auto & settings, Mirror const & effect) {
        // Unknown numbers leave the axis at the engine's default.
        settings.horizontal = knownValue(effect.horizontal, 3, settings.horizontal);
        settings.vertical = knownValue(effect.vertical, 3, settings.vertical);
    });
}

} // namespace Effect::Factory
