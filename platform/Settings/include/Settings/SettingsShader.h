/// @file
/// Settings of the effects that run a shader or a lookup table from a file.
#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include <Settings/ImageHandler.h>
#include <Settings/Members.h>

namespace Quoril::Proc {

namespace LUT {
struct LUTTable;
} // namespace LUT

/// Maps the colours through a table.
class SETTINGS_EXPORT SettingsEffectLUT final : public Settings
{
    SETTINGS_CLASS(SettingsEffectLUT)

    /// Between the entries of the table.
    enum class InterpolateMode : std::int32_t
    {
        Nearest = 0,
        Linear = 1,
    };

    SETTINGS_FIELD(intensity, float)
    SETTING(Table, std::shared_ptr<LUT::LUTTable> const &)
    SETTING(Mode, InterpolateMode)
};

/// What all shaders in the Interactive Shader Format take.
class SETTINGS_EXPORT BaseSettingsISF : public Settings
{
    SETTINGS_BASE(BaseSettingsISF)
    SETTING(Config, std::string const &) ///< the inputs and passes, as the loader of shader files writes them
    SETTING(PixelShader, std::string const &)
    SETTING(VertexShader, std::string const &) ///< not set: the engine's own
};

/// Runs a shader in the Interactive Shader Format over the picture.
class SETTINGS_EXPORT SettingsEffectISF final : public BaseSettingsISF
{
    SETTINGS_CLASS(SettingsEffectISF)
};

/// Runs a fragment shader over the picture, with a second image at hand.
class SETTINGS_EXPORT SettingsEffectTemplateQES final : public Settings
{
    SETTINGS_CLASS(SettingsEffectTemplateQES)
    SETTING(Version, int)
    SETTING(Intensity, float) ///< negative: the shader has none
    SETTING(Shader, std::string const &)
    SETTING(AuxImage, std::shared_ptr<ImageHandler const> const &)
};

} // namespace Quoril::Proc
