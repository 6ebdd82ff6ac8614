/// @file
/// Changes of the whole picture's geometry. They ignore the intensity.
#pragma once

#include <EditorModel/Transform.h>
#include <effects/Base.h>

namespace Effect {

/// Shows a part of the picture and cuts off the rest.
struct EFFECTS_API Crop : VideoEffect
{
    EFFECT_CLASS(Crop)
    Crop();

    /// Places the picture in the frame, which cuts off what lies outside. By default, the identity.
    Types::Transform transform;

    Crop * setTransform(Types::Transform const & value);

    static constexpr auto describe()
    {
        return description("Shows a part of the picture and cuts off the rest.",
            parameter("transform", &Crop::transform)
                .label("Placement")
                .text("Size and position of the picture in the frame; what lies outside is cut off"));
    }
};

/// Rotates the picture around its centre.
struct EFFECTS_API Transpose : VideoEffect
{
    EFFECT_CLASS(Transpose)
    Transpose();

    int angle = 0; ///< degrees, clockwise; any integer, not reduced to one turn

    Transpose * setAngle(int value);

    static constexpr auto describe()
    {
        return description("Rotates the picture around its centre, by a quarter turn or any other angle.",
            parameter("angle", &Transpose::angle)
                .label("Angle")
                .text("Turns the picture clockwise; 360 is a full turn")
                .unit(Unit::degrees)
                .suggest(0, 360));
    }
};

/// Fills the empty parts of the frame beside a video that was shot upright.
struct EFFECTS_API FixVertVideo : VideoEffect
{
    EFFECT_CLASS(FixVertVideo)
    FixVertVideo();

    static constexpr auto describe()
    {
        return description("Fills the empty sides beside a video that was shot upright.");
    }
};

} // namespace Effect
