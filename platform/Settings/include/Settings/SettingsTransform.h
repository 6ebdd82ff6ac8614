/// @file
/// Settings of the effects that change the geometry of the whole picture.
#pragma once

#include <array>
#include <cstdint>

#include <Settings/Members.h>
#include <Utils/Matrix3x3.h>

namespace Quoril::Proc {

/// Maps the picture through a matrix.
class SETTINGS_EXPORT SettingsEffectTransform final : public Settings
{
    SETTINGS_CLASS(SettingsEffectTransform)

    /// What the matrix does.
    enum class Mode : std::int32_t
    {
        Place = 0,
        Rotate = 1,
        Crop = 2,
    };

    SETTINGS_FIELD(mode, Mode)
    SETTINGS_FIELD(matrix, Core::Matrix3x3)
};

/// Mirrors one half of the picture over to the other, on either axis. The engine numbers the ways 0, 1 and 2.
class SETTINGS_EXPORT SettingsEffectMirror final : public Settings
{
    SETTINGS_CLASS(SettingsEffectMirror)
    SETTINGS_FIELD(vertical, std::int32_t)
    SETTINGS_FIELD(horizontal, std::int32_t)
};

/// Fills the frame behind a video that was shot upright.
class SETTINGS_EXPORT SettingsEffectFixVertVideo final : public Settings
{
    SETTINGS_CLASS(SettingsEffectFixVertVideo)
    SETTINGS_FIELD(geometry, std::array<std::int64_t, 2>) ///< the frame geometry of the render request
};

} // namespace Quoril::Proc
