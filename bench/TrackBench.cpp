#include <EditorUtil/MotionTrackingSmoothPath.h>

#include <cmath>
#include <cstdint>
#include <memory>
#include <random>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>

namespace {

constexpr std::int64_t frameLength = 40'000;

std::string trackText(std::int64_t count)
{
    std::string text = R"({"frames": [)";
    for (std::int64_t i = 0; i < count; ++i) {
        double const x = 0.4 + 0.3 * std::sin(static_cast<double>(i) * 0.01);
        text += i == 0 ? "" : ",";
        text += R"({"time": )" + std::to_string(i * frameLength) + R"(, "rect": [)" + std::to_string(x) + ", 0.25, " +
                std::to_string(x + 0.2) + ", 0.5]}";
    }
    return text + "]}";
}

QPointF topLeft(MotionTracking::TimedFrame const & frame)
{
    return frame.frame.toRectF().topLeft();
}

void parseTrack(benchmark::State & state)
{
    std::string const text = trackText(state.range(0));
    for (auto _ : state)
        benchmark::DoNotOptimize(MotionTracking::parseTrack(text));
    state.SetItemsProcessed(state.iterations() * state.range(0));
    state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(text.size()));
}
BENCHMARK(parseTrack)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

void buildPath(benchmark::State & state)
{
    auto const track = MotionTracking::parseTrack(trackText(state.range(0)));
    for (auto _ : state)
        benchmark::DoNotOptimize(MotionTracking::MotionTrackingSmoothPath(track, topLeft));
    state.SetItemsProcessed(state.iterations() * state.range(0));
}
BENCHMARK(buildPath)->Arg(1'000)->Arg(100'000)->Unit(benchmark::kMillisecond);

/// Random times, so that the branches of the search cannot be learnt.
void pointValue(benchmark::State & state)
{
    MotionTracking::MotionTrackingSmoothPath const path(MotionTracking::parseTrack(trackText(state.range(0))), topLeft);
    std::mt19937_64 random(1);
    std::uniform_int_distribution<std::int64_t> time(0, (state.range(0) - 1) * frameLength);
    std::vector<MTime> times;
    for (int i = 0; i < 4096; ++i)
        times.emplace_back(time(random));
    std::size_t next = 0;
    for (auto _ : state)
        benchmark::DoNotOptimize(path.pointValue(times[next++ % times.size()]));
    state.SetComplexityN(state.range(0));
}
BENCHMARK(pointValue)->RangeMultiplier(10)->Range(10, 100'000)->Complexity(benchmark::oLogN);

} // namespace
