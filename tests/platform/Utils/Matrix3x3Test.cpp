#include <Utils/Matrix3x3.h>

#include <cmath>
#include <cstddef>
#include <limits>

#include <gtest/gtest.h>

namespace {

using Quoril::Core::Matrix3x3;

TEST(Matrix3x3, DefaultIsIdentity)
{
    EXPECT_EQ(Matrix3x3(), Matrix3x3(1, 0, 0, 0, 1, 0, 0, 0, 1));
}

TEST(Matrix3x3, EntriesRunRowByRow)
{
    Matrix3x3 const matrix(1, 2, 3, 4, 5, 6, 7, 8, 9);
    EXPECT_EQ(matrix[2], 3);
    EXPECT_EQ(matrix[6], 7);
    EXPECT_NE(matrix, Matrix3x3(1, 2, 3, 4, 5, 6, 7, 8, 10));
}

TEST(Matrix3x3, ProductAppliesTheLeftFirst)
{
    Matrix3x3 const scale(2, 0, 0, 0, 3, 0, 0, 0, 1);
    Matrix3x3 const move(1, 0, 0, 0, 1, 0, 10, 20, 1);
    // Scaled first, the translation stays whole; moved first, it is scaled too.
    EXPECT_EQ(scale * move, Matrix3x3(2, 0, 0, 0, 3, 0, 10, 20, 1));
    EXPECT_EQ(move * scale, Matrix3x3(2, 0, 0, 0, 3, 0, 20, 60, 1));
}

TEST(Matrix3x3, ProductIsOfRowsAndColumns)
{
    Matrix3x3 const left(1, 2, 3, 4, 5, 6, 7, 8, 9);
    Matrix3x3 const right(2, 3, 5, 7, 11, 13, 17, 19, 23);
    EXPECT_EQ(left * right, Matrix3x3(67, 82, 100, 145, 181, 223, 223, 280, 346));
    EXPECT_EQ(left * Matrix3x3(), left);
    EXPECT_EQ(Matrix3x3() * right, right);
}

TEST(Matrix3x3, ComparesEveryEntryExactly)
{
    for (std::size_t entry = 0; entry < 9; ++entry) {
        SCOPED_TRACE(entry);
        Matrix3x3 const plain(1, 2, 3, 4, 5, 6, 7, 8, 9);
        Matrix3x3 changed = plain;
        EXPECT_TRUE(changed == plain);
        EXPECT_FALSE(changed != plain);
        changed[entry] = std::nextafter(plain[entry], 0);
        EXPECT_FALSE(changed == plain);
        EXPECT_TRUE(changed != plain);
        EXPECT_EQ(changed.entries()[entry], std::nextafter(static_cast<double>(entry + 1), 0));
        changed[entry] = std::numeric_limits<double>::quiet_NaN();
        EXPECT_FALSE(changed == changed);
    }
    EXPECT_EQ(Matrix3x3(0, 0, 0, 0, 0, 0, 0, 0, 0), Matrix3x3(-0.0, 0, 0, 0, 0, 0, 0, 0, 0));
}

} // namespace
