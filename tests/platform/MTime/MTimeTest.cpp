#include <MTime/MTime.h>

#include <limits>

#include <gtest/gtest.h>

namespace {

TEST(MTime, DefaultIsZero)
{
    EXPECT_EQ(MTime().units(), 0);
    EXPECT_EQ(MTime(), MTime(0));
}

TEST(MTime, ComparesAndAddsByCount)
{
    EXPECT_LT(MTime(999), MTime(1000));
    EXPECT_EQ(MTime(1500) - MTime(2000), MTime(-500));
    EXPECT_EQ(MTime(1) + MTime(2), MTime(3));
    EXPECT_DOUBLE_EQ(MTime(2'500'000).seconds(), 2.5);
}

TEST(MTime, PrintsHoursMinutesSeconds)
{
    EXPECT_EQ(MTime(0).toString(), "0:00:00.000000");
    EXPECT_EQ(MTime(-62'500'000).toString(), "-0:01:02.500000");
    EXPECT_EQ(MTime(3'600'000'000).toString(), "1:00:00.000000");
    EXPECT_EQ(MTime(std::numeric_limits<std::int64_t>::min()).toString(), "-2562047788:00:54.775808");
}

} // namespace
