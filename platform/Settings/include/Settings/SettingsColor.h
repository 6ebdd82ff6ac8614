/// @file
/// Settings of the colour corrections.
#pragma once

#include <cstdint>

#include <Settings/Members.h>

namespace Quoril::Proc {

/// Stretches the contrast to the full range.
class SETTINGS_EXPORT SettingsEffectAutoContrast final : public Settings
{
    SETTINGS_CLASS(SettingsEffectAutoContrast)
};

/// Raises the saturation of a pale picture.
class SETTINGS_EXPORT SettingsEffectSaturation final : public Settings
{
    SETTINGS_CLASS(SettingsEffectSaturation)
};

/// Makes one colour of the picture neutral.
class SETTINGS_EXPORT SettingsEffectAutoWhiteBalance final : public Settings
{
    SETTINGS_CLASS(SettingsEffectAutoWhiteBalance)
    SETTINGS_FIELD(red, std::uint8_t)
    SETTINGS_FIELD(green, std::uint8_t)
    SETTINGS_FIELD(blue, std::uint8_t)
    SETTINGS_FIELD(alpha, std::uint8_t)
};

/// Corrects brightness, contrast and colours in one step.
class SETTINGS_EXPORT SettingsEffectMagicEnhance2 final : public Settings
{
    SETTINGS_CLASS(SettingsEffectMagicEnhance2)
};

/// Tints the picture with one colour.
class SETTINGS_EXPORT SettingsEffectGIMPColorize final : public Settings
{
    SETTINGS_CLASS(SettingsEffectGIMPColorize)
    SETTING(Red, float)
    SETTING(Green, float)
    SETTING(Blue, float)
    SETTING(Intensity, float)
};

/// Moves the white point, in kelvin, from where it was shot to where it is wanted.
class SETTINGS_EXPORT SettingsEffectGIMPColorTemperature final : public Settings
{
    SETTINGS_CLASS(SettingsEffectGIMPColorTemperature)
    SETTING(OriginalTemperature, float)
    SETTING(IntendedTemperature, float)
};

/// Brightness and contrast; zero leaves them.
class SETTINGS_EXPORT SettingsEffectGIMPColorCorrection final : public Settings
{
    SETTINGS_CLASS(SettingsEffectGIMPColorCorrection)
    SETTING(Brightness, float)
    SETTING(Contrast, float)
};

/// Saturation and gamma; one leaves them.
class SETTINGS_EXPORT SettingsEffectColorBalance final : public Settings
{
    SETTINGS_CLASS(SettingsEffectColorBalance)
    SETTINGS_FIELD(saturation, double)
    SETTINGS_FIELD(gamma, double)
};

/// Turns the hues of all colours, or of one sixth of the colour circle.
class SETTINGS_EXPORT SettingsEffectGIMPHueSaturation final : public Settings
{
    SETTINGS_CLASS(SettingsEffectGIMPHueSaturation)

    /// Which colours are turned.
    enum class HueRange : std::int32_t
    {
        All = 0,
        Red = 1,
        Yellow = 2,
        Green = 3,
        Cyan = 4,
        Blue = 5,
        Magenta = 6,
    };

    SETTING(Hue, HueRange, float) ///< the range, the turn in degrees
    SETTING(Intensity, float)
};

/// Lightens or darkens the dark and the light parts, each in per cent.
class SETTINGS_EXPORT SettingsEffectGIMPShadowsHightlights final : public Settings
{
    SETTINGS_CLASS(SettingsEffectGIMPShadowsHightlights)
    SETTING(Shadows, float)
    SETTING(Highlights, float)
};

} // namespace Quoril::Proc
