#include <array>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include <collection/Effects/Conversions.h>
#include <effects/Identity.h>
#include <effects/Mask.h>
#include <Settings/SettingsMask.h>
#include <support/Conversion.h>
#include <support/Documents.h>
#include <support/Tracks.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Settings = Quoril::Proc::SettingsEffectMask;
using Testing::convert;
using testing::ElementsAre;
using testing::IsEmpty;
using Testing::settings;
using Testing::TemporaryTrack;

class MaskConversion : public Testing::ConversionTest
{};

/// The settings object at `index` of a mask's record.
Settings const & at(Factory::EffectSettings const & record, std::size_t index)
{
    return dynamic_cast<Settings const &>(*record.settings.at(index));
}

/// The one frame function of a mask with one highlight frame.
Settings::FrameFunctor functor(FrameHighlight const & frame, std::int64_t duration)
{
    Mask effect;
    effect.addFrame(frame);
    Factory::VideoParams params;
    params.duration = duration;
    auto const record = Factory::videoEffectSettings(effect, params);
    return at(record, 0).GetFrameFunctors().at(0);
}

FrameHighlight tracked(QString const & id, Types::Transform const & transform = {})
{
    FrameHighlight frame;
    frame.setTrackingId(id)->setTrackingTransform(transform);
    return frame;
}

using Entries = std::array<double, 9>;
constexpr Entries identity{1, 0, 0, 0, 1, 0, 0, 0, 1};
constexpr Entries halfSize{0.5, 0, 0, 0, 0.5, 0, 0, 0, 1};

/// A function's frame, as its trace reads it at the five positions.
std::string fiveTimes(std::string const & frame)
{
    return '[' + frame + ", " + frame + ", " + frame + ", " + frame + ", " + frame + ']';
}

TEST_F(MaskConversion, Highlight)
{
    FrameHighlight first;
    first.setShape(Frame::Shape::Ellipse)->setOutline(true)->setTranform({0.25, 0.5, 2, 4, 8, 16, 32, 64, 3});
    Mask effect;
    effect.setBackgroundFill(Mask::BackgroundFill::Blur)->setBackgroundOpacity(0.75)->setBackgroundSmoothness(0.125);
    effect.addFrame(first)->addFrame(FrameHighlight());
    auto const converted = convert(effect);
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsEffectMask",
            R"(["SetFrameFunctors", [)" +
                fiveTimes(R"({"shape": 1, "matrix": [0.25, 0.5, 8, 2, 4, 16, 32, 64, 3], "method": 0, "opacity": 1, )"
                          R"("outline": true, "smoothness": 0})") +
                ", " +
                fiveTimes(R"({"shape": 0, "matrix": [0.5, 0, 0, 0, 0.5, 0, 0, 0, 1], "method": 0, "opacity": 1, )"
                          R"("outline": false, "smoothness": 0})") +
                R"(]], ["SetBackGColor", 0, 0, 0, 1], ["SetFrameColor", 1, 1, 1, 1])",
            R"("kind": 1, "pixelSize": 0, "backgroundOpacity": 0.75, "frameParameter": 0.04, )"
            R"("backgroundSmoothness": 0.125, "backgroundFill": 1)")));
}

TEST_F(MaskConversion, Conceal)
{
    FrameConceal frame;
    frame.setShape(Frame::Shape::Ellipse)->setOutline(true);
    frame.setMethod(FrameConceal::Method::Blur)->setOpacity(-2)->setSmoothness(0.5)->setPixelSize(0.25);
    Mask effect;
    effect.addFrame(frame);
    auto const converted = convert(effect);
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    // Without highlight frames the background, of which nothing is at 0 in the mask, reaches the engine nowhere.
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsEffectMask",
            R"(["SetFrameFunctors", [)" +
                fiveTimes(R"({"shape": 1, "matrix": [0.5, 0, 0, 0, 0.5, 0, 0, 0, 1], "method": 1, "opacity": -2, )"
                          R"("outline": true, "smoothness": 0.5})") +
                R"(]], ["SetBackGColor", 0, 0, 0, 1], ["SetFrameColor", 1, 1, 1, 1])",
            R"("kind": 0, "pixelSize": 0.25, "backgroundOpacity": 0, "frameParameter": 0.04, )"
            R"("backgroundSmoothness": 0, "backgroundFill": 0)")));
}

