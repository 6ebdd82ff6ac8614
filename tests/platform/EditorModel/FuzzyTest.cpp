#include <EditorModel/Fuzzy.h>

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace {

TEST(FuzzyEqual, Edges)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    constexpr double nan = std::numeric_limits<double>::quiet_NaN();
    constexpr double largest = std::numeric_limits<double>::max();
    double const beyond = std::nextafter(1e-12, 1);
    struct
    {
        double a, b;
        bool equal;
    } const rows[] = {
        {0, 0, true},
        {0, -0.0, true},
        // Sizes up to 1e-12 count as nothing, whatever their signs.
        {1e-12, 0, true},
        {-1e-12, 1e-12, true},
        {1e-13, 9e-13, true},
        {beyond, 0, false},
        {-beyond, 0, false},
        {2e-12, 0, false},
        // Both must: then the difference decides, in proportion to the smaller one.
        {beyond, 1e-12, true},
        {2e-12, 1e-12, false},
        {1e-12, -beyond, false},
        {1e-11, 1e-12, false},
        // Half a trillionth and two trillionths of 1.
        {1, 1 + 5e-13, true},
        {1, 1 + 2e-12, false},
        {-1, -1 - 5e-13, true},
        {1, -1, false},
        {0.5, 0.5 + 1e-14, true},
        {0.5, 0.50001, false},
        {1e6, 1e6 + 5e-7, true},
        {1e6, 1e6 + 2e-6, false},
        {largest, largest, true},
        {largest, -largest, false},
        {largest, largest / 2, false},
        // What the arithmetic makes of infinities: the difference of one and itself is no number, that of opposite ones
        // is as large as they are.
        {infinity, infinity, false},
        {infinity, -infinity, true},
        {infinity, 1, false},
        {nan, nan, false},
        {nan, 0, false},
    };
    for (auto const & row : rows) {
        EXPECT_EQ(fuzzyEqual(row.a, row.b), row.equal) << row.a << ", " << row.b;
        EXPECT_EQ(fuzzyEqual(row.b, row.a), row.equal) << row.b << ", " << row.a;
    }
}

TEST(FuzzyEqual, TheDifferenceMayReachTheSmallerSize)
{
    // 2^40 and 2^40 + 1: a difference of 1, and 1e12 is less than the smaller one's 1.0995e12. With 2^39, 5.5e11, it
    // is more.
    EXPECT_TRUE(fuzzyEqual(1099511627776.0, 1099511627777.0));
    EXPECT_FALSE(fuzzyEqual(549755813888.0, 549755813889.0));
    // Exactly as much.
    EXPECT_TRUE(fuzzyEqual(1e12, 1e12 + 1));
}

} // namespace
