/// @file
/// Softening and sharpening, as far as the intensity says.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Softens the picture evenly. Its intensity goes further than the others': 20 is what 1 is to them.
struct Blur : VideoEffect
{
    EFFECT_FILTER_CLASS(Blur)

    static constexpr auto describe() { return description("Softens the picture evenly.", readsIntensity()); }
};

/// Softens the picture, points of light taking the shape of a mask.
struct BokehBlur : VideoEffect
{
    EFFECT_FILTER_CLASS(BokehBlur)

    /// The mask. One before the first counts as the first, one beyond the last as the last.
    enum class Preset : std::int32_t
    {
        Bang = 0,
        Blossom = 1,
        Bokeh = 2,
        Butterfly = 3,
        Clover = 4,
        Diamonds = 5,
        Heart = 6,
        Ice = 7,
        Star = 8,
    };

    Preset preset = Preset::Bokeh;

    static constexpr auto describe()
    {
        return description("Softens the picture, points of light taking the shape of a mask.", readsIntensity(),
            parameter("preset", &BokehBlur::preset));
    }
};

/// Blurs what moves.
struct MotionBlur : VideoEffect
{
    EFFECT_FILTER_CLASS(MotionBlur)

    static constexpr auto describe() { return description("Blurs what moves.", readsIntensity()); }
};

/// Keeps a band of the picture sharp and softens what lies above and below. Each edge of the band is a line, given by
/// the three coefficients of its equation; the defaults are level lines, a tenth of the height from top and bottom.
struct TiltShift : VideoEffect
{
    EFFECT_FILTER_CLASS(TiltShift)

    double a1 = 0; ///< the upper line: a1, b1, c1
    double b1 = 1;
    double c1 = 0.1;
    double a2 = 0; ///< the lower line: a2, b2, c2
    double b2 = 1;
    double c2 = 0.9;
    double smns = 0.2; ///< smoothness of the edges

    static constexpr auto describe()
    {
        return description("Keeps a band of the picture sharp and softens what lies above and below.", readsIntensity(),
            parameter("a1", &TiltShift::a1), parameter("b1", &TiltShift::b1), parameter("c1", &TiltShift::c1),
            parameter("a2", &TiltShift::a2), parameter("b2", &TiltShift::b2), parameter("c2", &TiltShift::c2),
            parameter("smns", &TiltShift::smns));
    }
};

/// Sharpens the edges.
struct Sharpen : VideoEffect
{
    EFFECT_FILTER_CLASS(Sharpen)

    static constexpr auto describe() { return description("Sharpens the edges.", readsIntensity()); }
};

} // namespace Effect