TEST_F(MaskConversion, HighlightsShareAnObjectAndEachConcealHasItsOwn)
{
    Mask effect;
    effect.addFrame(*FrameConceal().setPixelSize(0.5))->addFrame(*FrameConceal().setPixelSize(0.75));
    effect.addFrame(FrameHighlight())->addFrame(FrameHighlight())->addFrame(FrameHighlight());
    auto const record = Factory::videoEffectSettings(effect, {});
    ASSERT_EQ(record.settings.size(), 3U);
    EXPECT_EQ(at(record, 0).kind, 1);
    EXPECT_EQ(at(record, 0).GetFrameFunctors().size(), 3U);
    EXPECT_EQ(at(record, 1).kind, 0);
    EXPECT_EQ(at(record, 1).GetFrameFunctors().size(), 1U);
    EXPECT_EQ(at(record, 1).pixelSize, 0.5);
    EXPECT_EQ(at(record, 2).kind, 0);
    EXPECT_EQ(at(record, 2).GetFrameFunctors().size(), 1U);
    EXPECT_EQ(at(record, 2).pixelSize, 0.75);
}

TEST_F(MaskConversion, NoFramesGiveARecordOfNothing)
{
    Factory::Conversions table;
    Factory::addMask(table);
    Factory::FactoryCaches caches;
    auto const record = table.video.value(Id::Mask).convert(Mask(), {{}, caches});
    EXPECT_THAT(record.settings, IsEmpty());
    EXPECT_EQ(record.stageCode, 18);
    EXPECT_EQ(record.implementation, "DEFAULT");

    // Which is no result for who asked the factory.
    auto const converted = convert(Mask());
    EXPECT_EQ(converted.stageCode, 0);
    EXPECT_THAT(converted.settings, IsEmpty());
    EXPECT_THAT(converted.log,
        ElementsAre("Couldn't provide settings for effect. Effect ID is b1c2b46d-c898-4874-9619-a1c58992162c"));
}

TEST_F(MaskConversion, AnotherClassIsABadCast)
{
    EXPECT_THROW(Factory::videoEffectSettings(VideoEffect(Id::Mask, Id::Mask), {}), std::bad_cast);
}

TEST_F(MaskConversion, NumbersBeyondTheKnownOnesBecomeZero)
{
    struct
    {
        int shape, method, fill;
        int expectedShape, expectedMethod, expectedFill;
    } const rows[] = {
        {0, 0, 0, 0, 0, 0},
        {1, 1, 1, 1, 1, 1},
        {2, 2, 2, 0, 2, 0},
        {-1, 3, 7, 0, 0, 0},
        {256, -1, -1, 0, 0, 0},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(testing::Message() << row.shape << ", " << row.method << ", " << row.fill);
        nlohmann::json const base{{"shape", row.shape}};
        auto const effect = Testing::readKeys<Mask>(
            {{"backgroundFill", row.fill}, {"highlightFrames", nlohmann::json::array({{{"Effect::Frame", base}}})},
                {"concealFrames", nlohmann::json::array({{{"Effect::Frame", base}, {"method", row.method}}})}});
        auto const record = Factory::videoEffectSettings(*effect, {});
        ASSERT_EQ(record.settings.size(), 2U);
        EXPECT_EQ(at(record, 0).backgroundFill, row.expectedFill);
        EXPECT_EQ(at(record, 0).GetFrameFunctors()[0](0)->shape, row.expectedShape);
        auto const conceal = at(record, 1).GetFrameFunctors()[0](0);
        EXPECT_EQ(conceal->shape, row.expectedShape);
        EXPECT_EQ(conceal->method, row.expectedMethod);
    }
}

