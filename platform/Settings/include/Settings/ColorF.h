/// @file
/// The render engine's colour record.
#pragma once

namespace Quoril::Proc {

/// A colour with its alpha, each channel from 0 to 1.
struct ColorF
{
    float red = 0;   ///< from 0 to 1
    float green = 0; ///< from 0 to 1
    float blue = 0;  ///< from 0 to 1
    float alpha = 0; ///< from 0, transparent, to 1, opaque

    friend bool operator==(ColorF const & a, ColorF const & b)
    {
        return a.red == b.red && a.green == b.green && a.blue == b.blue && a.alpha == b.alpha;
    }
    friend bool operator!=(ColorF const & a, ColorF const & b) { return !(a == b); }
};

} // namespace Quoril::Proc
