#include <EditorModel/Decibel.h>

#include <limits>

#include <gtest/gtest.h>

namespace {

TEST(Decibel, DefaultIsTheReference)
{
    EXPECT_EQ(Decibel().dbLevel(), 0);
    EXPECT_EQ(Decibel().toRelativeLevel(), 1);
}

TEST(Decibel, LiteralsAndMakerAgree)
{
    static_assert(6_dB == Decibel::fromDbLevel(6));
    static_assert(6.5_dB == Decibel::fromDbLevel(6.5));
    static_assert(-6.5_dB == Decibel::fromDbLevel(-6.5));
    static_assert(-6_dB != 6_dB);
    EXPECT_EQ((-96.0_dB).dbLevel(), -96);
}

TEST(Decibel, ComparesExactly)
{
    EXPECT_FALSE(Decibel::fromDbLevel(0.1 + 0.2) == 0.3_dB);
    EXPECT_TRUE(Decibel::fromDbLevel(0.1 + 0.2) != 0.3_dB);
    EXPECT_TRUE(0_dB == -0_dB);
    Decibel const nan = Decibel::fromDbLevel(std::numeric_limits<double>::quiet_NaN());
    EXPECT_FALSE(nan == nan);
}

TEST(Decibel, RelativeLevels)
{
    struct
    {
        double decibels, ratio;
    } const rows[] = {
        {20, 10},
        {-20, 0.1},
        {-60, 0.001},
        {6.020599913279624, 2},
        {-6.020599913279624, 0.5},
        {-6, 0.5011872336272722},
        {-std::numeric_limits<double>::infinity(), 0},
    };
    for (auto const & row : rows)
        EXPECT_DOUBLE_EQ(Decibel::fromDbLevel(row.decibels).toRelativeLevel(), row.ratio) << row.decibels;
}

} // namespace
