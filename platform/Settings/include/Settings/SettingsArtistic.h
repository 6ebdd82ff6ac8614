/// @file
/// Settings of the artistic filters.
#pragma once

#include <cstdint>

#include <Settings/Members.h>

namespace Quoril::Proc {

/// Paints the picture with a brush.
class SETTINGS_EXPORT SettingsEffectOilPaint final : public Settings
{
    SETTINGS_CLASS(SettingsEffectOilPaint)
    SETTINGS_FIELD(radius, std::int32_t)
    SETTING(Intensity, float)
};

/// Few flat colours.
class SETTINGS_EXPORT SettingsEffectPopArt final : public Settings
{
    SETTINGS_CLASS(SettingsEffectPopArt)
    SETTING(Intensity, float)
    SETTING(Params, int, int, double, double, double, double)
};

/// Reduces the number of colours.
class SETTINGS_EXPORT SettingsEffectPosterize final : public Settings
{
    SETTINGS_CLASS(SettingsEffectPosterize)
    SETTING(ColorsNumber, int)
    SETTING(Intensity, float)
};

/// Leaves only the edges.
class SETTINGS_EXPORT SettingsEffectFindEdges final : public Settings
{
    SETTINGS_CLASS(SettingsEffectFindEdges)

    /// The engine's numbers, 0 and 1.
    enum class Type : std::int32_t
    {
    };

    SETTING(Params, Type, double, double) ///< type, intensity, sensibility
};

/// Prints the picture in dots.
class SETTINGS_EXPORT SettingsEffectHalfTone final : public Settings
{
    SETTINGS_CLASS(SettingsEffectHalfTone)
    SETTING(BackGroundRGB, unsigned char, unsigned char, unsigned char)
    SETTING(DotRGB, unsigned char, unsigned char, unsigned char)
    SETTING(Param, double, double, double, int) ///< alpha of the dots, intensity, scale, angle in degrees
};

/// Splits the picture into tiles.
class SETTINGS_EXPORT SettingsEffectMosaic final : public Settings
{
    SETTINGS_CLASS(SettingsEffectMosaic)

    /// The engine's numbers, 0 and 1.
    enum class Type : std::int32_t
    {
    };

    SETTINGS_FIELD(type, Type)
    SETTING(Amount, int, int) ///< tiles down, tiles across
    SETTING(Intensity, float)
};

/// View through patterned glass.
class SETTINGS_EXPORT SettingsEffectGlassMosaic final : public Settings
{
    SETTINGS_CLASS(SettingsEffectGlassMosaic)
    SETTING(Params, double, double, double, double) ///< angle, curve, repeats across, repeats down
    SETTING(Intensity, float)
};

/// Grows the dark parts or the light ones.
class SETTINGS_EXPORT SettingsEffectErosion final : public Settings
{
    SETTINGS_CLASS(SettingsEffectErosion)

    /// The engine's numbers, 0 and 1.
    enum class Types : std::int32_t
    {
    };

    SETTING(Params, double, Types) ///< intensity, type
};

/// Scatters the pixels.
class SETTINGS_EXPORT SettingsEffectDiffuse final : public Settings
{
    SETTINGS_CLASS(SettingsEffectDiffuse)
    SETTING(Params, double, double) ///< level, probability
    SETTING(Intensity, float)
};

/// Lays stripes over the picture.
class SETTINGS_EXPORT SettingsEffectStripes final : public Settings
{
    SETTINGS_CLASS(SettingsEffectStripes)
    SETTING(Count, int)
    SETTING(Deep, double)
    SETTING(Intensity, float)
};

/// Adds noise.
class SETTINGS_EXPORT SettingsEffectAddNoize final : public Settings
{
    SETTINGS_CLASS(SettingsEffectAddNoize)

    /// The engine's numbers, 0 and 1.
    enum class Type : std::int32_t
    {
    };

    SETTINGS_FIELD(type, Type)
    SETTING(Level, double)
};

} // namespace Quoril::Proc
