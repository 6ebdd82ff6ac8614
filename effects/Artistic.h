/// @file
/// Artistic filters: the picture as if painted, printed or cut. The render engine defines the scales of the numbers,
/// which are passed on unchanged.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Paints the picture with a brush.
struct OilPaint : VideoEffect
{
    EFFECT_FILTER_CLASS(OilPaint)

    std::int32_t radius = 5; ///< radius of the brush, in the engine's unit

    static constexpr auto describe()
    {
        return description("Turns the picture into strokes of a brush.", readsIntensity(),
            parameter("radius", &OilPaint::radius)
                .label("Brush radius")
                .text("Higher makes the strokes broader; the stock uses 5 to 12")
                .unit(Unit::engine)
                .suggest(5, 12));
    }
};

/// Reduces the picture to a few flat colours. Every number that the engine receives is the preset's.
struct PopArt : VideoEffect
{
    EFFECT_FILTER_CLASS(PopArt)

    /// A set of the engine's parameters, 0 to 3. Another number leaves all of them to the engine.
    enum class Preset : std::int32_t;
    /// The known values of `preset`.
    static constexpr Choice presetChoices[] = {
        {0, "Preset0", "Preset 0"}, {1, "Preset1", "Preset 1"}, {2, "Preset2", "Preset 2"}, {3, "Preset3", "Preset 3"}};

    Preset preset{}; ///< which set of parameters is used

    static constexpr auto describe()
    {
        return description("Reduces the picture to a few flat colours, like a screen print.", readsIntensity(),
            parameter("preset", &PopArt::preset)
                .label("Preset")
                .text("Which of the variants is used; any other number leaves the choice to the render engine")
                .choices(presetChoices)
                .fallback(-1)); // any number without a preset makes the same record
    }
};

/// Reduces the number of colours.
struct Posterize : VideoEffect
{
    EFFECT_FILTER_CLASS(Posterize)

    std::int32_t colorsNumber = 5; ///< number of colours that are left

    static constexpr auto describe()
    {
        return description("Reduces the number of colours, so that smooth shades become steps.", readsIntensity(),
            parameter("colorsNumber", &Posterize::colorsNumber)
                .label("Colours")
                .text("Higher leaves more and finer steps; the stock uses 3 to 12")
                .suggest(3, 12));
    }
};

/// Shows only the edges.
struct FindEdges : VideoEffect
{
    EFFECT_FILTER_CLASS(FindEdges)

    /// A method of finding edges, 0 or 1. With another number the engine receives no settings at all, not even the
    /// intensity.
    enum class Method : std::int32_t;
    /// The known values of `type`.
    static constexpr Choice methodChoices[] = {{0, "Method0", "Method 0"}, {1, "Method1", "Method 1"}};

    Method type{};            ///< how edges are found; archived last, and hides the member function `type()`
    double sensibility = 1.0; ///< sensitivity to edges, in the engine's unit

    static constexpr auto describe()
    {
        return description("Shows only the outlines in the picture.", readsIntensity(),
            parameter("sensibility", &FindEdges::sensibility)
                .label("Sensitivity")
                .text("Higher also finds fainter outlines; the stock uses 0.6 to 1")
                .unit(Unit::engine)
                .suggest(0.6, 1),
            parameter("type", &FindEdges::type)
                .label("Method")
                .text("How outlines are found; any other number leaves all settings to the render engine")
                .choices(methodChoices)
                .fallback(-1)); // any number without a method makes the same, empty record
    }
};

/// Prints the picture in dots.
struct HalfTone : VideoEffect
{
    EFFECT_FILTER_CLASS(HalfTone)

    std::uint32_t bkgnd = 0; ///< colour of the paper, `0xAARRGGBB`; the alpha has no effect
    std::uint32_t dtclr = 0; ///< colour of the dots, `0xAARRGGBB`; the default is transparent
    double scale = 0.001;    ///< size of the dots, in the engine's unit
    std::int32_t angle = 30; ///< angle of the screen, in degrees

    static constexpr auto describe()
    {
        return description("Prints the picture in dots, like a newspaper.", readsIntensity(),
            parameter("bkgnd", &HalfTone::bkgnd)
                .label("Paper")
                .text("Colour between the dots; its alpha has no effect")
                .color(),
            parameter("dtclr", &HalfTone::dtclr)
                .label("Ink")
                .text("Colour of the dots; its alpha sets how opaque they are")
                .color(),
            parameter("scale", &HalfTone::scale)
                .label("Dot size")
                .text("Higher makes larger dots; 0.001 by default, the stock goes up to 0.008")
                .unit(Unit::engine)
                .suggest(0.001, 0.008),
            parameter("angle", &HalfTone::angle)
                .label("Screen angle")
                .text("Turns the rows of dots; 360 is a full turn")
                .unit(Unit::degrees)
                .suggest(0, 360));
    }
};

/// Splits the picture into tiles.
struct Mosaic : VideoEffect
{
    EFFECT_FILTER_CLASS(Mosaic)

    /// A form of tiles, 0 or 1. Another number leaves the settings at their default, 0.
    enum class Shape : std::int32_t;
    /// The known values of `type`.
    static constexpr Choice shapeChoices[] = {{0, "Shape0", "Shape 0"}, {1, "Shape1", "Shape 1"}};

    Shape type{};                ///< form of the tiles; hides the member function `type()`
    std::int32_t amountVer = 10; ///< number of tiles in a column
    std::int32_t amountHor = 10; ///< number of tiles in a row

