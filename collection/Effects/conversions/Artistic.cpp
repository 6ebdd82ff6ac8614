#include <collection/Effects/Conversions.h>

#include <tuple>

namespace Effect::Factory {

void fill(Proc::SettingsEffectOilPaint & settings, OilPaint const & effect, VideoParams const &)
{
    settings.radius = effect.radius;
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectPopArt & settings, PopArt const & effect, VideoParams const &)
{
    using Params = std::tuple<int, int, double, double, double, double>;
    static constexpr Params presets[] = {
        {2, 15, 0.7, 0.96, 0.1, 0.1875},
        {3, 15, 0.7, 0.49, 0.1, 0.2111},
        {4, 15, 0.7, 0.1, 0.1, 0.1843},
        {5, 15, 0.7, 0.17, 0.1, 0.1341},
    };

    settings.SetIntensity(floatIntensity(effect));
    if (auto const * const preset = knownRow(presets, effect.preset))
        std::apply([&](auto... params) { settings.SetParams(params...); }, *preset);
}

void fill(Proc::SettingsEffectPosterize & settings, Posterize const & effect, VideoParams const &)
{
    settings.SetColorsNumber(effect.colorsNumber);
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectFindEdges & settings, FindEdges const & effect, VideoParams const &)
{
    using Type = Proc::SettingsEffectFindEdges::Type;
    if (isKnown(effect.type, 2))
        settings.SetParams(static_cast<Type>(effect.type), effect.intensity, effect.sensibility);
}

void fill(Proc::SettingsEffectHalfTone & settings, HalfTone const & effect, VideoParams const &)
{
    auto const paper = channels(effect.bkgnd);
    auto const dots = channels(effect.dtclr);
    double const alphaOfDots = (effect.dtclr >> 24) / 255.0;
    settings.SetBackGroundRGB(paper.red, paper.green, paper.blue);
    settings.SetDotRGB(dots.red, dots.green, dots.blue);
    settings.SetParam(alphaOfDots, effect.intensity, effect.scale, effect.angle);
}

void fill(Proc::SettingsEffectMosaic & settings, Mosaic const & effect, VideoParams const &)
{
    copyKnown(effect.type, 2, settings.type);
    settings.SetAmount(effect.amountVer, effect.amountHor);
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectGlassMosaic & settings, GlassMosaic const & effect, VideoParams const &)
{
    settings.SetParams(effect.angle, effect.curve, effect.repeatsh, effect.repeatsv);
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectErosion & settings, Erosion const & effect, VideoParams const &)
{
    using Types = Proc::SettingsEffectErosion::Types;
    if (isKnown(effect.type, 2))
        settings.SetParams(effect.intensity, static_cast<Types>(effect.type));
}

void fill(Proc::SettingsEffectDiffuse & settings, Diffuse const & effect, VideoParams const &)
{
    settings.SetParams(effect.level, effect.prob);
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectStripes & settings, Stripes const & effect, VideoParams const &)
{
    settings.SetCount(effect.count);
    settings.SetDeep(effect.deep);
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectAddNoize & settings, AddNoize const & effect, VideoParams const &)
{
    copyKnown(effect.type, 2, settings.type);
    settings.SetLevel(effect.intensity);
}

} // namespace Effect::Factory
