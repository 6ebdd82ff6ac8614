/// @file
/// Flipped and mirrored pictures. The effects ignore the intensity.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Flips the picture upside down, left to right, or both.
struct Flip : VideoEffect
{
    EFFECT_CLASS(Flip)
    Flip();

    bool vertical = false;   ///< whether the picture is upside down
    bool horizontal = false; ///< whether left and right are swapped

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("Turns the picture upside down or swaps left and right.",
            parameter("vertical", &Flip::vertical).label("Vertical").text("Turns the picture upside down"),
            parameter("horizontal", &Flip::horizontal).label("Horizontal").text("Swaps left and right"));
    }
};

/// Repeats one half of the picture mirrored in the other half, on either axis.
struct Mirror : VideoEffect
{
    EFFECT_CLASS(Mirror)
    Mirror();

    /// The half that is repeated along one axis. Other numbers leave the default of the engine's settings.
    enum class Half : std::int32_t
    {
        None = 0, ///< no mirror
        First = 1,
        Second = 2
    };

    /// The known values of `vertical` and `horizontal`.
    static constexpr Choice halfChoices[] = {
        {0, "None", "None"}, {1, "First", "First half"}, {2, "Second", "Second half"}};

    Half vertical = Half::None;   ///< the half of the height that is repeated in the other half
    Half horizontal = Half::None; ///< the half of the width that is repeated in the other half

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("Repeats one half of the picture in the other half as in a mirror.",
            parameter("vertical", &Mirror::vertical)
                .label("Vertical")
                .text("Half of the height that the mirror shows")
                .choices(halfChoices)
                .fallback(0),
            parameter("horizontal", &Mirror::horizontal)
                .label("Horizontal")
                .text("Half of the width that the mirror shows")
                .choices(halfChoices)
                .fallback(0));
    }
};

} // namespace Effect
