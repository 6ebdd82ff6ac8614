#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include <collection/Effects/Stages.h>
#include <effects/Composition.h>
#include <effects/Identity.h>
#include <Settings/SettingsComposition.h>
#include <Settings/SettingsTransform.h>
#include <support/Conversion.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::convert;
using testing::ElementsAre;
using Testing::settings;
using Mode = ColorBlendingBase::Mode;
using SubFrame = Quoril::Proc::SettingsEffectSubFrame;
using Types::Transform;

class CompositionConversion : public Testing::ConversionTest
{};

TEST_F(CompositionConversion, OpacityIsNotClamped)
{
    for (auto const & [opacity, text] : {std::pair{1.0, "1"}, {0.25, "0.25"}, {-3.0, "-3"}, {1.5, "1.5"}}) {
        Opacity effect;
        effect.setOpacity(opacity);
        auto const converted = convert(effect);
        EXPECT_EQ(converted.stageCode, 18);
        EXPECT_EQ(converted.implementation, "DEFAULT");
        EXPECT_THAT(converted.settings,
            ElementsAre(settings("SettingsEffectOpacity", "", std::string(R"("opacity": )") + text)));
    }
}

TEST_F(CompositionConversion, AlphaInserterRunsInOpenGl)
{
    auto const converted = convert(AlphaInserter());
    EXPECT_EQ(converted.stageCode, 2);
    EXPECT_EQ(converted.implementation, "OGL");
    EXPECT_THAT(converted.settings, ElementsAre(settings("SettingsEffectAlphaInserter", "")));
}

TEST_F(CompositionConversion, ChromaKey)
{
    ChromaKey effect;
    auto converted = convert(effect);
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(
        converted.settings, ElementsAre(settings("SettingsEffectChromakey", R"(["SetParams", 80, 0, 0.01, 0.1])",
                                R"("red": 0, "green": 200, "blue": 0, "alpha": 0)")));

    effect.color = 0x80FF1203;
    effect.hueTolerance = -1;
    effect.noiseLevel = 256;
    effect.harshness = 50;
    effect.transparency = 125;
    converted = convert(effect);
    EXPECT_THAT(
        converted.settings, ElementsAre(settings("SettingsEffectChromakey", R"(["SetParams", -1, 1, 0.5, 1.25])",
                                R"("red": 255, "green": 18, "blue": 3, "alpha": 0)")));
}

TEST_F(CompositionConversion, BlendModes)
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    constexpr std::pair<int, int> rows[] = {{0, 11}, {1, 6}, {2, 24}, {3, 8}, {4, 9}, {5, 0}, {6, 7}, {7, 18}, {8, 2},
        {9, 1}, {10, 3}, {11, 13}, {12, 12}, {13, 19}, {14, 11}, {15, 11}, {-1, 11}, {least, 11}, {most, 11}};
    for (auto const & [mode, blendMode] : rows) {
        SCOPED_TRACE(mode);
        std::string const field = R"("blendMode": )" + std::to_string(blendMode);
        Overlay overlay;
        overlay.mode = Mode{mode};
        overlay.intensity = 0.25;
        EXPECT_THAT(convert(overlay).settings,
            ElementsAre(settings("SettingsEffectColorBlender", R"(["SetIntensity", 0.25])", field)));
        ColorBlending blending;
        blending.mode = Mode{mode};
        blending.intensity = 0.5;
        EXPECT_THAT(
            convert(blending).settings, ElementsAre(settings("SettingsEffectColorBlender",
                                            R"(["SetIntensity", 0.5], ["SetBaseColor", [0, 0, 0, 1]])", field)));
    }
}

TEST_F(CompositionConversion, BlendingDefaults)
{
    for (auto const & converted : {convert(Overlay()), convert(ColorBlending())}) {
        EXPECT_EQ(converted.stageCode, 18);
        EXPECT_EQ(converted.implementation, "DEFAULT");
    }
    EXPECT_THAT(convert(Overlay()).settings,
        ElementsAre(settings("SettingsEffectColorBlender", R"(["SetIntensity", 1])", R"("blendMode": 11)")));
    EXPECT_THAT(convert(ColorBlending()).settings,
        ElementsAre(settings("SettingsEffectColorBlender", R"(["SetIntensity", 1], ["SetBaseColor", [0, 0, 0, 1]])",
            R"("blendMode": 0)")));
}

