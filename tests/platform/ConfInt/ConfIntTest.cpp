#include <ConfInt/ImplNames.h>
#include <ConfInt/Transform2D.h>

#include <gtest/gtest.h>

namespace {

TEST(ImplNames, Texts)
{
    EXPECT_EQ(Quoril::Proc::ImplNames::DEFAULT, "DEFAULT");
    EXPECT_EQ(Quoril::Proc::ImplNames::OGL, "OGL");
    EXPECT_EQ(Quoril::Proc::ImplNames::SPEEX, "SPEEX");
}

TEST(Transform2D, RotationByAThirtiethOfATurnAndMore)
{
    // 30 degrees: cos = sqrt(3) / 2, sin = 1 / 2.
    auto const matrix = Quoril::Conf::Transform2D::MakeRotation(0.52359877559829887);
    EXPECT_NEAR(matrix[0], 0.86602540378443865, 1e-15);
    EXPECT_NEAR(matrix[1], 0.5, 1e-15);
    EXPECT_NEAR(matrix[3], -0.5, 1e-15);
    EXPECT_NEAR(matrix[4], 0.86602540378443865, 1e-15);
    EXPECT_EQ(matrix[2], 0);
    EXPECT_EQ(matrix[5], 0);
    EXPECT_EQ(matrix[6], 0);
    EXPECT_EQ(matrix[7], 0);
    EXPECT_EQ(matrix[8], 1);
}

TEST(Transform2D, NoRotationIsTheIdentity)
{
    EXPECT_EQ(Quoril::Conf::Transform2D::MakeRotation(0), Quoril::Core::Matrix3x3());
}

} // namespace
