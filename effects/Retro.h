/// @file
/// Retro and glitch: pictures from old or broken media. The render engine defines the scales of the numbers, which are
/// passed on unchanged.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Old film: an unsteady, scratched and grainy picture.
struct RetroArtefacts : VideoEffect
{
    EFFECT_FILTER_CLASS(RetroArtefacts)

    bool shake = false;            ///< whether the picture is unsteady
    bool vignetting = false;       ///< whether the corners are dark
    std::uint32_t grain = 0;       ///< amount of grain, in the engine's unit
    std::uint32_t scratches = 0;   ///< amount of scratches, in the engine's unit
    std::uint32_t rollerTrack = 0; ///< amount of traces of the projector's rollers, in the engine's unit

    static constexpr auto describe()
    {
        return description("Makes the picture unsteady, scratched and grainy, like an old film.", readsIntensity(),
            parameter("shake", &RetroArtefacts::shake).label("Shake").text("Makes the picture jump and tremble"),
            parameter("vignetting", &RetroArtefacts::vignetting)
                .label("Vignetting")
                .text("Darkens the corners of the picture"),
            parameter("grain", &RetroArtefacts::grain)
                .label("Grain")
                .text("Higher makes the picture coarser; the stock goes up to 60")
                .unit(Unit::engine)
                .suggest(0, 60),
            parameter("scratches", &RetroArtefacts::scratches)
                .label("Scratches")
                .text("Higher damages the film more; the stock goes up to 40")
                .unit(Unit::engine)
                .suggest(0, 40),
            parameter("rollerTrack", &RetroArtefacts::rollerTrack)
                .label("Roller tracks")
                .text("Higher adds more traces of the projector's rollers; the stock goes up to 20")
                .unit(Unit::engine)
                .suggest(0, 20));
    }
};

/// The colours of old film.
struct RetroColors : VideoEffect
{
    EFFECT_FILTER_CLASS(RetroColors)

    /// A film, 0 to 3. Another number leaves the settings at their default, 0.
    enum class Film : std::int32_t;
    /// The known values of `type`.
    static constexpr Choice filmChoices[] = {
        {0, "Film0", "Film 0"}, {1, "Film1", "Film 1"}, {2, "Film2", "Film 2"}, {3, "Film3", "Film 3"}};

    Film type{}; ///< film whose colours are imitated; hides the member function `type()`

    static constexpr auto describe()
    {
        return description("Gives the picture the colours of an old film.", readsIntensity(),
            parameter("type", &RetroColors::type)
                .label("Film")
                .text("Whose colours the picture takes")
                .choices(filmChoices)
                .fallback(0));
    }
};

/// A worn video tape.
struct VHS : VideoEffect
{
    EFFECT_FILTER_CLASS(VHS)

    double speed = 0.07;      ///< speed of the disturbance, in the engine's unit
    double shift = 0.05;      ///< displacement of the picture, in the engine's unit
    double smoothness = 0.07; ///< softness of the disturbance, in the engine's unit
    double relief = 0.05;     ///< relief of the picture, in the engine's unit

    static constexpr auto describe()
    {
        return description("Disturbs the picture like a worn video tape.", readsIntensity(),
            parameter("speed", &VHS::speed)
                .label("Speed")
                .text("Higher moves the disturbance faster; the stock uses 0.07 to 0.15")
                .unit(Unit::engine)
                .suggest(0.07, 0.15),
            parameter("shift", &VHS::shift)
                .label("Shift")
                .text("Higher displaces the picture further; the stock uses 0.05 to 0.12")
                .unit(Unit::engine)
                .suggest(0.05, 0.12),
            parameter("smoothness", &VHS::smoothness)
                .label("Smoothness")
                .text("Higher makes the disturbance softer; the stock uses 0.07 to 0.12")
                .unit(Unit::engine)
                .suggest(0.07, 0.12),
            parameter("relief", &VHS::relief)
                .label("Relief")
                .text("Higher makes contours stand out more; the stock uses 0.05 to 0.1")
                .unit(Unit::engine)
                .suggest(0.05, 0.1));
    }
};

/// A television set of the seventies.
struct Television70s : VideoEffect
{
    EFFECT_FILTER_CLASS(Television70s)

    double stripesWidth = 0.7; ///< width of the stripes, in the engine's unit

    static constexpr auto describe()
    {
        return description("Shows the picture as on an old tube set, with stripes across it.", readsIntensity(),
            parameter("stripesWidth", &Television70s::stripesWidth)
                .label("Stripe width")
                .text("Higher makes the stripes broader; the stock uses 0.35 to 0.7")
                .unit(Unit::engine)
                .suggest(0.35, 0.7));
    }
};

/// A damaged MPEG stream.
struct GlitchMpeg : VideoEffect
{
    EFFECT_FILTER_CLASS(GlitchMpeg)

    static constexpr auto describe()
    {
        return description("Breaks the picture like a damaged video file.", readsIntensity());
    }
};

/// A disturbed security camera.
struct GlitchSecurityCam : VideoEffect
{
    EFFECT_FILTER_CLASS(GlitchSecurityCam)

    double randDistortion = 1.4;   ///< distortion that comes and goes, in the engine's unit
    double constDistortion = 0.15; ///< distortion that stays, in the engine's unit

    static constexpr auto describe()
    {
        return description("Distorts the picture like the poor signal of a surveillance camera.", readsIntensity(),
            parameter("randDistortion", &GlitchSecurityCam::randDistortion)
                .label("Random distortion")
                .text("Higher jolts the picture harder from time to time; the stock uses 1.4 to 2.6")
                .unit(Unit::engine)
                .suggest(1.4, 2.6),
            parameter("constDistortion", &GlitchSecurityCam::constDistortion)
                .label("Constant distortion")
                .text("Higher bends the picture more all the time; the stock uses 0.15 to 0.3")
                .unit(Unit::engine)
                .suggest(0.15, 0.3));
    }
};

/// The edges of a film strip around the picture. They are there or not: the effect has no intensity.
struct FilmStrip : VideoEffect
{
    EFFECT_CLASS(FilmStrip)
    FilmStrip();
    QString defaultTag() const override;

    /// A strip, 0 to 2. With another number the engine receives no settings at all.
    enum class Strip : std::int32_t;
    /// The known values of `type`.
    static constexpr Choice stripChoices[] = {
        {0, "Strip0", "Strip 0"}, {1, "Strip1", "Strip 1"}, {2, "Strip2", "Strip 2"}};

    Strip type{}; ///< which strip; hides the member function `type()`

    static constexpr auto describe()
    {
        return description("Frames the picture with the perforated edges of a film.",
            parameter("type", &FilmStrip::type)
                .label("Strip")
                .text("What the edges look like; any other number leaves the choice to the render engine")
                .choices(stripChoices)
                .fallback(-1)); // any number without a strip makes the same, empty record
    }
};

} // namespace Effect
