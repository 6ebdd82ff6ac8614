/// @file
/// Bending and shaking the picture. The numbers go to the render engine as they are.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Turns the picture around its middle, the middle further than the rim.
struct Twirl : VideoEffect
{
    EFFECT_FILTER_CLASS(Twirl)

    double startRotate = 0;
    double speedRotate = 0.1;
    double startTwirl = 0;
    double speedTwirl = 0.2;

    static constexpr auto describe()
    {
        return description("Turns the picture around its middle, the middle further than the rim.", readsIntensity(),
            parameter("startRotate", &Twirl::startRotate), parameter("speedRotate", &Twirl::speedRotate),
            parameter("startTwirl", &Twirl::startTwirl), parameter("speedTwirl", &Twirl::speedTwirl));
    }
};

/// Turning echoes of the picture.
struct Vertigo : VideoEffect
{
    EFFECT_FILTER_CLASS(Vertigo)

    double scale = 0.07;
    double speed = 0.05;

    static constexpr auto describe()
    {
        return description("Turning echoes of the picture.", readsIntensity(), parameter("scale", &Vertigo::scale),
            parameter("speed", &Vertigo::speed));
    }
};

/// View through a fish-eye lens.
struct FishEye : VideoEffect
{
    EFFECT_FILTER_CLASS(FishEye)

    double deviation = -0.04;

    static constexpr auto describe()
    {
        return description(
            "View through a fish-eye lens.", readsIntensity(), parameter("deviation", &FishEye::deviation));
    }
};

/// Barrel or pincushion distortion.
struct LensDistortion : VideoEffect
{
    EFFECT_FILTER_CLASS(LensDistortion)

    double zoom = 0.4;
    double distortion = -0.2;
    std::int32_t memberCount = 1; ///< terms of the distortion's polynomial

    static constexpr auto describe()
    {
        return description("Barrel or pincushion distortion.", readsIntensity(),
            parameter("zoom", &LensDistortion::zoom), parameter("distortion", &LensDistortion::distortion),
            parameter("memberCount", &LensDistortion::memberCount));
    }
};

/// The camera in an unsteady hand; at rest by default.
struct CameraShake : VideoEffect
{
    EFFECT_FILTER_CLASS(CameraShake)

    double shuft_x = 0; ///< shift; the spelling is that of the archives
    double shuft_y = 0;
    double rotate = 0;
    double frequency = 0;
    double persistence = 0;

    static constexpr auto describe()
    {
        return description("The camera in an unsteady hand; at rest by default.", readsIntensity(),
            parameter("shuft_x", &CameraShake::shuft_x), parameter("shuft_y", &CameraShake::shuft_y),
            parameter("rotate", &CameraShake::rotate), parameter("frequency", &CameraShake::frequency),
            parameter("persistence", &CameraShake::persistence));
    }
};

/// Splits the colours towards the rim.
struct ChromaticAberration : VideoEffect
{
    EFFECT_FILTER_CLASS(ChromaticAberration)

    static constexpr auto describe() { return description("Splits the colours towards the rim.", readsIntensity()); }
};

} // namespace Effect