TEST_F(CompositionConversion, OverlayLeavesTheBaseColourAbsent)
{
    auto const record = Factory::videoEffectSettings(Overlay(), {});
    auto const & blender = dynamic_cast<Quoril::Proc::SettingsEffectColorBlender const &>(*record.settings.at(0));
    EXPECT_FALSE(blender.GetBaseColor().has_value());
}

TEST_F(CompositionConversion, PictureInPictureAtRestIsAnEmptySubFrame)
{
    Transform rounded;
    rounded[0] = 1 + 5e-13;
    rounded[6] = -1e-12;
    for (Transform const & transform : {Transform(), rounded}) {
        PictureInPicture effect;
        effect.setTransform(transform);
        auto const record = Factory::videoEffectSettings(effect, {});
        EXPECT_EQ(record.stageCode, 18);
        EXPECT_EQ(record.implementation, "DEFAULT");
        ASSERT_EQ(record.settings.size(), 1U);
        EXPECT_EQ(record.settings[0]->GetClassId(), "SettingsEffectSubFrame");
        EXPECT_TRUE(record.settings[0]->IsEmpty());
    }
}

TEST_F(CompositionConversion, PictureInPictureMovedIsATransform)
{
    PictureInPicture effect;
    effect.transform[7] = 2e-12;
    auto converted = convert(effect);
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings, ElementsAre(settings("SettingsEffectTransform", "",
                                        R"("mode": 0, "matrix": [1, 0, 0, 0, 1, 0, 0, 2e-12, 1])")));

    effect.setTransform({0.25, 0.5, -0.5, 0.125, 0.1, 0.2, -0.375, 0.75, 2});
    converted = convert(effect);
    EXPECT_THAT(
        converted.settings, ElementsAre(settings("SettingsEffectTransform", "",
                                R"("mode": 0, "matrix": [0.25, 0.5, 0.1, -0.5, 0.125, 0.2, -0.375, 0.75, 2])")));
}

TEST_F(CompositionConversion, WholeRecordConversionsCheckTheClass)
{
    EXPECT_THROW(Factory::videoEffectSettings(VideoEffect(Id::PictureInPicture, Group::GroupPip), {}), std::bad_cast);
}

Transform scaled(double x, double y, double right = 0, double down = 0)
{
    return {x, 0, 0, y, 0, 0, right, down, 1};
}

// Two transforms, and the rectangles that come of them: left, top, right, bottom. All are binary fractions, exact in
// doubles.
struct Sides
{
    char const * name;
    Transform source, target;
    std::array<double, 4> sourceRect, targetRect;
};

void PrintTo(Sides const & sides, std::ostream * stream)
{
    *stream << sides.name;
}

class SideBySideConversion : public Testing::ConversionTest, public testing::WithParamInterface<Sides>
{};

TEST_P(SideBySideConversion, Rectangles)
{
    Sides const & sides = GetParam();
    SideBySide effect;
    effect.setTransformSrc(sides.source)->setTransformDst(sides.target);
    auto const record = Factory::videoEffectSettings(effect, {});
    EXPECT_EQ(record.stageCode, 18);
    EXPECT_EQ(record.implementation, "DEFAULT");
    ASSERT_EQ(record.settings.size(), 1U);
    auto const & frame = dynamic_cast<SubFrame const &>(*record.settings[0]);
    EXPECT_THAT((std::array{frame.srcLeft, frame.srcTop, frame.srcRight, frame.srcBottom}), sides.sourceRect);
    EXPECT_THAT((std::array{frame.dstLeft, frame.dstTop, frame.dstRight, frame.dstBottom}), sides.targetRect);
}

Transform const middle = scaled(0.5, 1);                // [0.25, 0, 0.75, 1]
Transform const leftHalf = scaled(0.5, 1, -0.25);       // [0, 0, 0.5, 1]
Transform const quarter = scaled(0.5, 0.5, 0.25, 0.25); // [0.5, 0.5, 1, 1]

