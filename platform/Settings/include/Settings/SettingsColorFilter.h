/// @file
/// Settings of the colour filters.
#pragma once

#include <cstdint>

#include <Settings/Members.h>

namespace Quoril::Proc {

/// Paints the picture in strokes.
class SETTINGS_EXPORT SettingsEffectColorBrush final : public Settings
{
    SETTINGS_CLASS(SettingsEffectColorBrush)

    /// The engine's numbers, 0 and 1.
    enum class Type : std::int32_t
    {
    };

    SETTINGS_FIELD(angle, std::int32_t) ///< in degrees
    SETTINGS_FIELD(size, std::int32_t)
    SETTINGS_FIELD(rough, std::int32_t)
    SETTINGS_FIELD(type, Type)
    SETTING(Intensity, float)
};

/// One of the engine's ready-made colour gradings.
class SETTINGS_EXPORT SettingsEffectColorFilter final : public Settings
{
    SETTINGS_CLASS(SettingsEffectColorFilter)

    /// The engine's numbers, 0 to 35.
    enum class Preset : std::int32_t
    {
    };

    SETTINGS_FIELD(preset, Preset)
    SETTINGS_FIELD(intensity, float)
};

/// Burns the colours into each other.
class SETTINGS_EXPORT SettingsEffectColorMixBurn final : public Settings
{
    SETTINGS_CLASS(SettingsEffectColorMixBurn)
    SETTING(Strength, double)
};

/// Keeps one colour and takes the others away.
class SETTINGS_EXPORT SettingsEffectColorSelect final : public Settings
{
    SETTINGS_CLASS(SettingsEffectColorSelect)
    SETTING(Params, int, double, double, double) ///< hue tolerance, noise level, harshness, transparency
    SETTING(Intensity, float)
    SETTINGS_FIELD(red, std::uint8_t)
    SETTINGS_FIELD(green, std::uint8_t)
    SETTINGS_FIELD(blue, std::uint8_t)
};

/// Exchanges the colours against one.
class SETTINGS_EXPORT SettingsEffectColorMixExchange final : public Settings
{
    SETTINGS_CLASS(SettingsEffectColorMixExchange)
    SETTING(ExchangeColor, unsigned char, unsigned char, unsigned char) ///< red, green, blue
    SETTING(Intensity, float)
};

/// Mixes a field of one colour in.
class SETTINGS_EXPORT SettingsEffectColorMixField final : public Settings
{
    SETTINGS_CLASS(SettingsEffectColorMixField)
    SETTING(Threshold, double)
    SETTING(Contrast, double)
    SETTING(FieldColor, unsigned char, unsigned char, unsigned char) ///< red, green, blue
};

/// Inverts the colours.
class SETTINGS_EXPORT SettingsEffectInvert final : public Settings
{
    SETTINGS_CLASS(SettingsEffectInvert)
    SETTING(Intensity, float)
};

} // namespace Quoril::Proc
