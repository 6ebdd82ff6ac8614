#include <Utils/Matrix3x3.h>

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

} // namespace
