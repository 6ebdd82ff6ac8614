/// @file
/// Light and objects over the picture. All there is to set is a preset, whose content the conversion knows; what an
/// unknown preset gives is told with the class.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Lets copies of an image fly through the picture.
struct FlyingObjects : VideoEffect
{
    EFFECT_FILTER_CLASS(FlyingObjects)

    /// The image, and how it flies. A preset before the first has the first one's image, one beyond the last the last
    /// one's, and both leave the flight to the render engine.
    enum class Preset : std::int32_t
    {
        Leaf = 0,
        Balloon = 1,
        Bunny = 2,
        Cupid = 3,
        GiftBox = 4,
        Ghost = 5,
        Heart = 6,
        Envelope = 7,
        PaperPlane = 8,
        Umbrella = 9,
        Rose = 10,
        Flower = 11,
        Star = 12,
        AirBalloon = 13,
        SwingingSnowflake = 14,
        SpinningSnowflake = 15,
    };

    Preset preset = Preset::Leaf;

    static constexpr auto describe()
    {
        return description("Lets copies of an image fly through the picture.", readsIntensity(),
            parameter("preset", &FlyingObjects::preset));
    }
};

/// Reflections in the lens.
struct LensFlare : VideoEffect
{
    EFFECT_FILTER_CLASS(LensFlare)

    /// 0 to 3, 6 and 7; any other leaves the choice to the render engine.
    enum class Preset : std::int32_t
    {
    };

    Preset Presets = {}; ///< named as in the archives

    static constexpr auto describe()
    {
        return description("Reflections in the lens.", readsIntensity(), parameter("Presets", &LensFlare::Presets));
    }
};

/// Light that leaked into the camera.
struct LightLeaks : VideoEffect
{
    EFFECT_FILTER_CLASS(LightLeaks)

    /// 0 to 15; any other counts as 0.
    enum class Preset : std::int32_t
    {
    };

    Preset Presets = {}; ///< named as in the archives

    static constexpr auto describe()
    {
        return description(
            "Light that leaked into the camera.", readsIntensity(), parameter("Presets", &LightLeaks::Presets));
    }
};

/// Colours the rim of the picture.
struct VignetteFilter : VideoEffect
{
    EFFECT_FILTER_CLASS(VignetteFilter)

    /// 0 to 8; any other leaves shape and colour to the render engine.
    enum class Preset : std::int32_t
    {
    };

    Preset preset = {};

    static constexpr auto describe()
    {
        return description(
            "Colours the rim of the picture.", readsIntensity(), parameter("preset", &VignetteFilter::preset));
    }
};

} // namespace Effect
