#include <EditorUtil/MotionTrackingSmoothPath.h>

#include <algorithm>
#include <atomic>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <random>
#include <thread>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

namespace {

using MotionTracking::Data;
using MotionTracking::MotionTrackingSmoothPath;
using MotionTracking::TimedFrame;

QPointF topLeft(TimedFrame const & frame)
{
    return frame.frame.toRectF().topLeft();
}

/// A track whose left edge takes the values, and whose top edge their negatives.
std::shared_ptr<Data const> track(std::vector<std::pair<std::int64_t, double>> const & points)
{
    std::vector<TimedFrame> frames;
    for (auto const & [time, value] : points)
        frames.push_back({MTime(time), {value, -value, value + 1.0, 1.0 - value}});
    return std::make_shared<Data const>(std::move(frames));
}

MotionTrackingSmoothPath path(std::vector<std::pair<std::int64_t, double>> const & points)
{
    return {track(points), topLeft};
}

/// Expects both coordinates near to the value and its negative.
void expectValue(MotionTrackingSmoothPath const & path, std::int64_t time, double value, double tolerance = 1e-14)
{
    SCOPED_TRACE(time);
    auto const point = path.pointValue(MTime(time));
    ASSERT_TRUE(point);
    EXPECT_NEAR(point->x(), value, tolerance);
    EXPECT_NEAR(point->y(), -value, tolerance);
}

TEST(MotionTrackingSmoothPath, NothingWithoutFrames)
{
    EXPECT_FALSE(path({}).pointValue(MTime(0)));
    EXPECT_FALSE(MotionTrackingSmoothPath(nullptr, topLeft).pointValue(MTime(0)));
}

TEST(MotionTrackingSmoothPath, OneFrameAnswersAtItsTimeOnly)
{
    auto const single = path({{100, 0.5}});
    EXPECT_FALSE(single.pointValue(MTime(99)));
    EXPECT_EQ(single.pointValue(MTime(100)), QPointF(0.5, -0.5));
    EXPECT_FALSE(single.pointValue(MTime(101)));
}

TEST(MotionTrackingSmoothPath, NothingOutsideTheTrack)
{
    auto const three = path({{10, 0.1}, {20, 0.2}, {40, 0.9}});
    for (std::int64_t const time : {std::numeric_limits<std::int64_t>::min(), std::int64_t{0}, std::int64_t{9},
             std::int64_t{41}, std::numeric_limits<std::int64_t>::max()})
        EXPECT_FALSE(three.pointValue(MTime(time))) << time;
    EXPECT_TRUE(three.pointValue(MTime(10)));
    EXPECT_TRUE(three.pointValue(MTime(40)));
}

TEST(MotionTrackingSmoothPath, GoesExactlyThroughEveryPoint)
{
    std::vector<std::pair<std::int64_t, double>> const points{
        {-7, 0.1}, {0, 0.7}, {1, 0.3}, {1000, 1.0 / 3.0}, {1003, 1.0 / 3.0}, {90'000, 0.0}};
    auto const through = path(points);
    for (auto const & [time, value] : points)
        EXPECT_EQ(through.pointValue(MTime(time)), QPointF(value, -value)) << time;
}

TEST(MotionTrackingSmoothPath, AccessorChoosesThePoint)
{
    auto const data = std::make_shared<Data const>(
        std::vector<TimedFrame>{{MTime(0), {0.0, 0.25, 0.5, 0.75}}, {MTime(2), {0.5, 0.25, 1.0, 0.5}}});
    MotionTrackingSmoothPath const bottomRight(
        data, [](TimedFrame const & frame) { return frame.frame.toRectF().bottomRight(); });
    EXPECT_EQ(bottomRight.pointValue(MTime(0)), QPointF(0.5, 0.75));
    EXPECT_EQ(bottomRight.pointValue(MTime(1)), QPointF(0.75, 0.625));
}

TEST(MotionTrackingSmoothPath, LinearStaysLinear)
{
    struct
    {
        char const * what;
        std::vector<std::int64_t> times;
    } const rows[] = {
        {"two points", {0, 1000}},
        {"even", {0, 100, 200, 300, 400, 1000}},
        {"uneven", {0, 1, 3, 250, 251, 252, 999, 1000}},
        {"negative times", {-1'000'000, -990'000, -500, 300, 70'000}},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(row.what);
        std::int64_t const first = row.times.front();
        std::int64_t const last = row.times.back();
        auto const line = [=](std::int64_t time) {
            return 0.1 + 0.7 * static_cast<double>(time - first) / static_cast<double>(last - first);
        };
        std::vector<std::pair<std::int64_t, double>> points;
        for (std::int64_t const time : row.times)
            points.emplace_back(time, line(time));
        auto const straight = path(points);
        for (std::int64_t time = first; time <= last; time += std::max<std::int64_t>(1, (last - first) / 997))
            expectValue(straight, time, line(time), 1e-12);
    }
}

// A cubic is half way between its ends plus an eighth of its length times the difference of its slopes there. Below, in
// units of 100: the mean slopes d of the segments, the slopes m at the points.
TEST(MotionTrackingSmoothPath, WorkedValues)
{
    // d = 1, 3. Middle: 2/(1/1 + 1/3) = 1.5. Start: (3*1 - 3)/2 = 0. End: (3*3 - 1)/2 = 4.
    auto const faster = path({{0, 0.0}, {100, 1.0}, {200, 4.0}});
    expectValue(faster, 50, 0.5 + (0.0 - 1.5) / 8.0);
    expectValue(faster, 150, 2.5 + (1.5 - 4.0) / 8.0);
    // A quarter in: t^2 (3 - 2t) + 1.5 t^2 (t - 1) = 0.15625 - 0.0703125.
    expectValue(faster, 25, 0.0859375);

    // Lengths 1 and 2, d = 1, 1/2. Middle: 9/(5/1 + 4/(1/2)) = 9/13, since the shorter side, 1, weighs 2*2 + 1 = 5 and
    // the longer 2*1 + 2 = 4. Start: 1 + 1/2 * 1/3 = 7/6. End: 1/2 - 1/2 * 2/3 = 1/6.
    auto const uneven = path({{0, 0.0}, {100, 1.0}, {300, 2.0}});
    expectValue(uneven, 50, 0.5 + (7.0 / 6.0 - 9.0 / 13.0) / 8.0);
    expectValue(uneven, 200, 1.5 + 2.0 * (9.0 / 13.0 - 1.0 / 6.0) / 8.0);

    // d = 1, -1. It turns at the middle: slope 0. Start: (3*1 + 1)/2 = 2.
    auto const turn = path({{0, 0.0}, {100, 1.0}, {200, 0.0}});
    expectValue(turn, 50, 0.5 + 2.0 / 8.0);
    expectValue(turn, 150, 0.5 + 2.0 / 8.0);

    // d = 1, -9. Start: (3*1 + 9)/2 = 6, more than the threefold of 1. End: -9 - 10/2 = -14, within that of -9.
    auto const steep = path({{0, 0.0}, {100, 1.0}, {200, -8.0}});
    expectValue(steep, 50, 0.5 + 3.0 / 8.0);
    expectValue(steep, 150, -3.5 + 14.0 / 8.0);
}

TEST(MotionTrackingSmoothPath, FlatStaysFlat)
{
    auto const halts = path({{0, 0.0}, {100, 0.3}, {200, 0.3}, {350, 0.3}, {400, 1.0}});
    for (std::int64_t time = 100; time <= 350; ++time)
        EXPECT_EQ(halts.pointValue(MTime(time)), QPointF(0.3, -0.3)) << time;
    // A halt at either end of the track.
    auto const ends = path({{0, 0.3}, {100, 0.3}, {200, 1.0}, {300, 1.0}});
    for (std::int64_t time = 0; time <= 100; ++time) {
        EXPECT_EQ(ends.pointValue(MTime(time)), QPointF(0.3, -0.3)) << time;
        EXPECT_EQ(ends.pointValue(MTime(time + 200)), QPointF(1.0, -1.0)) << time;
    }
}

/// Random tracks: bursts and gaps in time, halts, jumps and slow drifts in place.
std::vector<std::pair<std::int64_t, double>> randomPoints(std::mt19937_64 & random)
{
    std::vector<std::pair<std::int64_t, double>> points;
    std::int64_t time = std::uniform_int_distribution<std::int64_t>(-1'000'000, 1'000'000)(random);
    double value = 0.5;
    for (auto count = std::uniform_int_distribution<int>(2, 40)(random); count > 0; --count) {
        points.emplace_back(time, value);
        time += std::int64_t{1} << std::uniform_int_distribution<int>(0, 30)(random);
        switch (std::uniform_int_distribution<int>(0, 3)(random)) {
        case 0:
            break;
        case 1:
            value = std::uniform_real_distribution<double>(-0.2, 1.2)(random);
            break;
        default:
            value += std::ldexp(std::uniform_real_distribution<double>(-1, 1)(random),
                -std::uniform_int_distribution<int>(0, 60)(random));
        }
    }
    return points;
}

TEST(MotionTrackingSmoothPath, IsMonotoneBetweenPoints)
{
    std::mt19937_64 random(20240611);
    for (int round = 0; round < 300; ++round) {
        SCOPED_TRACE(round);
        auto const points = randomPoints(random);
        auto const smooth = path(points);
        for (std::size_t i = 1; i < points.size(); ++i) {
            auto const & [time0, value0] = points[i - 1];
            auto const & [time1, value1] = points[i];
            double const sign = value1 < value0 ? -1.0 : 1.0;
            double before = value0;
            constexpr std::int64_t samples = 32;
            for (std::int64_t s = 1; s < samples; ++s) {
                auto const point = smooth.pointValue(MTime(time0 + (time1 - time0) * s / samples));
                ASSERT_TRUE(point);
                ASSERT_EQ(point->y(), -point->x());
                ASSERT_GE(point->x(), std::min(value0, value1));
                ASSERT_LE(point->x(), std::max(value0, value1));
                // The terms of the cubic are of the size of the values, so is what rounding takes from them.
                ASSERT_GE(sign * (point->x() - before), -1e-15);
                before = point->x();
            }
        }
    }
}

TEST(MotionTrackingSmoothPath, SpeedIsSteadyAtPoints)
{
    std::int64_t const unit = 1'000'000'000;
    auto const smooth = path({{0, 0.0}, {unit, 0.5}, {3 * unit, 0.75}, {4 * unit, 1.0}, {5 * unit, 0.25}});
    for (std::int64_t const node : {unit, 3 * unit, 4 * unit}) {
        SCOPED_TRACE(node);
        std::int64_t const step = unit / 1'000'000;
        double const at = smooth.pointValue(MTime(node))->x();
        double const speedBefore = (at - smooth.pointValue(MTime(node - step))->x()) / 1e-6;
        double const speedAfter = (smooth.pointValue(MTime(node + step))->x() - at) / 1e-6;
        EXPECT_NEAR(speedBefore, speedAfter, 1e-4);
    }
}

TEST(MotionTrackingSmoothPath, SpansTheWholeOfTime)
{
    std::int64_t const first = std::numeric_limits<std::int64_t>::min();
    std::int64_t const last = std::numeric_limits<std::int64_t>::max();
    auto const line = path({{first, 0.0}, {last, 1.0}});
    expectValue(line, 0, 0.5);
    expectValue(line, first / 2, 0.25);
    auto const bent = path({{first, 0.0}, {0, 0.5}, {last, 1.0}});
    expectValue(bent, last / 2, 0.75);
    EXPECT_EQ(bent.pointValue(MTime(last)), QPointF(1.0, -1.0));
}

TEST(MotionTrackingSmoothPath, OutlivesItsTrack)
{
    auto data = track({{0, 0.0}, {100, 1.0}});
    std::weak_ptr<Data const> const watched = data;
    MotionTrackingSmoothPath const smooth(data, topLeft);
    data.reset();
    EXPECT_TRUE(watched.expired());
    expectValue(smooth, 25, 0.25);
}

TEST(MotionTrackingSmoothPath, ThreadsMayShareAPath)
{
    std::mt19937_64 random(7);
    auto const points = randomPoints(random);
    auto const smooth = std::make_shared<MotionTrackingSmoothPath const>(track(points), topLeft);
    std::int64_t const first = points.front().first;
    std::int64_t const step = std::max<std::int64_t>(1, (points.back().first - first) / 5000);

    std::vector<std::optional<QPointF>> expected;
    for (std::int64_t i = 0; i < 5000; ++i)
        expected.push_back(smooth->pointValue(MTime(first + i * step)));

    std::atomic<int> differences = 0;
    std::vector<std::thread> threads;
    for (std::int64_t id = 0; id < 4; ++id) {
        threads.emplace_back([&, id, smooth] {
            for (std::int64_t k = 0; k < 5000; ++k) {
                std::int64_t const i = (k * 7 + id * 1250) % 5000;
                if (smooth->pointValue(MTime(first + i * step)) != expected[static_cast<std::size_t>(i)])
                    ++differences;
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(differences, 0);
}

} // namespace
