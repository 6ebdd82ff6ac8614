/// @file
/// Retro and glitch: pictures from old or broken media. The numbers mean what the render engine makes of them.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Old film: an unsteady, scratched and grainy picture.
struct RetroArtefacts : VideoEffect
{
    EFFECT_FILTER_CLASS(RetroArtefacts)

    bool shake = false;
    bool vignetting = false;
    std::uint32_t grain = 0;
    std::uint32_t scratches = 0;
    std::uint32_t rollerTrack = 0; ///< traces of the projector's rollers

    static constexpr auto describe()
    {
        return description("Old film: an unsteady, scratched and grainy picture.", readsIntensity(),
            parameter("shake", &RetroArtefacts::shake), parameter("vignetting", &RetroArtefacts::vignetting),
            parameter("grain", &RetroArtefacts::grain), parameter("scratches", &RetroArtefacts::scratches),
            parameter("rollerTrack", &RetroArtefacts::rollerTrack));
    }
};

/// The colours of old film.
struct RetroColors : VideoEffect
{
    EFFECT_FILTER_CLASS(RetroColors)

    enum class Film : std::int32_t; ///< 0 to 3; another one leaves the engine to its default

    Film type{}; ///< hides the operation `type()`

    static constexpr auto describe()
    {
        return description("The colours of old film.", readsIntensity(), parameter("type", &RetroColors::type));
    }
};

/// A worn video tape.
struct VHS : VideoEffect
{
    EFFECT_FILTER_CLASS(VHS)

    double speed = 0.07;
    double shift = 0.05;
    double smoothness = 0.07;
    double relief = 0.05;

    static constexpr auto describe()
    {
        return description("A worn video tape.", readsIntensity(), parameter("speed", &VHS::speed),
            parameter("shift", &VHS::shift), parameter("smoothness", &VHS::smoothness),
            parameter("relief", &VHS::relief));
    }
};

/// A television set of the seventies.
struct Television70s : VideoEffect
{
    EFFECT_FILTER_CLASS(Television70s)

    double stripesWidth = 0.7;

    static constexpr auto describe()
    {
        return description("A television set of the seventies.", readsIntensity(),
            parameter("stripesWidth", &Television70s::stripesWidth));
    }
};

/// A damaged MPEG stream.
struct GlitchMpeg : VideoEffect
{
    EFFECT_FILTER_CLASS(GlitchMpeg)

    static constexpr auto describe() { return description("A damaged MPEG stream.", readsIntensity()); }
};

/// A disturbed security camera.
struct GlitchSecurityCam : VideoEffect
{
    EFFECT_FILTER_CLASS(GlitchSecurityCam)

    double randDistortion = 1.4;
    double constDistortion = 0.15;

    static constexpr auto describe()
    {
        return description("A disturbed security camera.", readsIntensity(),
            parameter("randDistortion", &GlitchSecurityCam::randDistortion),
            parameter("constDistortion", &GlitchSecurityCam::constDistortion));
    }
};

/// The edges of a film strip around the picture. It is there or not: it has no intensity.
struct FilmStrip : VideoEffect
{
    EFFECT_CLASS(FilmStrip)
    FilmStrip();
    QString defaultTag() const override;

    enum class Strip : std::int32_t; ///< 0 to 2; another one leaves the engine to its default

    Strip type{}; ///< hides the operation `type()`

    static constexpr auto describe()
    {
        return description("The edges of a film strip around the picture.", parameter("type", &FilmStrip::type));
    }
};

} // namespace Effect
