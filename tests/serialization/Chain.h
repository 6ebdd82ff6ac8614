/// @file
/// Holders in holders.
#pragma once

#include <memory>

#include <effects/Holder.h>

namespace Testing {

/// A holder in a holder, `depth` of them, the outermost counted.
inline std::unique_ptr<Effect::EffectsHolder> chain(int depth)
{
    auto holder = std::make_unique<Effect::EffectsHolder>();
    if (depth > 1)
        holder->addEffect(chain(depth - 1));
    return holder;
}

} // namespace Testing
