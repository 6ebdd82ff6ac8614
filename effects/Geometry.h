/// @file
/// Changes of the whole picture's geometry. Their intensity has no effect.
#pragma once

#include <EditorModel/Transform.h>
#include <effects/Base.h>

namespace Effect {

/// Shows a part of the picture.
struct EFFECTS_API Crop : VideoEffect
{
    EFFECT_CLASS(Crop)
    Crop();

    Types::Transform transform; ///< places the picture in the frame, which cuts off what lies outside

    Crop * setTransform(Types::Transform const & value);

    static constexpr auto describe()
    {
        return description("Shows a part of the picture.", parameter("transform", &Crop::transform));
    }
};

/// Turns the picture around its middle.
struct EFFECTS_API Transpose : VideoEffect
{
    EFFECT_CLASS(Transpose)
    Transpose();

    int angle = 0; ///< degrees, any integer

    Transpose * setAngle(int value);

    static constexpr auto describe()
    {
        return description("Turns the picture around its middle.", parameter("angle", &Transpose::angle));
    }
};

/// Fills the frame beside a video that was shot upright.
struct EFFECTS_API FixVertVideo : VideoEffect
{
    EFFECT_CLASS(FixVertVideo)
    FixVertVideo();

    static constexpr auto describe() { return description("Fills the frame beside a video that was shot upright."); }
};

} // namespace Effect
