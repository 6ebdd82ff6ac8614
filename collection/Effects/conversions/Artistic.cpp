#include <tuple>

#include <collection/Effects/Conversions.h>
#include <effects/Artistic.h>
#include <effects/PrivateIdentity.h>
#include <Settings/SettingsArtistic.h>

namespace Effect::Factory {

void addArtistic(Conversions & table)
{
    table.add<OilPaint, Proc::SettingsEffectOilPaint>(Id::OilPaint, [](auto & settings, OilPaint const & effect) {
        settings.radius = effect.radius;
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<PopArt, Proc::SettingsEffectPopArt>(Id::PopArt, [](auto & settings, PopArt const & effect) {
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
    });

    table.add<Posterize, Proc::SettingsEffectPosterize>(Id::Posterize, [](auto & settings, Posterize const & effect) {
        settings.SetColorsNumber(effect.colorsNumber);
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<FindEdges, Proc::SettingsEffectFindEdges>(Id::FindEdges, [](auto & settings, FindEdges const & effect) {
        using Type = Proc::SettingsEffectFindEdges::Type;
        if (isKnown(effect.type, 2))
            settings.SetParams(static_cast<Type>(effect.type), effect.intensity, effect.sensibility);
    });

    table.add<HalfTone, Proc::SettingsEffectHalfTone>(Id::HalfTone, [](auto & settings, HalfTone const & effect) {
        auto const paper = channels(effect.bkgnd);
        auto const dots = channels(effect.dtclr);
        double const alphaOfDots = (effect.dtclr >> 24) / 255.0;
        settings.SetBackGroundRGB(paper.red, paper.green, paper.blue);
        settings.SetDotRGB(dots.red, dots.green, dots.blue);
        settings.SetParam(alphaOfDots, effect.intensity, effect.scale, effect.angle);
    });

    table.add<Mosaic, Proc::SettingsEffectMosaic>(Id::Mosaic, [](auto & settings, Mosaic const & effect) {
        copyKnown(effect.type, 2, settings.type);
        settings.SetAmount(effect.amountVer, effect.amountHor);
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<GlassMosaic, Proc::SettingsEffectGlassMosaic>(
        Id::GlassMosaic, [](auto & settings, GlassMosaic const & effect) {
            settings.SetParams(effect.angle, effect.curve, effect.repeatsh, effect.repeatsv);
            settings.SetIntensity(floatIntensity(effect));
        });

    table.add<Erosion, Proc::SettingsEffectErosion>(Id::Erosion, [](auto & settings, Erosion const & effect) {
        using Types = Proc::SettingsEffectErosion::Types;
        if (isKnown(effect.type, 2))
            settings.SetParams(effect.intensity, static_cast<Types>(effect.type));
    });

    table.add<Diffuse, Proc::SettingsEffectDiffuse>(Id::Diffuse, [](auto & settings, Diffuse const & effect) {
        settings.SetParams(effect.level, effect.prob);
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<Stripes, Proc::SettingsEffectStripes>(Id::Stripes, [](auto & settings, Stripes const & effect) {
        settings.SetCount(effect.count);
        settings.SetDeep(effect.deep);
        settings.SetIntensity(floatIntensity(effect));
    });

    table.add<AddNoize, Proc::SettingsEffectAddNoize>(Id::AddNoize, [](auto & settings, AddNoize const & effect) {
        copyKnown(effect.type, 2, settings.type);
        settings.SetLevel(effect.intensity);
    });
}

} // namespace Effect::Factory
