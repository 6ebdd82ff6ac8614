#include <collection/Effects/Conversions.h>
#include <EditorSettings/Settings.h>
#include <effects/Blur.h>
#include <effects/PrivateIdentity.h>
#include <FileSystem/FileSystem.h>
#include <Settings/SettingsBlur.h>

namespace Effect::Factory {

namespace {

// By preset.
constexpr char const * bokehMasks[] = {
    "bang.png",
    "blossom.png",
    "bokeh.png",
    "butterfly.png",
    "clover.png",
    "diamonds.png",
    "heart.png",
    "ice.png",
    "star.png",
};

} // namespace

void addBlur(Conversions & table)
{
    table.add<Blur, Proc::SettingsEffectBlurGaussian>(
        Id::Blur, [](auto & settings, Blur const & effect) { settings.SetScale(effect.intensity / 20.0); });

    table.add<BokehBlur, Proc::SettingsEffectBokehBlur>(
        Id::BokehBlur, [](auto & settings, BokehBlur const & effect, auto const & context) {
            QLatin1String const mask(nearestRow(bokehMasks, effect.preset));
            settings.SetImage(
                context.caches.images.image(FS::joinPath({::Settings::stockBlurMasksPath(), mask}, QString())));
            settings.SetIntensity(floatIntensity(effect));
            settings.SetParams(0.045, 5.0, 0.575); // whatever the mask
        });

    table.add<MotionBlur, Proc::SettingsEffectMotionBlur>(
        Id::MotionBlur, [](auto & settings, MotionBlur const & effect) { settings.SetScale(effect.intensity); });

    table.add<TiltShift, Proc::SettingsEffectTiltShiftQEM>(
        Id::TiltShift, [](auto & settings, TiltShift const & effect) {
            settings.SetParams(effect.smns, effect.intensity);
            settings.SetUpperLine(effect.a1, effect.b1, effect.c1);
            settings.SetLowerLine(effect.a2, effect.b2, effect.c2);
        });

    table.add<Sharpen, Proc::SettingsEffectSharpen>(
        Id::Sharpen, [](auto & settings, Sharpen const & effect) { settings.SetLevel(effect.intensity); });
}

} // namespace Effect::Factory
