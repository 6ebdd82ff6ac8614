/// @file
/// The render engine's 3x3 matrix.
#pragma once

#include <array>
#include <cstddef>

#include <Utils/Export.h>

namespace Quoril::Core {

/// Nine doubles, row by row. Points are row vectors, so an affine matrix has its translation in the third row and
/// (0, 0, 1) in the third column. A default matrix is the identity.
class Matrix3x3
{
public:
    constexpr Matrix3x3() = default;
    /// The entries, row by row.
    constexpr Matrix3x3(
        double m0, double m1, double m2, double m3, double m4, double m5, double m6, double m7, double m8)
        : m_entries{m0, m1, m2, m3, m4, m5, m6, m7, m8}
    {}

    /// Entry `index`, 0 to 8, row by row.
    constexpr double operator[](std::size_t index) const { return m_entries[index]; }
    constexpr double & operator[](std::size_t index) { return m_entries[index]; } ///< to be written
    constexpr std::array<double, 9> const & entries() const { return m_entries; } ///< all nine, row by row

    /// This matrix applied first, then `next`.
    UTILS_EXPORT Matrix3x3 operator*(Matrix3x3 const & next) const;

    /// Exact, entry by entry.
    friend bool operator==(Matrix3x3 const & a, Matrix3x3 const & b) { return a.m_entries == b.m_entries; }
    friend bool operator!=(Matrix3x3 const & a, Matrix3x3 const & b) { return !(a == b); }

private:
    std::array<double, 9> m_entries{1, 0, 0, 0, 1, 0, 0, 0, 1};
};

} // namespace Quoril::Core
