/// @file
/// Colour filters: what works on the colours of the picture. Colours are `0xAARRGGBB`; the alpha has no effect.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Paints the picture in strokes.
struct ColorBrush : VideoEffect
{
    EFFECT_FILTER_CLASS(ColorBrush)

    /// A brush, 0 or 1. Another number leaves the settings at their default, 0.
    enum class Brush : std::int32_t;
    /// The known values of `pType`.
    static constexpr Choice brushChoices[] = {{0, "Brush0", "Brush 0"}, {1, "Brush1", "Brush 1"}};

    Brush pType{};           ///< which brush
    std::int32_t angle = 45; ///< angle of the strokes, in degrees
    std::int32_t size = 10;  ///< size of the strokes, in the engine's unit
    std::int32_t rough = 10; ///< roughness of the strokes, in the engine's unit

    static constexpr auto describe()
    {
        return description("Paints the picture in strokes.", readsIntensity(),
            parameter("pType", &ColorBrush::pType)
                .label("Brush")
                .text("What the strokes look like")
                .choices(brushChoices)
                .fallback(0),
            parameter("angle", &ColorBrush::angle)
                .label("Angle")
                .text("Turns the strokes; 360 is a full turn")
                .unit(Unit::degrees)
                .suggest(0, 360),
            parameter("size", &ColorBrush::size)
                .label("Size")
                .text("Higher makes the strokes larger; the stock uses 10")
                .unit(Unit::engine),
            parameter("rough", &ColorBrush::rough)
                .label("Roughness")
                .text("Higher makes the strokes coarser; the stock uses 10")
                .unit(Unit::engine));
    }
};

/// One of the engine's ready-made gradings.
struct ColorFilter : VideoEffect
{
    EFFECT_FILTER_CLASS(ColorFilter)

    /// A grading of the engine, 0 to 35. Another number counts as 0.
    enum class Preset : std::int32_t;
    /// The known values of `preset`.
    static constexpr Choice presetChoices[] = {{0, "Preset0", "Preset 0"}, {1, "Preset1", "Preset 1"},
        {2, "Preset2", "Preset 2"}, {3, "Preset3", "Preset 3"}, {4, "Preset4", "Preset 4"}, {5, "Preset5", "Preset 5"},
        {6, "Preset6", "Preset 6"}, {7, "Preset7", "Preset 7"}, {8, "Preset8", "Preset 8"}, {9, "Preset9", "Preset 9"},
        {10, "Preset10", "Preset 10"}, {11, "Preset11", "Preset 11"}, {12, "Preset12", "Preset 12"},
        {13, "Preset13", "Preset 13"}, {14, "Preset14", "Preset 14"}, {15, "Preset15", "Preset 15"},
        {16, "Preset16", "Preset 16"}, {17, "Preset17", "Preset 17"}, {18, "Preset18", "Preset 18"},
        {19, "Preset19", "Preset 19"}, {20, "Preset20", "Preset 20"}, {21, "Preset21", "Preset 21"},
        {22, "Preset22", "Preset 22"}, {23, "Preset23", "Preset 23"}, {24, "Preset24", "Preset 24"},
        {25, "Preset25", "Preset 25"}, {26, "Preset26", "Preset 26"}, {27, "Preset27", "Preset 27"},
        {28, "Preset28", "Preset 28"}, {29, "Preset29", "Preset 29"}, {30, "Preset30", "Preset 30"},
        {31, "Preset31", "Preset 31"}, {32, "Preset32", "Preset 32"}, {33, "Preset33", "Preset 33"},
        {34, "Preset34", "Preset 34"}, {35, "Preset35", "Preset 35"}};

    Preset preset{}; ///< which grading

    static constexpr auto describe()
    {
        return description("Gives the picture one of the ready-made looks.", readsIntensity(),
            parameter("preset", &ColorFilter::preset)
                .label("Preset")
                .text("Which look the picture gets")
                .choices(presetChoices)
                .fallback(0));
    }
};

/// Burns the colours into each other. The intensity is its strength.
struct ColorMixBurn : VideoEffect
{
    EFFECT_FILTER_CLASS(ColorMixBurn)

    static constexpr auto describe()
    {
        return description("Darkens the picture by burning its colours into each other.", readsIntensity());
    }
};

/// Keeps one colour and removes the others.
struct ColorSelect : VideoEffect
{
    EFFECT_FILTER_CLASS(ColorSelect)

    std::uint32_t color = 0xFF00C800; ///< colour that is kept
    std::int32_t hueTolerance = 80;   ///< range of hues around the colour, in the engine's unit
    std::int32_t noiseLevel = 0;      ///< level of noise, 0 to 256; passed on as a share of 256
    std::int32_t harshness = 3;       ///< hardness of the border between the colours, in percent
    std::int32_t transparency = 10;   ///< transparency, in percent

    static constexpr auto describe()
    {
        return description("Keeps one colour and removes the others.", readsIntensity(),
            parameter("color", &ColorSelect::color).label("Colour").text("What is kept").color(),
            parameter("hueTolerance", &ColorSelect::hueTolerance)
                .label("Hue tolerance")
                .text("Higher also keeps colours that differ more from the chosen one; the stock uses 40 to 80")
                .unit(Unit::engine)
                .suggest(40, 80),
            parameter("noiseLevel", &ColorSelect::noiseLevel)
                .label("Noise level")
                .text("Higher tolerates more noise in the picture; counted in 256ths")
                .suggest(0, 256),
            parameter("harshness", &ColorSelect::harshness)
                .label("Edge hardness")
                .text("Higher makes the edges of what remains harder")
                .unit(Unit::percent)
                .suggest(0, 100),
            parameter("transparency", &ColorSelect::transparency)
                .label("Transparency")
                .text("Higher lets more of the other colours show through")
                .unit(Unit::percent)
                .suggest(0, 100));
    }
};

/// Exchanges the colours of the picture for one.
struct ColorMixExchange : VideoEffect
{
    EFFECT_FILTER_CLASS(ColorMixExchange)

    std::uint32_t color = 0; ///< colour that replaces the others

    static constexpr auto describe()
    {
        return description("Exchanges the colours of the picture for one.", readsIntensity(),
            parameter("color", &ColorMixExchange::color).label("Colour").text("What replaces the others").color());
    }
};

/// Inverts the colours.
struct Invert : VideoEffect
{
    EFFECT_FILTER_CLASS(Invert)

    static constexpr auto describe()
    {
        return description("Turns the colours into their opposites, like a photographic negative.", readsIntensity());
    }
};

} // namespace Effect
