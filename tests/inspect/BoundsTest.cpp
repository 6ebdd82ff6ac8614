#include <inspect/Bounds.h>

#include <cmath>
#include <limits>

#include <gmock/gmock.h>

namespace {

using namespace Effect::Inspect;
using Effect::Schema::Kind;
using Effect::Schema::Parameter;
using nlohmann::json;

TEST(Bounds, NumbersAreThoseOfTheArchives)
{
    EXPECT_EQ(numberIn(3), 3.0);
    EXPECT_EQ(numberIn(0.5), 0.5);
    EXPECT_EQ(numberIn("-Infinity"), -std::numeric_limits<double>::infinity());
    EXPECT_TRUE(std::isnan(numberIn("NaN").value()));
    for (json const & other : {json("3"), json(nullptr), json(true), json::array({1})})
        EXPECT_EQ(numberIn(other), std::nullopt) << other;
}

TEST(Bounds, ABoundIsWithin)
{
    Parameter parameter;
    parameter.kind = Kind::Real;
    EXPECT_EQ(boundBefore(1e300, parameter), std::nullopt);
    parameter.minimum = -1;
    parameter.maximum = 2;
    EXPECT_EQ(boundBefore(-1, parameter), std::nullopt);
    EXPECT_EQ(boundBefore(2, parameter), std::nullopt);
    EXPECT_EQ(boundBefore(-1.5, parameter), -1.0);
    EXPECT_EQ(boundBefore(2.5, parameter), 2.0);
    EXPECT_TRUE(std::isnan(boundBefore(std::nan(""), parameter).value()));
    parameter.minimum.reset();
    EXPECT_FALSE(isBeyond(-1e300, parameter));
    EXPECT_TRUE(isBeyond(std::numeric_limits<double>::infinity(), parameter));
}

TEST(Bounds, ChoicesAreNumbers)
{
    Parameter parameter;
    parameter.kind = Kind::Enumeration;
    EXPECT_FALSE(isBeyond(77, parameter)) << "it has none";
    parameter.choices = {{1, "One", ""}, {4, "Four", ""}};
    EXPECT_FALSE(isBeyond(4, parameter));
    EXPECT_TRUE(isBeyond(0, parameter));
    EXPECT_EQ(nearestChoice(-7, parameter), 1);
    EXPECT_EQ(nearestChoice(2, parameter), 1);
    EXPECT_EQ(nearestChoice(3, parameter), 4);
    EXPECT_EQ(nearestChoice(2.5, parameter), 1);
}

} // namespace
