/// @file
/// Settings of the effects that bend or shake the picture.
#pragma once

#include <Settings/Members.h>

namespace Quoril::Proc {

/// Turns the picture around its middle, the middle further than the rim.
class SETTINGS_EXPORT SettingsEffectTwirl final : public Settings
{
    SETTINGS_CLASS(SettingsEffectTwirl)
    SETTING(Params, double, double, double, double) ///< start and speed of the turn, start and speed of the twirl
    SETTING(Intensity, float)
};

/// Turning echoes of the picture.
class SETTINGS_EXPORT SettingsEffectVertigo final : public Settings
{
    SETTINGS_CLASS(SettingsEffectVertigo)
    SETTING(Params, double, double) ///< scale, speed
    SETTING(Intensity, double)
};

/// View through a fish-eye lens.
class SETTINGS_EXPORT SettingsEffectFishEye final : public Settings
{
    SETTINGS_CLASS(SettingsEffectFishEye)
    SETTING(Deviation, double)
    SETTING(Intensity, float)
};

/// Barrel or pincushion distortion.
class SETTINGS_EXPORT SettingsEffectLensDistortion final : public Settings
{
    SETTINGS_CLASS(SettingsEffectLensDistortion)
    SETTING(Intensity, double)
    SETTING(Distortion, double)
    SETTING(MemberCount, int) ///< terms of the distortion's polynomial
    SETTING(Zoom, double)
};

/// The camera in an unsteady hand.
class SETTINGS_EXPORT SettingsEffectCameraShake final : public Settings
{
    SETTINGS_CLASS(SettingsEffectCameraShake)
    SETTING(Settings, double, double, double, double, double) ///< shift in x and y, turn, frequency, persistence
    SETTING(Intensity, float)
};

/// Splits the colours towards the rim.
class SETTINGS_EXPORT SettingsEffectChromaticAberration final : public Settings
{
    SETTINGS_CLASS(SettingsEffectChromaticAberration)
    SETTING(Intensity, float)
};

} // namespace Quoril::Proc
