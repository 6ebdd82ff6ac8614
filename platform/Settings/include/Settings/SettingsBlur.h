/// @file
/// Settings of the effects that soften or sharpen the picture.
#pragma once

#include <memory>

#include <Settings/ImageHandler.h>
#include <Settings/Members.h>

namespace Quoril::Proc {

/// Gaussian blur.
class SETTINGS_EXPORT SettingsEffectBlurGaussian final : public Settings
{
    SETTINGS_CLASS(SettingsEffectBlurGaussian)
    SETTING(Scale, double)
};

/// Blur in which points of light take the shape of a mask.
class SETTINGS_EXPORT SettingsEffectBokehBlur final : public Settings
{
    SETTINGS_CLASS(SettingsEffectBokehBlur)
    SETTING(Image, std::shared_ptr<ImageHandler const> const &) ///< the mask
    SETTING(Intensity, float)
    SETTING(Params, double, double, double)
};

/// Blur along the motion.
class SETTINGS_EXPORT SettingsEffectMotionBlur final : public Settings
{
    SETTINGS_CLASS(SettingsEffectMotionBlur)
    SETTING(Scale, double)
};

/// Blur above one line and below another, each given by the coefficients of its equation.
class SETTINGS_EXPORT SettingsEffectTiltShiftQEM final : public Settings
{
    SETTINGS_CLASS(SettingsEffectTiltShiftQEM)
    SETTING(Params, double, double) ///< smoothness of the edges, intensity
    SETTING(UpperLine, double, double, double)
    SETTING(LowerLine, double, double, double)
};

/// Sharpens the edges.
class SETTINGS_EXPORT SettingsEffectSharpen final : public Settings
{
    SETTINGS_CLASS(SettingsEffectSharpen)
    SETTING(Level, double)
};

} // namespace Quoril::Proc
