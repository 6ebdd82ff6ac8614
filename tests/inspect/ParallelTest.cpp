#include <inspect/Parallel.h>

#include <atomic>
#include <stdexcept>
#include <vector>

#include <gtest/gtest.h>

namespace {

using Effect::Inspect::parallel;

TEST(Parallel, DoesEverythingOnce)
{
    for (std::size_t const count : {0U, 1U, 15U, 16U, 17U, 1000U}) {
        std::vector<std::atomic<int>> done(count);
        parallel(count, [&](std::size_t index) { ++done.at(index); });
        for (std::size_t index = 0; index < count; ++index)
            EXPECT_EQ(done[index], 1) << index << " of " << count;
    }
}

TEST(Parallel, PassesAnExceptionOnAndEnds)
{
    std::atomic<std::size_t> done{0};
    EXPECT_THROW(parallel(1000000,
                     [&](std::size_t index) {
                         if (index == 3)
                             throw std::runtime_error("3");
                         ++done;
                     }),
        std::runtime_error);
    EXPECT_LT(done, 1000000U - 1);
}

} // namespace