TEST_F(MaskConversion, AFrameWithoutATrackStandsWhereItWasDrawn)
{
    TemporaryTrack const broken("broken", "no track");
    MotionTracking::registerTrack("gone", "/nonexistent/track.json");
    for (char const * const id : {"", "never tracked", "broken", "gone"}) {
        SCOPED_TRACE(id);
        auto const frameAt = functor(tracked(id, {2, 0, 0, 2, 0, 0, 0.5, 0.5, 1}), 1000);
        for (double const position : {-1.0, 0.0, 0.5, 2.0}) {
            auto const frame = frameAt(position);
            ASSERT_TRUE(frame);
            EXPECT_EQ(frame->matrix.entries(), halfSize);
        }
    }
    MotionTracking::unregisterTrack("gone");
}

TEST_F(MaskConversion, AFrameWithATrackFollowsIt)
{
    // Half the width and a quarter of the height; its middle is at (0.5, 0.25), a quarter above the picture's.
    TemporaryTrack const track("box", R"({"frames": [{"time": 0, "rect": [0.25, 0.125, 0.75, 0.375]}]})");
    FrameConceal frame;
    frame.setTrackingId("box")->setTrackingTransform({2, 0.5, 0.25, 4, 0.125, 0.0625, 0.125, -0.5, 1.5});
    frame.setTranform({9, 9, 9, 9, 9, 9, 9, 9, 9});
    frame.setShape(Frame::Shape::Ellipse)->setOutline(true);
    frame.setMethod(FrameConceal::Method::Blur)->setOpacity(0.75)->setSmoothness(0.25);
    Mask effect;
    effect.addFrame(frame);
    auto const record = Factory::videoEffectSettings(effect, {});
    auto const converted = at(record, 0).GetFrameFunctors().at(0)(0);
    ASSERT_TRUE(converted);
    // Rows (2, 0.5, 0.125), (0.25, 4, 0.0625), (0.125, -0.5, 1.5): columns by (0.5, 0.25), then down by -0.25.
    EXPECT_EQ(converted->matrix.entries(), (Entries{1, 0.125, 0.125, 0.125, 1, 0.0625, 0.125, -0.75, 1.5}));
    EXPECT_EQ(converted->shape, 1);
    EXPECT_TRUE(converted->outline);
    EXPECT_EQ(converted->method, 1);
    EXPECT_EQ(converted->opacity, 0.75);
    EXPECT_EQ(converted->smoothness, 0.25);
}

TEST_F(MaskConversion, TheWholePictureLeavesTheTransformAlone)
{
    TemporaryTrack const track("all", R"({"frames": [{"time": 0, "rect": [0, 0, 1, 1]}]})");
    auto const frame = functor(tracked("all"), 1000)(0);
    ASSERT_TRUE(frame);
    EXPECT_EQ(frame->matrix.entries(), identity);
}

TEST_F(MaskConversion, BetweenTrackedTimesTheFrameMoves)
{
    // From the upper left quarter to the lower right one.
    TemporaryTrack const track("way", R"({"frames": [{"time": 0, "rect": [0, 0, 0.5, 0.5]},
                                                     {"time": 1000, "rect": [0.5, 0.5, 1, 1]}]})");
    auto const frameAt = functor(tracked("way"), 1000);
    struct
    {
        double position, shift;
    } const rows[] = {{0, -0.25}, {0.25, -0.125}, {0.5, 0}, {0.75, 0.125}, {0.9999, 0.2495}, {1, 0.25}};
    for (auto const & row : rows) {
        SCOPED_TRACE(row.position);
        auto const frame = frameAt(row.position);
        ASSERT_TRUE(frame);
        Entries const expected{0.5, 0, 0, 0, 0.5, 0, row.shift, row.shift, 1};
        for (std::size_t i = 0; i < expected.size(); ++i)
            EXPECT_NEAR(frame->matrix[i], expected[i], 1e-15) << "entry " << i;
    }
}

