#include <ConfInt/ImplNames.h>
#include <ConfInt/Transform2D.h>

#include <cmath>
#include <limits>

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

TEST(Transform2D, RotationKeepsThePrecisionOfItsAngle)
{
    struct
    {
        double angle, cosine, sine;
    } const rows[] = {
        {1, 0.54030230586813971740, 0.84147098480789650665},
        {-1, 0.54030230586813971740, -0.84147098480789650665},
        // In single precision these would be other angles.
        {0.1, 0.99500416527802576554, 0.099833416646828157831},
        {37480660.27288564, -0.60181501829158921523, 0.79863551370991143665},
    };
    for (auto const & row : rows) {
        auto const matrix = Quoril::Conf::Transform2D::MakeRotation(row.angle);
        EXPECT_DOUBLE_EQ(matrix[0], row.cosine) << row.angle;
        EXPECT_DOUBLE_EQ(matrix[1], row.sine) << row.angle;
        EXPECT_DOUBLE_EQ(matrix[3], -row.sine) << row.angle;
        EXPECT_DOUBLE_EQ(matrix[4], row.cosine) << row.angle;
    }
}

TEST(Transform2D, RotationByNoAngleIsNone)
{
    for (double const angle : {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
        auto const matrix = Quoril::Conf::Transform2D::MakeRotation(angle);
        for (std::size_t const entry : {0U, 1U, 3U, 4U})
            EXPECT_TRUE(std::isnan(matrix[entry])) << entry;
        EXPECT_EQ(matrix[8], 1);
    }
}

} // namespace
