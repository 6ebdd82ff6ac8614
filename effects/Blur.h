/// @file
/// Effects that soften or sharpen the picture; the intensity says how much.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Softens the picture evenly. The intensity is divided by 20 for the engine: full strength is 20, not 1.
struct Blur : VideoEffect
{
    EFFECT_FILTER_CLASS(Blur)

    static constexpr auto describe()
    {
        return description("Softens the whole picture evenly.",
            readsIntensity().text("How soft the picture becomes; full strength is 20, not 1").suggest(0, 20));
    }
};

/// Softens the picture and gives points of light the shape of a mask.
struct BokehBlur : VideoEffect
{
    EFFECT_FILTER_CLASS(BokehBlur)

    /// The mask. Numbers below the first count as the first, numbers above the last as the last.
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

    /// The known values of `preset`.
    static constexpr Choice presetChoices[] = {
        {0, "Bang", "Burst"},
        {1, "Blossom", "Blossom"},
        {2, "Bokeh", "Disc"},
        {3, "Butterfly", "Butterfly"},
        {4, "Clover", "Clover"},
        {5, "Diamonds", "Diamond"},
        {6, "Heart", "Heart"},
        {7, "Ice", "Snow crystal"},
        {8, "Star", "Star"},
    };

    Preset preset = Preset::Bokeh; ///< shape of the points of light

    static constexpr auto describe()
    {
        return description("Softens the picture and turns points of light into hearts, stars or other shapes.",
            readsIntensity(),
            parameter("preset", &BokehBlur::preset)
                .label("Shape")
                .text("What points of light turn into")
                .choices(presetChoices)
                .beyond(Beyond::Nearest));
    }
};

/// Blurs moving parts of the picture.
struct MotionBlur : VideoEffect
{
    EFFECT_FILTER_CLASS(MotionBlur)

    static constexpr auto describe() { return description("Blurs moving parts of the picture.", readsIntensity()); }
};

/// Keeps a band of the picture sharp and softens what lies above and below. Each edge of the band is a line
/// a·x + b·y = c; the defaults are level lines, a tenth of the height from top and bottom.
struct TiltShift : VideoEffect
{
    EFFECT_FILTER_CLASS(TiltShift)

    double a1 = 0;     ///< upper line, coefficient of x
    double b1 = 1;     ///< upper line, coefficient of y
    double c1 = 0.1;   ///< upper line, right-hand side
    double a2 = 0;     ///< lower line, coefficient of x
    double b2 = 1;     ///< lower line, coefficient of y
    double c2 = 0.9;   ///< lower line, right-hand side
    double smns = 0.2; ///< width of the transition from sharp to soft at both edges

    static constexpr auto describe()
    {
        return description(
            "Keeps a band of the picture sharp and softens what lies above and below, as in pictures of miniatures.",
            readsIntensity(),
            parameter("a1", &TiltShift::a1).label("Upper line, a").text("Coefficient of x in a·x + b·y = c"),
            parameter("b1", &TiltShift::b1).label("Upper line, b").text("Coefficient of y in a·x + b·y = c"),
            parameter("c1", &TiltShift::c1)
                .label("Upper line, c")
                .text("Height of a level line, from 0 at the top to 1 at the bottom")
                .suggest(0, 1),
            parameter("a2", &TiltShift::a2).label("Lower line, a").text("Coefficient of x in a·x + b·y = c"),
            parameter("b2", &TiltShift::b2).label("Lower line, b").text("Coefficient of y in a·x + b·y = c"),
            parameter("c2", &TiltShift::c2)
                .label("Lower line, c")
                .text("Height of a level line, from 0 at the top to 1 at the bottom")
                .suggest(0, 1),
            parameter("smns", &TiltShift::smns)
                .label("Softness")
                .text("Width of the transition at both edges; the stock uses 0.2 to 0.3")
                .suggest(0, 1));
    }
};

/// Sharpens edges and fine detail.
struct Sharpen : VideoEffect
{
    EFFECT_FILTER_CLASS(Sharpen)

    static constexpr auto describe() { return description("Makes edges and fine detail crisper.", readsIntensity()); }
};

} // namespace Effect