TEST_F(MaskConversion, TimesAreTruncatedTowardZero)
{
    TemporaryTrack const last("last", R"({"frames": [{"time": 999, "rect": [0, 0, 1, 1]}]})");
    auto const frameAt = functor(tracked("last"), 1000);
    EXPECT_TRUE(frameAt(0.9999));
    EXPECT_TRUE(frameAt(0.999));
    EXPECT_FALSE(frameAt(0.9989));
    EXPECT_FALSE(frameAt(1));

    TemporaryTrack const first("first", R"({"frames": [{"time": 0, "rect": [0, 0, 1, 1]}]})");
    EXPECT_TRUE(functor(tracked("first"), 1000)(-0.0009));
    EXPECT_FALSE(functor(tracked("first"), 1000)(-0.001));
}

TEST_F(MaskConversion, OutsideTheTrackThereIsNoFrame)
{
    TemporaryTrack const track("part", R"({"frames": [{"time": 250, "rect": [0, 0, 1, 1]},
                                                      {"time": 750, "rect": [0, 0, 1, 1]}]})");
    auto const frameAt = functor(tracked("part"), 1000);
    EXPECT_FALSE(frameAt(0));
    EXPECT_FALSE(frameAt(0.249));
    EXPECT_TRUE(frameAt(0.25));
    EXPECT_TRUE(frameAt(0.75));
    EXPECT_FALSE(frameAt(0.751));
    EXPECT_FALSE(frameAt(1));

    TemporaryTrack const nowhere("nowhere", R"({"frames": []})");
    EXPECT_FALSE(functor(tracked("nowhere"), 1000)(0));
}

TEST_F(MaskConversion, WithoutATimeThereIsNoFrame)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    TemporaryTrack const track("ever", R"({"frames": [{"time": -9223372036854775808, "rect": [0, 0, 1, 1]},
                                                      {"time": 9223372036854775807, "rect": [0, 0, 1, 1]}]})");
    constexpr std::int64_t longest = std::numeric_limits<std::int64_t>::max();
    auto const frameAt = functor(tracked("ever"), longest);
    EXPECT_TRUE(frameAt(0));
    EXPECT_TRUE(frameAt(0.9999));
    EXPECT_TRUE(frameAt(-1));
    // As a double the longest duration is 2^63, which no time reaches.
    EXPECT_FALSE(frameAt(1));
    EXPECT_FALSE(frameAt(-2));
    EXPECT_FALSE(frameAt(infinity));
    EXPECT_FALSE(frameAt(-infinity));
    EXPECT_FALSE(frameAt(std::numeric_limits<double>::quiet_NaN()));
    EXPECT_FALSE(functor(tracked("ever"), 0)(infinity));
}

TEST_F(MaskConversion, ARectangleWithoutASizeIsNoFrame)
{
    for (char const * const rect : {"0.5, 0, 0.5, 1", "0, 0.5, 1, 0.5", "0.75, 0, 0.25, 1", "0, 0.75, 1, 0.25"}) {
        SCOPED_TRACE(rect);
        TemporaryTrack const track("flat", std::string(R"({"frames": [{"time": 0, "rect": [)") + rect + "]}]}");
        EXPECT_FALSE(functor(tracked("flat"), 1000)(0));
    }
}

TEST_F(MaskConversion, EachCallGivesAFrameOfItsOwn)
{
    TemporaryTrack const track("box", R"({"frames": [{"time": 0, "rect": [0, 0, 1, 1]}]})");
    for (char const * const id : {"", "box"}) {
        auto const frameAt = functor(tracked(id), 1000);
        auto const first = frameAt(0);
        auto const second = frameAt(0);
        first->matrix[0] = 99;
        first->shape = 99;
        EXPECT_NE(second->matrix[0], 99);
        EXPECT_NE(frameAt(0)->matrix[0], 99);
        EXPECT_EQ(frameAt(0)->shape, 0);
    }
}

} // namespace
