/// What a mask's frame functions cost, and what they live on: the engine calls them long after the conversion, from
/// its own threads.
#include <atomic>
#include <cmath>
#include <cstdint>
#include <memory>
#include <optional>
#include <thread>
#include <vector>

#include <collection/Effects/SettingsFactory.h>
#include <EditorModel/EffectFactory.h>
#include <effects/Mask.h>
#include <Settings/SettingsMask.h>
#include <support/Allocations.h>
#include <support/Tracks.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Settings = Quoril::Proc::SettingsEffectMask;

constexpr std::int64_t duration = 1'000'000;

/// The functions of a frame that does not move and of one that moves by half the picture. The effect, the factory, the
/// record and the track's file are gone when they are returned.
std::vector<Settings::FrameFunctor> functors()
{
    auto const track = std::make_unique<Testing::TemporaryTrack>(
        "ball", R"({"frames": [{"time": 0, "rect": [0, 0, 0.5, 0.5]}, {"time": 1000000, "rect": [0.5, 0.5, 1, 1]}]})");
    auto const factory = std::make_unique<Factory::SettingsFactory>();
    auto const effect = std::make_unique<Mask>();
    effect->addFrame(FrameHighlight())->addFrame(*FrameHighlight().setTrackingId("ball"));
    Factory::VideoParams params;
    params.duration = duration;
    auto const record = Factory::videoEffectSettings(*effect, params);
    return dynamic_cast<Settings const &>(*record.settings.at(0)).GetFrameFunctors();
}

TEST(MaskFrames, ACallAllocatesItsFrameAndNothingElse)
{
    for (auto const & frameAt : functors()) {
        frameAt(0.5);
        for (double const position : {0.0, 0.123, 0.5, 1.0}) {
            auto const countBefore = Testing::allocationCount();
            auto const bytesBefore = Testing::allocatedBytes();
            auto const frame = frameAt(position);
            auto const count = Testing::allocationCount() - countBefore;
            auto const bytes = Testing::allocatedBytes() - bytesBefore;
            EXPECT_TRUE(frame);
            EXPECT_EQ(count, 1U);
            EXPECT_EQ(bytes, sizeof(Settings::FrameMask));
        }
    }
}

TEST(MaskFrames, ACallOutsideTheTrackAllocatesNothing)
{
    auto const frameAt = functors().at(1);
    auto const before = Testing::allocationCount();
    auto const frame = frameAt(2);
    EXPECT_EQ(Testing::allocationCount() - before, 0U);
    EXPECT_FALSE(frame);
}

TEST(MaskFrames, OutliveTheirMakersAndServeEveryThread)
{
    constexpr int threadCount = 8;
    constexpr int callCount = 5000;
    auto const shared = functors();
    std::atomic<int> wrong{0};
    std::vector<std::thread> threads;
    for (int thread = 0; thread < threadCount; ++thread) {
        // Every other thread has copies of its own, which share the paths.
        threads.emplace_back([&shared, &wrong, own = thread % 2 ? std::optional(shared) : std::nullopt] {
            auto const & functions = own ? *own : shared;
            for (int call = 0; call <= callCount; ++call) {
                double const position = static_cast<double>(call) / callCount;
                auto const still = functions[0](position);
                auto const moving = functions[1](position);
                double const shift = 0.5 * position - 0.25;
                if (!still || still->matrix[0] != 0.5 || still->matrix[6] != 0)
                    ++wrong;
                // A time has whole units of a millionth of the way.
                if (!moving || std::abs(moving->matrix[0] - 0.5) > 1e-12 || std::abs(moving->matrix[6] - shift) > 1e-6)
                    ++wrong;
            }
        });
    }
    for (std::thread & thread : threads)
        thread.join();
    EXPECT_EQ(wrong, 0);
}

} // namespace
