#include <Utils/Matrix3x3.h>

namespace Quoril::Core {

Matrix3x3 Matrix3x3::operator*(Matrix3x3 const & next) const
{
    Matrix3x3 product;
    for (std::size_t row = 0; row < 3; ++row)
        for (std::size_t column = 0; column < 3; ++column)
            product[3 * row + column] = m_entries[3 * row] * next[column] + m_entries[3 * row + 1] * next[3 + column] +
                                        m_entries[3 * row + 2] * next[6 + column];
    return product;
}

} // namespace Quoril::Core
