/// @file
/// Colour filters: what works on the colours of the picture. Colours are `0xAARRGGBB`; the alpha plays no part.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Paints the picture in strokes.
struct ColorBrush : VideoEffect
{
    EFFECT_FILTER_CLASS(ColorBrush)

    enum class Brush : std::int32_t; ///< 0 and 1; another one leaves the engine to its default

    Brush pType{};
    std::int32_t angle = 45; ///< in degrees
    std::int32_t size = 10;
    std::int32_t rough = 10;

    static constexpr auto describe()
    {
        return description("Paints the picture in strokes.", readsIntensity(), parameter("pType", &ColorBrush::pType),
            parameter("angle", &ColorBrush::angle), parameter("size", &ColorBrush::size),
            parameter("rough", &ColorBrush::rough));
    }
};

/// One of the engine's ready-made gradings.
struct ColorFilter : VideoEffect
{
    EFFECT_FILTER_CLASS(ColorFilter)

    enum class Preset : std::int32_t; ///< 0 to 35; another one means 0

    Preset preset{};

    static constexpr auto describe()
    {
        return description(
            "One of the engine's ready-made gradings.", readsIntensity(), parameter("preset", &ColorFilter::preset));
    }
};

/// Burns the colours into each other.
struct ColorMixBurn : VideoEffect
{
    EFFECT_FILTER_CLASS(ColorMixBurn)

    static constexpr auto describe() { return description("Burns the colours into each other.", readsIntensity()); }
};

/// Keeps one colour and takes the others away.
struct ColorSelect : VideoEffect
{
    EFFECT_FILTER_CLASS(ColorSelect)

    std::uint32_t color = 0xFF00C800;
    std::int32_t hueTolerance = 80;
    std::int32_t noiseLevel = 0;    ///< of 256; nothing is known of a better start than none
    std::int32_t harshness = 3;     ///< percent
    std::int32_t transparency = 10; ///< percent

    static constexpr auto describe()
    {
        return description("Keeps one colour and takes the others away.", readsIntensity(),
            parameter("color", &ColorSelect::color), parameter("hueTolerance", &ColorSelect::hueTolerance),
            parameter("noiseLevel", &ColorSelect::noiseLevel), parameter("harshness", &ColorSelect::harshness),
            parameter("transparency", &ColorSelect::transparency));
    }
};

/// Exchanges the colours against one.
struct ColorMixExchange : VideoEffect
{
    EFFECT_FILTER_CLASS(ColorMixExchange)

    std::uint32_t color = 0;

    static constexpr auto describe()
    {
        return description(
            "Exchanges the colours against one.", readsIntensity(), parameter("color", &ColorMixExchange::color));
    }
};

/// Inverts the colours.
struct Invert : VideoEffect
{
    EFFECT_FILTER_CLASS(Invert)

    static constexpr auto describe() { return description("Inverts the colours.", readsIntensity()); }
};

} // namespace Effect
