/// @file
/// Effects that bend or shake the picture. The numbers are passed to the render engine unchanged and in its own units,
/// unless a field says otherwise.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Turns the picture around its centre, the middle further than the rim.
struct Twirl : VideoEffect
{
    EFFECT_FILTER_CLASS(Twirl)

    double startRotate = 0;   ///< rotation of the whole picture at the beginning
    double speedRotate = 0.1; ///< speed of the rotation
    double startTwirl = 0;    ///< further rotation of the middle at the beginning
    double speedTwirl = 0.2;  ///< speed at which that grows

    static constexpr auto describe()
    {
        return description("Twists the picture around its centre like a whirlpool.", readsIntensity(),
            parameter("startRotate", &Twirl::startRotate)
                .label("Initial rotation")
                .text("How far the whole picture is turned at the beginning")
                .unit(Unit::engine),
            parameter("speedRotate", &Twirl::speedRotate)
                .label("Rotation speed")
                .text("Higher turns the whole picture faster; the stock goes up to 0.25")
                .unit(Unit::engine)
                .suggest(0, 0.25),
            parameter("startTwirl", &Twirl::startTwirl)
                .label("Initial twist")
                .text("How far the middle is twisted at the beginning; the stock goes up to 0.4")
                .unit(Unit::engine)
                .suggest(0, 0.4),
            parameter("speedTwirl", &Twirl::speedTwirl)
                .label("Twist speed")
                .text("Higher twists the middle faster; the stock goes up to 0.5")
                .unit(Unit::engine)
                .suggest(0, 0.5));
    }
};

/// Adds turning echoes of the picture.
struct Vertigo : VideoEffect
{
    EFFECT_FILTER_CLASS(Vertigo)

    double scale = 0.07; ///< size of the echoes' movement
    double speed = 0.05; ///< speed of the echoes' movement

    static constexpr auto describe()
    {
        return description("Surrounds the picture with turning echoes of itself.", readsIntensity(),
            parameter("scale", &Vertigo::scale)
                .label("Scale")
                .text("Higher moves the echoes further; the stock goes up to 0.07")
                .unit(Unit::engine)
                .suggest(0, 0.07),
            parameter("speed", &Vertigo::speed)
                .label("Speed")
                .text("Higher moves the echoes faster; the stock goes up to 0.05")
                .unit(Unit::engine)
                .suggest(0, 0.05));
    }
};

/// Bends the picture like a fish-eye lens.
struct FishEye : VideoEffect
{
    EFFECT_FILTER_CLASS(FishEye)

    double deviation = -0.04; ///< strength of the curvature

    static constexpr auto describe()
    {
        return description("Shows the picture as through a fish-eye lens.", readsIntensity(),
            parameter("deviation", &FishEye::deviation)
                .label("Curvature")
                .text("Further below 0 bends the picture more; the stock goes down to -0.12")
                .unit(Unit::engine)
                .suggest(-0.12, 0));
    }
};

/// Barrel or pincushion distortion.
struct LensDistortion : VideoEffect
{
    EFFECT_FILTER_CLASS(LensDistortion)

    double zoom = 0.4;            ///< enlargement of the picture
    double distortion = -0.2;     ///< barrel below 0, pincushion above
    std::int32_t memberCount = 1; ///< number of terms of the distortion's polynomial

    static constexpr auto describe()
    {
        return description("Bends straight lines outwards or inwards, as simple lenses do.", readsIntensity(),
            parameter("zoom", &LensDistortion::zoom)
                .label("Zoom")
                .text("Higher enlarges the picture; the stock uses 0.3 to 0.5")
                .unit(Unit::engine)
                .suggest(0.3, 0.5),
            parameter("distortion", &LensDistortion::distortion)
                .label("Curvature")
                .text("Below 0 lines bulge outwards, above 0 they bend inwards; the stock uses -0.35 to 0.2")
                .unit(Unit::engine)
                .suggest(-0.35, 0.2),
            parameter("memberCount", &LensDistortion::memberCount)
                .label("Terms")
                .text("Number of terms in the formula of the curve; the stock uses 1 and 2")
                .suggest(1, 2));
    }
};

/// Moves the picture like a camera in an unsteady hand; at rest by default.
struct CameraShake : VideoEffect
{
    EFFECT_FILTER_CLASS(CameraShake)

    double shuft_x = 0;     ///< horizontal shift; the spelling is that of the archives
    double shuft_y = 0;     ///< vertical shift
    double rotate = 0;      ///< rotation
    double frequency = 0;   ///< how often the direction changes
    double persistence = 0; ///< how long a movement lasts

    static constexpr auto describe()
    {
        return description("Shakes the picture as if the camera were held in an unsteady hand.", readsIntensity(),
            parameter("shuft_x", &CameraShake::shuft_x)
                .label("Horizontal shift")
                .text("How far the picture moves sideways; the stock goes up to 0.03")
                .unit(Unit::engine)
                .suggest(0, 0.03),
            parameter("shuft_y", &CameraShake::shuft_y)
                .label("Vertical shift")
                .text("How far the picture moves up and down; the stock goes up to 0.04")
                .unit(Unit::engine)
                .suggest(0, 0.04),
            parameter("rotate", &CameraShake::rotate)
                .label("Rotation")
                .text("How far the picture turns; the stock goes up to 1.5")
                .unit(Unit::engine)
                .suggest(0, 1.5),
            parameter("frequency", &CameraShake::frequency)
                .label("Frequency")
                .text("Higher shakes faster; the stock goes up to 7")
                .unit(Unit::engine)
                .suggest(0, 7),
            parameter("persistence", &CameraShake::persistence)
                .label("Persistence")
                .text("Higher lets each movement last longer; the stock goes up to 0.6")
                .unit(Unit::engine)
                .suggest(0, 0.6));
    }
};

/// Separates the colours towards the rim.
struct ChromaticAberration : VideoEffect
{
    EFFECT_FILTER_CLASS(ChromaticAberration)

    static constexpr auto describe()
    {
        return description("Adds colour fringes towards the rim, as simple lenses do.", readsIntensity());
    }
};

} // namespace Effect
