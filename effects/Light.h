/// @file
/// Light and objects over the picture. The only own parameter of each effect is a preset, whose content the conversion
/// knows; each class says what an unknown preset does.
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
    /// The known values of `preset`.
    static constexpr Choice presetChoices[] = {
        {0, "Leaf", "Leaf"},
        {1, "Balloon", "Balloon"},
        {2, "Bunny", "Bunny"},
        {3, "Cupid", "Cupid"},
        {4, "GiftBox", "Gift box"},
        {5, "Ghost", "Ghost"},
        {6, "Heart", "Heart"},
        {7, "Envelope", "Envelope"},
        {8, "PaperPlane", "Paper plane"},
        {9, "Umbrella", "Umbrella"},
        {10, "Rose", "Rose"},
        {11, "Flower", "Flower"},
        {12, "Star", "Star"},
        {13, "AirBalloon", "Hot-air balloon"},
        {14, "SwingingSnowflake", "Swinging snowflake"},
        {15, "SpinningSnowflake", "Spinning snowflake"},
    };

    Preset preset = Preset::Leaf; ///< which image flies, and how

    static constexpr auto describe()
    {
        // There are two records for numbers without a preset: that of -1 before the first one, that of 16 beyond the
        // last. Hence these bounds, one further than the choices.
        return description("Lets many copies of a small image fly through the picture.", readsIntensity(),
            parameter("preset", &FlyingObjects::preset)
                .label("Object")
                .text("What flies; any other number takes the nearest image and leaves its flight to the render engine")
                .choices(presetChoices)
                .range(-1, 16)
                .beyond(Beyond::Clamped));
    }
};

/// Reflections in the lens.
struct LensFlare : VideoEffect
{
    EFFECT_FILTER_CLASS(LensFlare)

    /// A flare of the engine: 0 to 3, 6 and 7. Any other number leaves the settings at their default, 0.
    enum class Preset : std::int32_t
    {
    };
    /// The known values of `Presets`.
    static constexpr Choice presetChoices[] = {{0, "Preset0", "Preset 0"}, {1, "Preset1", "Preset 1"},
        {2, "Preset2", "Preset 2"}, {3, "Preset3", "Preset 3"}, {6, "Preset6", "Preset 6"}, {7, "Preset7", "Preset 7"}};

    Preset Presets = {}; ///< which flare; named as in the archives

    static constexpr auto describe()
    {
        return description("Adds the reflections of a bright light in the lens.", readsIntensity(),
            parameter("Presets", &LensFlare::Presets)
                .label("Preset")
                .text("What the reflections look like")
                .choices(presetChoices)
                .fallback(0));
    }
};

/// Light that leaked into the camera.
struct LightLeaks : VideoEffect
{
    EFFECT_FILTER_CLASS(LightLeaks)

    /// A leak of the engine, 0 to 15. Any other number counts as 0.
    enum class Preset : std::int32_t
    {
    };
    /// The known values of `Presets`.
    static constexpr Choice presetChoices[] = {{0, "Preset0", "Preset 0"}, {1, "Preset1", "Preset 1"},
        {2, "Preset2", "Preset 2"}, {3, "Preset3", "Preset 3"}, {4, "Preset4", "Preset 4"}, {5, "Preset5", "Preset 5"},
        {6, "Preset6", "Preset 6"}, {7, "Preset7", "Preset 7"}, {8, "Preset8", "Preset 8"}, {9, "Preset9", "Preset 9"},
        {10, "Preset10", "Preset 10"}, {11, "Preset11", "Preset 11"}, {12, "Preset12", "Preset 12"},
        {13, "Preset13", "Preset 13"}, {14, "Preset14", "Preset 14"}, {15, "Preset15", "Preset 15"}};

    Preset Presets = {}; ///< which leak; named as in the archives

    static constexpr auto describe()
    {
        return description("Adds glowing patches, as from light that fell into the camera.", readsIntensity(),
            parameter("Presets", &LightLeaks::Presets)
                .label("Preset")
                .text("What the glow looks like")
                .choices(presetChoices)
                .fallback(0));
    }
};

/// Colours the rim of the picture.
struct VignetteFilter : VideoEffect
{
    EFFECT_FILTER_CLASS(VignetteFilter)

    /// Colour, opacity and form of the rim. Any other number leaves them to the render engine.
    enum class Preset : std::int32_t
    {
    };
    /// The known values of `preset`. Faint is an alpha of 100, strong of 200, opaque of 255; the engine defines its
    /// modes.
    static constexpr Choice presetChoices[] = {
        {0, "FaintBlack", "Faint black"},
        {1, "StrongBlack", "Strong black"},
        {2, "FaintPink", "Faint pink"},
        {3, "StrongWhite", "Strong white"},
        {4, "OpaqueBlack", "Opaque black"},
        {5, "FaintBlackMode4", "Faint black, mode 4"},
        {6, "OpaqueBlackMode4", "Opaque black, mode 4"},
        {7, "StrongBlackMode5", "Strong black, mode 5"},
        {8, "FaintBlackMode5", "Faint black, mode 5"},
    };

    Preset preset = {}; ///< which rim

    static constexpr auto describe()
    {
        return description("Darkens or tints the rim of the picture.", readsIntensity(),
            parameter("preset", &VignetteFilter::preset)
                .label("Preset")
                .text("Colour, strength and form of the rim; any other number leaves them to the render engine")
                .choices(presetChoices)
                .fallback(-1)); // any number without a preset makes the same record
    }
};

} // namespace Effect