    static constexpr auto describe()
    {
        return description("Splits the picture into tiles.", readsIntensity(),
            parameter("type", &Mosaic::type)
                .label("Shape")
                .text("What the tiles look like")
                .choices(shapeChoices)
                .fallback(0),
            parameter("amountVer", &Mosaic::amountVer)
                .label("Tiles down")
                .text("Higher makes more tiles from top to bottom; the stock uses 9 to 54")
                .suggest(9, 54),
            parameter("amountHor", &Mosaic::amountHor)
                .label("Tiles across")
                .text("Higher makes more tiles from left to right; the stock uses 10 to 96")
                .suggest(10, 96));
    }
};

/// Shows the picture through patterned glass.
struct GlassMosaic : VideoEffect
{
    EFFECT_FILTER_CLASS(GlassMosaic)

    double angle = 0.5;     ///< angle of the pattern, in the engine's unit
    double curve = 0.1;     ///< curvature of the glass, in the engine's unit
    double repeatsh = 0.25; ///< horizontal repetition of the pattern, in the engine's unit
    double repeatsv = 0.25; ///< vertical repetition of the pattern, in the engine's unit

    static constexpr auto describe()
    {
        return description("Shows the picture as if through a patterned pane.", readsIntensity(),
            parameter("angle", &GlassMosaic::angle)
                .label("Angle")
                .text("Turns the pattern; the stock uses 0 to 0.5")
                .unit(Unit::engine)
                .suggest(0, 0.5),
            parameter("curve", &GlassMosaic::curve)
                .label("Curvature")
                .text("Higher bends the pane more; the stock uses 0.05 to 0.1")
                .unit(Unit::engine)
                .suggest(0.05, 0.1),
            parameter("repeatsh", &GlassMosaic::repeatsh)
                .label("Horizontal repeat")
                .text("How the pattern recurs across the picture; the stock uses 0.08 to 0.25")
                .unit(Unit::engine)
                .suggest(0.08, 0.25),
            parameter("repeatsv", &GlassMosaic::repeatsv)
                .label("Vertical repeat")
                .text("How the pattern recurs down the picture; the stock uses 0.25 to 1")
                .unit(Unit::engine)
                .suggest(0.25, 1));
    }
};

/// Grows the dark or the bright parts of the picture.
struct Erosion : VideoEffect
{
    EFFECT_FILTER_CLASS(Erosion)

    /// Which parts grow, 0 or 1. With another number the engine receives no settings at all, not even the intensity.
    enum class Direction : std::int32_t;
    /// The known values of `type`.
    static constexpr Choice directionChoices[] = {{0, "Direction0", "Direction 0"}, {1, "Direction1", "Direction 1"}};

    Direction type{}; ///< which parts grow; hides the member function `type()`

    static constexpr auto describe()
    {
        return description("Grows the dark or the bright parts of the picture.", readsIntensity(),
            parameter("type", &Erosion::type)
                .label("Direction")
                .text("Which parts grow; any other number leaves all settings to the render engine")
                .choices(directionChoices)
                .fallback(-1)); // any number without a direction makes the same, empty record
    }
};

/// Scatters the pixels.
struct Diffuse : VideoEffect
{
    EFFECT_FILTER_CLASS(Diffuse)

    double level = 0.05; ///< how far pixels are scattered, in the engine's unit
    double prob = 0.25;  ///< probability that a pixel is scattered, 0 to 1

    static constexpr auto describe()
    {
        return description("Scatters the pixels, as frosted glass does.", readsIntensity(),
            parameter("level", &Diffuse::level)
                .label("Spread")
                .text("Higher scatters the pixels further; the stock uses 0.05 to 0.12")
                .unit(Unit::engine)
                .suggest(0.05, 0.12),
            parameter("prob", &Diffuse::prob)
                .label("Probability")
                .text("0 scatters none of the pixels, 1 all of them")
                .suggest(0, 1));
    }
};

/// Lays stripes over the picture.
struct Stripes : VideoEffect
{
    EFFECT_FILTER_CLASS(Stripes)

    std::int32_t count = 32; ///< number of stripes
    double deep = 0.999;     ///< depth of the stripes, in the engine's unit

    static constexpr auto describe()
    {
        return description("Lays parallel bands over the picture, like blinds.", readsIntensity(),
            parameter("count", &Stripes::count)
                .label("Count")
                .text("Higher lays more bands over the picture; the stock uses 12 to 32")
                .suggest(12, 32),
            parameter("deep", &Stripes::deep)
                .label("Depth")
                .text("Higher makes the bands stand out more; the stock uses 0.85 to 0.999")
                .unit(Unit::engine)
                .suggest(0.85, 0.999));
    }
};

/// Adds noise; the intensity is its level.
struct AddNoize : VideoEffect
{
    EFFECT_FILTER_CLASS(AddNoize)

    /// A kind of noise, 0 or 1. Another number leaves the settings at their default, 0.
    enum class Kind : std::int32_t;
    /// The known values of `type`.
    static constexpr Choice kindChoices[] = {{0, "Kind0", "Kind 0"}, {1, "Kind1", "Kind 1"}};

    Kind type{}; ///< kind of the noise; hides the member function `type()`

    static constexpr auto describe()
    {
        return description("Covers the picture with random grain.",
            readsIntensity().text("How much grain is added; the stock uses 0.12 to 1"),
            parameter("type", &AddNoize::type)
                .label("Kind of noise")
                .text("What the grain looks like")
                .choices(kindChoices)
                .fallback(0));
    }
};

} // namespace Effect
