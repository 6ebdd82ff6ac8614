/// @file
/// Settings of the effects that lay light or objects over the picture.
#pragma once

#include <array>
#include <cstdint>
#include <memory>

#include <Settings/ImageHandler.h>
#include <Settings/Members.h>

namespace Quoril::Proc {

/// Lets copies of an image fly through the picture.
class SETTINGS_EXPORT SettingsEffectFlyingObjects final : public Settings
{
    SETTINGS_CLASS(SettingsEffectFlyingObjects)
    SETTING(Image, std::shared_ptr<ImageHandler const> const &)
    SETTINGS_FIELD(paramsHead, std::array<std::int64_t, 2>) ///< the frame geometry of the render request
    SETTING(Intensity, float)
    SETTING(ObjectsCount, std::uint64_t)
    SETTING(Scale, double)
    SETTINGS_FIELD(firstValue, std::int32_t)
    SETTINGS_FIELD(secondValue, std::int32_t)
    SETTING(MoveDirection, int) ///< in degrees
    SETTING(MoveSpeed, double)
    SETTING(RotationSpeed, double)
    SETTING(SwingRotationSpeed, double)
    SETTINGS_FIELD(thirdValue, std::int32_t)
};

/// Reflections in the lens.
class SETTINGS_EXPORT SettingsEffectLensFlare final : public Settings
{
    SETTINGS_CLASS(SettingsEffectLensFlare)

    /// The engine's numbers, 0 to 5.
    enum class Preset : std::int32_t
    {
    };

    SETTING(Intensity, float)
    SETTINGS_FIELD(preset, Preset)
};

/// Light that leaked into the camera.
class SETTINGS_EXPORT SettingsEffectLightLeaks final : public Settings
{
    SETTINGS_CLASS(SettingsEffectLightLeaks)

    /// The engine's numbers, 0 to 15.
    enum class Preset : std::int32_t
    {
    };

    SETTING(Intensity, float)
    SETTINGS_FIELD(preset, Preset)
};

/// Colours the rim of the picture.
class SETTINGS_EXPORT SettingsEffectVignetteFilter final : public Settings
{
    SETTINGS_CLASS(SettingsEffectVignetteFilter)
    SETTINGS_FIELD(firstMode, std::int32_t)
    SETTINGS_FIELD(secondMode, std::int32_t)
    SETTINGS_FIELD(thirdMode, std::int32_t)
    SETTING(Color, unsigned char, unsigned char, unsigned char, unsigned char) ///< red, green, blue, alpha
    SETTING(Params, double, double, double, double) ///< centre in x and y, then size and softness
    SETTING(Intensity, float)
};

} // namespace Quoril::Proc
