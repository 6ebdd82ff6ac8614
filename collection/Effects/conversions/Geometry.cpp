#include <collection/Effects/Conversions.h>

#include <ConfInt/Transform2D.h>

namespace Effect::Factory {

using Mode = Proc::SettingsEffectTransform::Mode;

void fill(Proc::SettingsEffectTransform & settings, Crop const & effect, VideoParams const &)
{
    settings.mode = Mode::Crop;
    settings.matrix = effect.transform.toMatrix3x3();
}

void fill(Proc::SettingsEffectTransform & settings, Transpose const & effect, VideoParams const &)
{
    // Multiplied first: 90 degrees are then the double nearest a right angle.
    double const radians = static_cast<double>(effect.angle) * 3.141592653589793 / 180.0;
    settings.mode = Mode::Rotate;
    settings.matrix = Quoril::Conf::Transform2D::MakeRotation(radians);
}

void fill(Proc::SettingsEffectFixVertVideo & settings, FixVertVideo const &, VideoParams const & params)
{
    settings.geometry = params.frameGeometry;
}

} // namespace Effect::Factory
