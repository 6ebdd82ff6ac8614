// Where an effect meets itself: compared with itself, given a part of itself, and read back.

#include <cmath>
#include <limits>
#include <string>

#include <effects/ColorCorrection.h>
#include <effects/Composition.h>
#include <effects/Dynamics.h>
#include <effects/Equalizer.h>
#include <effects/Mask.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

/// An object that holds what equals nothing is equal to itself all the same, and to no copy.
template <class Class> void expectEqualToItselfAlone(Class const & object)
{
    Class const copy(object);
    EXPECT_TRUE(object == object);
    EXPECT_FALSE(object != object);
    EXPECT_FALSE(object == copy);
    EXPECT_TRUE(object != copy);
}

double ManualEnhance::*const sliders[] = {&ManualEnhance::gamma, &ManualEnhance::highlights, &ManualEnhance::shadows,
    &ManualEnhance::brightness, &ManualEnhance::contrast, &ManualEnhance::saturation, &ManualEnhance::hue,
    &ManualEnhance::temperature, &ManualEnhance::tint};

TEST(Comparison, AnObjectEqualsItselfWhateverItHolds)
{
    for (double const value : {nan, infinity, -infinity}) {
        SCOPED_TRACE(value);
        for (auto const slider : sliders) {
            ManualEnhance panel;
            panel.*slider = value;
            expectEqualToItselfAlone(panel);
        }
        for (std::size_t entry = 0; entry < 9; ++entry) {
            FrameHighlight highlight;
            highlight.transform[entry] = value;
            expectEqualToItselfAlone(highlight);
            FrameConceal conceal;
            conceal.transform[entry] = value;
            expectEqualToItselfAlone(conceal);
        }
        FrameConceal smooth;
        smooth.setSmoothness(value);
        expectEqualToItselfAlone(smooth);
        FrameConceal opaque;
        opaque.setOpacity(value);
        expectEqualToItselfAlone(opaque);
        AudioEqualizer equalizer;
        equalizer.multiband.emplace_back(100, value);
        expectEqualToItselfAlone(equalizer);
    }
}

TEST(Comparison, EverySliderHasTheTolerance)
{
    struct
    {
        double a, b;
        bool equal;
    } const rows[] = {
        {0.5, 0.5 + 1e-14, true},
        {-0.5, -0.5 - 1e-14, true},
        {0.5, 0.50001, false},
        {0.5, -0.5, false},
        {0, 1e-12, true},
        {-1e-12, 1e-12, true},
        {0, 2e-12, false},
        {0, -2e-12, false},
        {nan, 0, false},
        {infinity, 1, false},
    };
    for (auto const & row : rows) {
        for (auto const slider : sliders) {
            ManualEnhance a;
            ManualEnhance b;
            a.*slider = row.a;
            b.*slider = row.b;
            EXPECT_EQ(a == b, row.equal) << row.a << ", " << row.b;
            EXPECT_EQ(b == a, row.equal) << row.a << ", " << row.b;
            EXPECT_EQ(a != b, !row.equal) << row.a << ", " << row.b;
        }
    }
}

TEST(Comparison, OfConcealFramesHasTheTolerance)
{
    for (auto const set : {&FrameConceal::setOpacity, &FrameConceal::setSmoothness}) {
        FrameConceal a;
        FrameConceal b;
        (a.*set)(0.5);
        (b.*set)(0.5 + 1e-14);
        EXPECT_TRUE(a == b);
        (b.*set)(0.5 + 1e-11);
        EXPECT_FALSE(a == b);
        (b.*set)(-0.5);
        EXPECT_FALSE(a == b);
    }
}

/// Frames that differ in their tracks, whose names are too long to live within a frame.
QString trackName(int number)
{
    return QStringLiteral("the motion track of the frame number %1").arg(number);
}

TEST(Mask, TakesACopyOfItsOwnFrame)
{
    // Far more than a list has room for at once: each time it grows, a frame of its own is at hand.
    constexpr int count = 1000;
    Mask effect;
    FrameHighlight highlight;
    FrameConceal conceal;
    effect.addFrame(*highlight.setTrackingId(trackName(0))->setOutline(true));
    effect.addFrame(*conceal.setTrackingId(trackName(0))->setPixelSize(0.75));
    for (int number = 1; number < count; ++number) {
        effect.addFrame(effect.highlightFrames.front())->addFrame(effect.concealFrames.front());
        effect.highlightFrames.back().setTrackingId(trackName(number));
        effect.concealFrames.back().setTrackingId(trackName(number));
        effect.addFrame(effect.highlightFrames.back())->addFrame(effect.concealFrames.back());
    }
    ASSERT_EQ(effect.highlightFrames.size(), 2U * count - 1);
    ASSERT_EQ(effect.concealFrames.size(), 2U * count - 1);
    for (std::size_t index = 0; index < effect.highlightFrames.size(); ++index) {
        int const number = static_cast<int>(index + 1) / 2;
        EXPECT_EQ(effect.highlightFrames[index].trackingId, trackName(number));
        EXPECT_TRUE(effect.highlightFrames[index].outline);
        EXPECT_EQ(effect.concealFrames[index].trackingId, trackName(number));
        EXPECT_EQ(effect.concealFrames[index].pixelSize, 0.75);
    }
}

TEST(ManualEnhance, SettersStoreAnything)
{
    for (double const value : {-1e300, infinity, -infinity, 5e-324, -0.0}) {
        ManualEnhance effect;
        effect.setGamma(value)->setHighlights(value)->setShadows(value)->setBrightness(value)->setContrast(value);
        effect.setSaturation(value)->setHue(value)->setTemperature(value)->setTint(value);
        for (auto const slider : sliders) {
            EXPECT_EQ(effect.*slider, value);
            EXPECT_EQ(std::signbit(effect.*slider), std::signbit(value));
        }
    }
    EXPECT_TRUE(std::isnan(ManualEnhance().setHue(nan)->hue));
    EXPECT_TRUE(std::isnan(Opacity().setOpacity(nan)->opacity));
}

TEST(AudioNoiseGate, RangeGoesThroughTheIntensity)
{
    AudioNoiseGate effect;
    // 0.1 is not what comes back, for 1 - 0.1 is rounded: there is no field that would hold it.
    effect.setRange(0.1);
    EXPECT_EQ(effect.intensity, 0.9);
    EXPECT_EQ(effect.range(), 0.09999999999999998);
    effect.setRange(-3);
    EXPECT_EQ(effect.intensity, 4);
    EXPECT_EQ(effect.range(), -3);
    effect.setRange(infinity);
    EXPECT_EQ(effect.intensity, -infinity);
    effect.setRange(nan);
    EXPECT_TRUE(std::isnan(effect.intensity));
    EXPECT_TRUE(std::isnan(effect.range()));
}

} // namespace
