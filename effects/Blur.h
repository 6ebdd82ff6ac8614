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
};

/// Blurs what moves.
struct MotionBlur : VideoEffect
{
    EFFECT_FILTER_CLASS(MotionBlur)
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
};

/// Sharpens the edges.
struct Sharpen : VideoEffect
{
    EFFECT_FILTER_CLASS(Sharpen)
};

} // namespace Effect
