/// @file
/// Flipped and mirrored pictures. Their intensity has no effect.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Turns the picture over, on either axis.
struct Flip : VideoEffect
{
    EFFECT_CLASS(Flip)
    Flip();

    bool vertical = false;   ///< upside down
    bool horizontal = false; ///< left and right exchanged

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("Turns the picture over, on either axis.", parameter("vertical", &Flip::vertical),
            parameter("horizontal", &Flip::horizontal));
    }
};

/// Repeats a half of the picture in the other half as in a mirror, on either axis.
struct Mirror : VideoEffect
{
    EFFECT_CLASS(Mirror)
    Mirror();

    /// What the mirror shows, along one axis. Other numbers leave the axis to the engine.
    enum class Half : std::int32_t
    {
        None = 0, ///< no mirror
        First = 1,
        Second = 2
    };

    Half vertical = Half::None;
    Half horizontal = Half::None;

    QString defaultTag() const override;

    static constexpr auto describe()
    {
        return description("Repeats a half of the picture in the other half as in a mirror, on either axis.",
            parameter("vertical", &Mirror::vertical), parameter("horizontal", &Mirror::horizontal));
    }
};

} // namespace Effect
