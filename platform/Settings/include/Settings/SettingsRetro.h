/// @file
/// Settings of the effects that imitate old or broken media.
#pragma once

#include <cstdint>

#include <Settings/Members.h>

namespace Quoril::Proc {

/// Old film: an unsteady, scratched and grainy picture.
class SETTINGS_EXPORT SettingsEffectRetroArtefacts final : public Settings
{
    SETTINGS_CLASS(SettingsEffectRetroArtefacts)
    SETTINGS_FIELD(shake, bool)
    SETTINGS_FIELD(vignetting, bool)
    SETTINGS_FIELD(grain, std::uint32_t)
    SETTINGS_FIELD(scratches, std::uint32_t)
    SETTINGS_FIELD(rollerTrack, std::uint32_t)
    SETTING(Intensity, float)
};

/// The colours of old film.
class SETTINGS_EXPORT SettingsEffectRetroColors final : public Settings
{
    SETTINGS_CLASS(SettingsEffectRetroColors)

    /// The engine's numbers, 0 to 3.
    enum class Type : std::int32_t
    {
    };

    SETTING(Intensity, float)
    SETTINGS_FIELD(type, Type)
};

/// A worn video tape.
class SETTINGS_EXPORT SettingsEffectVHS final : public Settings
{
    SETTINGS_CLASS(SettingsEffectVHS)
    SETTING(Params, double, double, double, double) ///< speed, shift, smoothness, relief
    SETTING(Intensity, float)
};

/// A television set of the seventies.
class SETTINGS_EXPORT SettingsEffectTelevision70s final : public Settings
{
    SETTINGS_CLASS(SettingsEffectTelevision70s)
    SETTING(Intensity, float)
    SETTING(StripesWidth, float)
};

/// A damaged MPEG stream.
class SETTINGS_EXPORT SettingsEffectGlitchMpeg final : public Settings
{
    SETTINGS_CLASS(SettingsEffectGlitchMpeg)
    SETTING(Intensity, float)
};

/// A disturbed security camera.
class SETTINGS_EXPORT SettingsEffectGlitchSecurityCam final : public Settings
{
    SETTINGS_CLASS(SettingsEffectGlitchSecurityCam)
    SETTING(Intensity, float)
    SETTING(ConstDistortion, float)
    SETTING(RandDistortion, float)
};

/// The edges of a film strip around the picture.
class SETTINGS_EXPORT SettingsEffectFilmStrip final : public Settings
{
    SETTINGS_CLASS(SettingsEffectFilmStrip)

    /// The engine's numbers: 0 for no strip, then 1 to 3.
    enum class Type : std::int32_t
    {
    };

    SETTING(Type, Type)
};

} // namespace Quoril::Proc
