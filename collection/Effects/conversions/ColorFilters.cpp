#include <collection/Effects/Conversions.h>

namespace Effect::Factory {

void fill(Proc::SettingsEffectColorBrush & settings, ColorBrush const & effect, VideoParams const &)
{
    settings.angle = effect.angle;
    settings.size = effect.size;
    settings.rough = effect.rough;
    settings.SetIntensity(floatIntensity(effect));
    copyKnown(effect.pType, 2, settings.type);
}

void fill(Proc::SettingsEffectColorFilter & settings, ColorFilter const & effect, VideoParams const &)
{
    using Preset = Proc::SettingsEffectColorFilter::Preset;
    settings.intensity = floatIntensity(effect);
    settings.preset = static_cast<Preset>(knownValue(effect.preset, 36));
}

void fill(Proc::SettingsEffectColorMixBurn & settings, ColorMixBurn const & effect, VideoParams const &)
{
    settings.SetStrength(effect.intensity);
}

void fill(Proc::SettingsEffectColorSelect & settings, ColorSelect const & effect, VideoParams const &)
{
    // The noise is on a scale of 256 where the others are percentages.
    settings.SetParams(
        effect.hueTolerance, effect.noiseLevel * 0.00390625, effect.harshness / 100.0, effect.transparency / 100.0);
    settings.SetIntensity(floatIntensity(effect));
    auto const [red, green, blue] = channels(effect.color);
    settings.red = red;
    settings.green = green;
    settings.blue = blue;
}

void fill(Proc::SettingsEffectColorMixExchange & settings, ColorMixExchange const & effect, VideoParams const &)
{
    auto const [red, green, blue] = channels(effect.color);
    settings.SetExchangeColor(red, green, blue);
    settings.SetIntensity(floatIntensity(effect));
}

void fill(Proc::SettingsEffectColorMixField & settings, ColorMixField const & effect, VideoParams const &)
{
    settings.SetThreshold(effect.threshold);
    settings.SetContrast(effect.contrast);
    auto const [red, green, blue] = channels(effect.color);
    settings.SetFieldColor(red, green, blue);
}

void fill(Proc::SettingsEffectInvert & settings, Invert const & effect, VideoParams const &)
{
    settings.SetIntensity(floatIntensity(effect));
}

} // namespace Effect::Factory
