/// @file
/// A colour filter that the library converts but never makes: its class is a host's.
#pragma once

#include <cstdint>

#include <effects/Base.h>

namespace Effect {

/// Mixes a field of one colour in. What the host's class must begin with: `VideoEffect` as its first base, then these
/// fields. It may override and add what it likes. Without a host's class no object passes the cast to this one.
///
/// A cast finds an object's class by its type information, and the object's comes from the host, unknown when this
/// library is linked. What makes the two one and the same, and is easily lost:
/// - No virtual function is declared here. A class with one that is not inline has its type information where that one
///   is defined: the library would refer to the host's, and would not load into a host that has none. As it is, the
///   compiler emits a weak one where the cast names it.
/// - The class is exported, here and by the host. The loader then merges the two; and if it does not, for a plug-in
///   that keeps its symbols to itself, the C++ runtime still compares them by name, which libstdc++ does always.
/// - The class is not `final`. The compiler could replace a cast to a final class by a comparison with its virtual
///   table, and there is none.
struct EFFECTS_API ColorMixField : VideoEffect
{
    ColorMixField() = delete;

    double threshold;    ///< threshold of the mixture, in the engine's unit
    double contrast;     ///< contrast of the mixture, in the engine's unit
    std::uint32_t color; ///< `0xAARRGGBB`; the alpha has no effect
};

} // namespace Effect
