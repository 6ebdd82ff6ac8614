#include <collection/Effects/Conversions.h>
#include <collection/Effects/FactoryCaches.h>

#include <EditorSettings/Settings.h>
#include <FileSystem/FileSystem.h>

namespace Effect::Factory {

void fill(Proc::SettingsEffectBlurGaussian & settings, Blur const & effect, VideoParams const &)
{
    settings.SetScale(effect.intensity / 20.0);
}

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

void fill(Proc::SettingsEffectBokehBlur & settings, BokehBlur const & effect, VideoContext const & context)
{
    QLatin1String const mask(nearestRow(bokehMasks, effect.preset));
    settings.SetImage(context.caches.images.image(FS::joinPath({::Settings::stockBlurMasksPath(), mask}, QString())));
    settings.SetIntensity(floatIntensity(effect));
    settings.SetParams(0.045, 5.0, 0.575); // whatever the mask
}

void fill(Proc::SettingsEffectMotionBlur & settings, MotionBlur const & effect, VideoParams const &)
{
    settings.SetScale(effect.intensity);
}

void fill(Proc::SettingsEffectTiltShiftQEM & settings, TiltShift const & effect, VideoParams const &)
{
    settings.SetParams(effect.smns, effect.intensity);
    settings.SetUpperLine(effect.a1, effect.b1, effect.c1);
    settings.SetLowerLine(effect.a2, effect.b2, effect.c2);
}

void fill(Proc::SettingsEffectSharpen & settings, Sharpen const & effect, VideoParams const &)
{
    settings.SetLevel(effect.intensity);
}

} // namespace Effect::Factory
