#include <collection/Effects/Conversions.h>
#include <effects/ColorFilters.h>
#include <effects/ColorMixField.h>
#include <effects/PrivateIdentity.h>
#include <Settings/SettingsColorFilter.h>

namespace Effect::Factory {

void addColorFilters(Conversions & table)
{
    table.add<ColorBrush, Proc::SettingsEffectColorBrush>(
        Id::ColorBrush, [](auto & settings, ColorBrush const & effect) {
            settings.angle = effect.angle;
            settings.size = effect.size;
            settings.rough = effect.rough;
            settings.SetIntensity(floatIntensity(effect));
            copyKnown(effect.pType, 2, settings.type);
        });

    table.add<ColorFilter, Proc::SettingsEffectColorFilter>(
        Id::ColorFilter, [](auto & settings, ColorFilter const & effect) {
            using Preset = Proc::SettingsEffectColorFilter::Preset;
            settings.intensity = floatIntensity(effect);
            settings.preset = static_cast<Preset>(knownValue(effect.preset, 36));
        });

    table.add<ColorMixBurn, Proc::SettingsEffectColorMixBurn>(
        Id::ColorMixBurn, [](auto & settings, ColorMixBurn const & effect) { settings.SetStrength(effect.intensity); });

    table.add<ColorSelect, Proc::SettingsEffectColorSelect>(
        Id::ColorSelect, [](auto & settings, ColorSelect const & effect) {
            // The noise is on a scale of 256 where the others are percentages.
            settings.SetParams(effect.hueTolerance, effect.noiseLevel * 0.00390625, effect.harshness / 100.0,
                effect.transparency / 100.0);
            settings.SetIntensity(floatIntensity(effect));
            auto const [red, green, blue] = channels(effect.color);
            settings.red = red;
            settings.green = green;
            settings.blue = blue;
        });

    table.add<ColorMixExchange, Proc::SettingsEffectColorMixExchange>(
        Id::ColorMixExchange, [](auto & settings, ColorMixExchange const & effect) {
            auto const [red, green, blue] = channels(effect.color);
            settings.SetExchangeColor(red, green, blue);
            settings.SetIntensity(floatIntensity(effect));
        });

    table.add<ColorMixField, Proc::SettingsEffectColorMixField>(
        Id::ColorMixField, [](auto & settings, ColorMixField const & effect) {
            settings.SetThreshold(effect.threshold);
            settings.SetContrast(effect.contrast);
            auto const [red, green, blue] = channels(effect.color);
            settings.SetFieldColor(red, green, blue);
        });

    table.add<Invert, Proc::SettingsEffectInvert>(
        Id::Invert, [](auto & settings, Invert const & effect) { settings.SetIntensity(floatIntensity(effect)); });
}

} // namespace Effect::Factory
