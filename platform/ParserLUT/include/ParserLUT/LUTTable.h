/// @file
/// A colour lookup table.
#pragma once

#include <array>
#include <cstddef>
#include <string>
#include <vector>

namespace Quoril::Proc::LUT {

/// Red, green and blue. The nominal range is 0 to 1; values outside it are kept.
using Color = std::array<float, 3>;

/// A point of a curve.
struct Knot
{
    float input = 0;  ///< position of the knot
    float output = 0; ///< what the curve gives there
};

/// Straight lines between knots, whose inputs increase strictly, and level beyond the first and the last. An empty
/// curve gives its input back.
using Curve = std::vector<Knot>;

/// A lookup table, as a file has it. A colour passes through @ref shaper, is clamped to the domain, and is then looked
/// up in a regular grid of @ref entries that spans the domain: the first entry along an axis is at its lower end,
/// the last at its upper end.
///
/// Plain data without a lock: share it once it is filled and no longer changed. Everything in a table that came out of
/// a parser is finite.
struct LUTTable
{
    std::string format; ///< what the table was read from, such as "cube"
    std::string title;  ///< as the file has it, usually UTF-8 but not checked; empty if it has none

    /// Entries along the red, the green and the blue axis, each at least 2. A one-dimensional table has its length
    /// first and then 1, 1: each channel looks itself up in its own channel of the entries.
    std::array<int, 3> size{};

    /// The grid, red fastest and blue slowest: size[0] * size[1] * size[2] colours.
    std::vector<Color> entries;

    Color domainMin{0, 0, 0}; ///< below domainMax in every channel
    Color domainMax{1, 1, 1}; ///< above domainMin in every channel

    /// What the red, the green and the blue channel pass through before the grid.
    std::array<Curve, 3> shaper;

    bool videoRangeInput = false;  ///< the table expects colours in video range (64 to 940 in 10 bits)
    bool videoRangeOutput = false; ///< the table gives colours in video range

    bool Is1D() const { return size[1] == 1 && size[2] == 1; } ///< whether it is one-dimensional

    /// How many entries @ref size speaks of.
    std::size_t Count() const
    {
        return static_cast<std::size_t>(size[0]) * static_cast<std::size_t>(size[1]) *
               static_cast<std::size_t>(size[2]);
    }

    /// The index in @ref entries of the colour at a grid point. Indices count from 0.
    std::size_t Index(int red, int green, int blue) const
    {
        auto const at = [](int index) { return static_cast<std::size_t>(index); };
        return at(red) + at(size[0]) * (at(green) + at(size[1]) * at(blue));
    }
};

} // namespace Quoril::Proc::LUT
