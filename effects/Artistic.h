/// @file
/// Artistic filters: the picture as if painted, printed or cut. The numbers mean what the render engine makes of them
/// and are passed on as they are.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Paints the picture with a brush.
struct OilPaint : VideoEffect
{
    EFFECT_FILTER_CLASS(OilPaint)

    std::int32_t radius = 5; ///< of the brush

    static constexpr auto describe()
    {
        return description(
            "Paints the picture with a brush.", readsIntensity(), parameter("radius", &OilPaint::radius));
    }
};

/// Few flat colours. All that the engine is told is the preset's.
struct PopArt : VideoEffect
{
    EFFECT_FILTER_CLASS(PopArt)

    enum class Preset : std::int32_t; ///< 0 to 3

    Preset preset{};

    static constexpr auto describe()
    {
        return description("Few flat colours.", readsIntensity(), parameter("preset", &PopArt::preset));
    }
};

/// Reduces the number of colours.
struct Posterize : VideoEffect
{
    EFFECT_FILTER_CLASS(Posterize)

    std::int32_t colorsNumber = 5;

    static constexpr auto describe()
    {
        return description(
            "Reduces the number of colours.", readsIntensity(), parameter("colorsNumber", &Posterize::colorsNumber));
    }
};

/// Leaves only the edges.
struct FindEdges : VideoEffect
{
    EFFECT_FILTER_CLASS(FindEdges)

    enum class Method : std::int32_t; ///< 0 and 1; another one leaves the engine to its defaults

    Method type{}; ///< archived last; the operation `type()` is reached through a base
    double sensibility = 1.0;

    static constexpr auto describe()
    {
        return description("Leaves only the edges.", readsIntensity(),
            parameter("sensibility", &FindEdges::sensibility), parameter("type", &FindEdges::type));
    }
};

/// Prints the picture in dots.
struct HalfTone : VideoEffect
{
    EFFECT_FILTER_CLASS(HalfTone)

    std::uint32_t bkgnd = 0; ///< paper, `0xAARRGGBB`; the alpha plays no part
    std::uint32_t dtclr = 0; ///< dots, `0xAARRGGBB`; transparent, and so unseen, until a colour is chosen
    double scale = 0.001;    ///< of the dots
    std::int32_t angle = 30; ///< of the screen, in degrees

    static constexpr auto describe()
    {
        return description("Prints the picture in dots.", readsIntensity(), parameter("bkgnd", &HalfTone::bkgnd),
            parameter("dtclr", &HalfTone::dtclr), parameter("scale", &HalfTone::scale),
            parameter("angle", &HalfTone::angle));
    }
};

/// Splits the picture into tiles.
struct Mosaic : VideoEffect
{
    EFFECT_FILTER_CLASS(Mosaic)

    enum class Shape : std::int32_t; ///< 0 and 1; another one leaves the engine to its default

    Shape type{};                ///< hides the operation `type()`
    std::int32_t amountVer = 10; ///< tiles down
    std::int32_t amountHor = 10; ///< tiles across

    static constexpr auto describe()
    {
        return description("Splits the picture into tiles.", readsIntensity(), parameter("type", &Mosaic::type),
            parameter("amountVer", &Mosaic::amountVer), parameter("amountHor", &Mosaic::amountHor));
    }
};

/// View through patterned glass.
struct GlassMosaic : VideoEffect
{
    EFFECT_FILTER_CLASS(GlassMosaic)

    double angle = 0.5;
    double curve = 0.1;
    double repeatsh = 0.25; ///< across
    double repeatsv = 0.25; ///< down

    static constexpr auto describe()
    {
        return description("View through patterned glass.", readsIntensity(), parameter("angle", &GlassMosaic::angle),
            parameter("curve", &GlassMosaic::curve), parameter("repeatsh", &GlassMosaic::repeatsh),
            parameter("repeatsv", &GlassMosaic::repeatsv));
    }
};

/// Grows the dark parts or the light ones.
struct Erosion : VideoEffect
{
    EFFECT_FILTER_CLASS(Erosion)

    enum class Direction : std::int32_t; ///< 0 and 1; another one leaves the engine to its defaults

    Direction type{}; ///< hides the operation `type()`

    static constexpr auto describe()
    {
        return description(
            "Grows the dark parts or the light ones.", readsIntensity(), parameter("type", &Erosion::type));
    }
};

/// Scatters the pixels.
struct Diffuse : VideoEffect
{
    EFFECT_FILTER_CLASS(Diffuse)

    double level = 0.05;
    double prob = 0.25; ///< probability

    static constexpr auto describe()
    {
        return description("Scatters the pixels.", readsIntensity(), parameter("level", &Diffuse::level),
            parameter("prob", &Diffuse::prob));
    }
};

/// Lays stripes over the picture.
struct Stripes : VideoEffect
{
    EFFECT_FILTER_CLASS(Stripes)

    std::int32_t count = 32;
    double deep = 0.999; ///< depth

    static constexpr auto describe()
    {
        return description("Lays stripes over the picture.", readsIntensity(), parameter("count", &Stripes::count),
            parameter("deep", &Stripes::deep));
    }
};

/// Adds noise; the intensity is its level.
struct AddNoize : VideoEffect
{
    EFFECT_FILTER_CLASS(AddNoize)

    enum class Kind : std::int32_t; ///< 0 and 1; another one leaves the engine to its default

    Kind type{}; ///< hides the operation `type()`

    static constexpr auto describe()
    {
        return description(
            "Adds noise; the intensity is its level.", readsIntensity(), parameter("type", &AddNoize::type));
    }
};

} // namespace Effect
