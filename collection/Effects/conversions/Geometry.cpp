#include <collection/Effects/Conversions.h>
#include <ConfInt/Transform2D.h>
#include <effects/Geometry.h>
#include <effects/Identity.h>
#include <Settings/SettingsTransform.h>

namespace Effect::Factory {

using Mode = Proc::SettingsEffectTransform::Mode;

void addGeometry(Conversions & table)
{
    table.add<Crop, Proc::SettingsEffectTransform>(Id::Crop, [](auto & settings, Crop const & effect) {
        settings.mode = Mode::Crop;
        settings.matrix = effect.transform.toMatrix3x3();
    });

    table.add<Transpose, Proc::SettingsEffectTransform>(Id::Transpose, [](auto & settings, Transpose const & effect) {
        // Multiplied first, so that 90 degrees become the double nearest to pi/2.
        double const radians = static_cast<double>(effect.angle) * 3.141592653589793 / 180.0;
        settings.mode = Mode::Rotate;
        settings.matrix = Quoril::Conf::Transform2D::MakeRotation(radians);
    });

    table.add<FixVertVideo, Proc::SettingsEffectFixVertVideo>(Id::FixVertVideo,
        [](auto & settings, FixVertVideo const &, auto const & params) { settings.geometry = params.frameGeometry; });
}

} // namespace Effect::Factory