INSTANTIATE_TEST_SUITE_P(Overhangs, SideBySideConversion,
    testing::Values( //
        Sides{"none", middle, leftHalf, {0.25, 0, 0.75, 1}, {0, 0, 0.5, 1}},
        // [-0.125, 0, 0.375, 1]: a quarter of its width hangs over, so the target loses a quarter of its own 0.5.
        Sides{"left", scaled(0.5, 1, -0.375), leftHalf, {0, 0, 0.375, 1}, {0.125, 0, 0.5, 1}},
        // [0.5625, 0, 1.0625, 1]: an eighth.
        Sides{"right", scaled(0.5, 1, 0.3125), leftHalf, {0.5625, 0, 1, 1}, {0, 0, 0.4375, 1}},
        // [0.25, -0.25, 0.75, 0.75]: a quarter.
        Sides{"top", scaled(0.5, 1, 0, -0.25), leftHalf, {0.25, 0, 0.75, 0.75}, {0, 0.25, 0.5, 1}},
        // [0.25, 0.5, 0.75, 1.5]: a half.
        Sides{"bottom", scaled(0.5, 1, 0, 0.5), leftHalf, {0.25, 0.5, 0.75, 1}, {0, 0, 0.5, 0.5}},
        // [-0.125, -0.25, 0.375, 0.25]: a quarter on the left, a half at the top.
        Sides{"left_and_top", scaled(0.5, 0.5, -0.375, -0.5), quarter, {0, 0, 0.375, 0.25}, {0.625, 0.75, 1, 1}},
        // [0.5625, 0.625, 1.0625, 1.125]: an eighth on the right, a quarter at the bottom.
        Sides{"right_and_bottom", scaled(0.5, 0.5, 0.3125, 0.375), quarter, {0.5625, 0.625, 1, 1},
            {0.5, 0.5, 0.9375, 0.875}},
        // [-0.5, 0, 1.5, 1]: a quarter on either side.
        Sides{"left_and_right", scaled(2, 1), leftHalf, {0, 0, 1, 1}, {0.125, 0, 0.375, 1}},
        // [-0.25, -1.5, 1.75, 2.5]: 1/8 and 3/8 of the width 2, 3/8 and 3/8 of the height 4.
        Sides{"everywhere", scaled(2, 4, 0.25), scaled(1, 1), {0, 0, 1, 1}, {0.125, 0.375, 0.625, 0.625}},
        // The target's own overhang, [-0.25, 0.25, 0.25, 1.25], is cut off and costs the source nothing.
        Sides{"target", middle, scaled(0.5, 1, -0.5, 0.25), {0.25, 0, 0.75, 1}, {0, 0.25, 0.25, 1}},
        // Of the target [-0.0625, 0, 0.4375, 1] a quarter goes first, which leaves nothing beyond the frame's edge.
        Sides{"source_and_target", scaled(0.5, 1, -0.375), scaled(0.5, 1, -0.3125), {0, 0, 0.375, 1},
            {0.0625, 0, 0.4375, 1}},
        // A mirrored picture fills the same rectangle.
        Sides{"mirrored", scaled(-0.5, 1), leftHalf, {0.25, 0, 0.75, 1}, {0, 0, 0.5, 1}},
        // A quarter turn: x' = -y, y' = x / 2.
        Sides{"turned", {0, 0.5, -1, 0, 0, 0, 0, 0, 1}, leftHalf, {0, 0.25, 1, 0.75}, {0, 0, 0.5, 1}},
        // [2, 0, 3, 1]: twice the width hangs over, so nothing is left on either side.
        Sides{"outside", scaled(1, 1, 2), leftHalf, {0, 0, 0, 0}, {0, 0, 0, 0}}),
    [](testing::TestParamInfo<Sides> const & sides) { return std::string(sides.param.name); });

TEST_F(CompositionConversion, ATenthOverTheLeftEdgeCostsTheTargetATenth)
{
    // [-0.05, 0, 0.45, 1].
    SideBySide effect;
    effect.setTransformSrc(scaled(0.5, 1, -0.3))->setTransformDst(scaled(0.5, 1, 0.25));
    auto const record = Factory::videoEffectSettings(effect, {});
    auto const & frame = dynamic_cast<SubFrame const &>(*record.settings.at(0));
    EXPECT_EQ(frame.srcLeft, 0);
    EXPECT_NEAR(frame.srcRight, 0.45, 1e-15);
    EXPECT_NEAR(frame.dstLeft, 0.55, 1e-15);
    EXPECT_EQ(frame.dstRight, 1);
}

TEST_F(CompositionConversion, ASourceWithoutWidthHasNoDefiniteTarget)
{
    SideBySide effect;
    effect.setTransformSrc(scaled(0, 1));
    auto const record = Factory::videoEffectSettings(effect, {});
    auto const & frame = dynamic_cast<SubFrame const &>(*record.settings.at(0));
    EXPECT_THAT((std::array{frame.srcLeft, frame.srcTop, frame.srcRight, frame.srcBottom}), ElementsAre(0, 0, 0, 0));
    EXPECT_TRUE(std::isnan(frame.dstLeft));
    EXPECT_TRUE(std::isnan(frame.dstRight));
}

} // namespace
