/// @file
/// Settings of the effects that place one picture over another or make part of a picture transparent.
#pragma once

#include <cstdint>
#include <optional>

#include <Settings/ColorF.h>
#include <Settings/Members.h>

namespace Quoril::Proc {

/// Cuts a rectangle out of the source and stretches it over a rectangle of the frame. Both are in picture coordinates,
/// from 0 to 1. Empty, it shows the whole source in the whole frame.
class SETTINGS_EXPORT SettingsEffectSubFrame final : public Settings
{
    SETTINGS_CLASS(SettingsEffectSubFrame)
    SETTINGS_FIELD(srcLeft, double)
    SETTINGS_FIELD(srcTop, double)
    SETTINGS_FIELD(srcRight, double)
    SETTINGS_FIELD(srcBottom, double)
    SETTINGS_FIELD(dstLeft, double)
    SETTINGS_FIELD(dstTop, double)
    SETTINGS_FIELD(dstRight, double)
    SETTINGS_FIELD(dstBottom, double)
};

/// Makes the whole picture transparent, from 0 to an opaque 1.
class SETTINGS_EXPORT SettingsEffectOpacity final : public Settings
{
    SETTINGS_CLASS(SettingsEffectOpacity)
    SETTINGS_FIELD(opacity, double)
};

/// Makes the parts of one colour transparent.
class SETTINGS_EXPORT SettingsEffectChromakey final : public Settings
{
    SETTINGS_CLASS(SettingsEffectChromakey)
    SETTING(Params, double, double, double, double) ///< hue tolerance, noise level, harshness, transparency
    SETTINGS_FIELD(red, std::uint8_t)
    SETTINGS_FIELD(green, std::uint8_t)
    SETTINGS_FIELD(blue, std::uint8_t)
    SETTINGS_FIELD(alpha, std::uint8_t)
};

/// Blends two pictures. The engine numbers the blend modes.
class SETTINGS_EXPORT SettingsEffectColorBlender final : public Settings
{
    SETTINGS_CLASS(SettingsEffectColorBlender)
    SETTINGS_FIELD(blendMode, std::int32_t)
    SETTING(Intensity, float)
    SETTING(BaseColor, std::optional<ColorF> const &) ///< what lies below both; without it the picture does
};

/// Takes the alpha of the first picture from the second.
class SETTINGS_EXPORT SettingsEffectAlphaInserter final : public Settings
{
    SETTINGS_CLASS(SettingsEffectAlphaInserter)
};

} // namespace Quoril::Proc
