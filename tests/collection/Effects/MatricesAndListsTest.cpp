// Matrices and lists on their way to the settings: every entry in its place, as it is, whatever number it holds. These
// tests run twice, as those of the numbers do.

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>
#include <vector>

#include <EditorModel/EffectFactory.h>
#include <effects/Composition.h>
#include <effects/Equalizer.h>
#include <effects/Geometry.h>
#include <effects/Mask.h>
#include <effects/Voice.h>
#include <Settings/SettingsAudio.h>
#include <Settings/SettingsComposition.h>
#include <Settings/SettingsMask.h>
#include <Settings/SettingsTransform.h>
#include <support/Conversion.h>
#include <support/Tracks.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Quoril::Core::Matrix3x3;
using Quoril::Proc::SettingsAudioEcho;
using Quoril::Proc::SettingsAudioEqualizer;
using Quoril::Proc::SettingsEffectMask;
using Quoril::Proc::SettingsEffectSubFrame;
using Quoril::Proc::SettingsEffectTransform;
using Types::Transform;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double largest = std::numeric_limits<double>::max();
constexpr double smallest = std::numeric_limits<double>::denorm_min();
constexpr double numbers[] = {0.1, 1 + 0x1p-52, largest, -largest, infinity, -infinity, nan, smallest, -0.0};

/// Bit for bit, but that a NaN is any NaN.
void expectSame(double actual, double expected)
{
    if (std::isnan(expected)) {
        EXPECT_TRUE(std::isnan(actual)) << actual;
    } else {
        EXPECT_EQ(actual, expected);
        EXPECT_EQ(std::signbit(actual), std::signbit(expected));
    }
}

class MatricesAndLists : public Testing::ConversionTest
{
protected:
    template <class Settings> static Settings const & at(Factory::EffectSettings const & record, std::size_t index)
    {
        return dynamic_cast<Settings const &>(*record.settings.at(index));
    }
};

/// One transform for each entry and number, all other entries distinct.
template <class Check> void forEachEntry(Check check)
{
    for (std::size_t entry = 0; entry < 9; ++entry) {
        for (double const number : numbers) {
            SCOPED_TRACE(testing::Message() << "entry " << entry << " is " << number);
            Transform transform;
            for (std::size_t index = 0; index < 9; ++index)
                transform[index] = static_cast<double>(index + 2);
            transform[entry] = number;
            check(transform);
        }
    }
}

void expectSame(Matrix3x3 const & matrix, Transform const & transform)
{
    for (std::size_t entry = 0; entry < 9; ++entry) {
        SCOPED_TRACE(testing::Message() << "in the matrix's entry " << entry);
        expectSame(matrix[entry], transform[entry]);
    }
}

TEST_F(MatricesAndLists, Crop)
{
    forEachEntry([](Transform const & transform) {
        Crop effect;
        effect.setTransform(transform);
        auto const record = Factory::videoEffectSettings(effect, {});
        auto const & settings = at<SettingsEffectTransform>(record, 0);
        EXPECT_EQ(static_cast<int>(settings.mode), 2);
        expectSame(settings.matrix, transform);
    });
}

TEST_F(MatricesAndLists, PictureInPicture)
{
    forEachEntry([](Transform const & transform) {
        PictureInPicture effect;
        effect.setTransform(transform);
        auto const record = Factory::videoEffectSettings(effect, {});
        auto const & settings = at<SettingsEffectTransform>(record, 0);
        EXPECT_EQ(static_cast<int>(settings.mode), 0);
        expectSame(settings.matrix, transform);
    });
}

TEST_F(MatricesAndLists, PictureInPictureIsMovedByAnyEntryAlone)
{
    for (std::size_t entry = 0; entry < 9; ++entry) {
        for (double const number : {0.5, 1 + 2e-12, 2e-12, -1e-11, infinity, -infinity, nan}) {
            SCOPED_TRACE(testing::Message() << "entry " << entry << " is " << number);
            PictureInPicture effect;
            effect.transform[entry] = number;
            expectSame(
                at<SettingsEffectTransform>(Factory::videoEffectSettings(effect, {}), 0).matrix, effect.transform);
        }
        PictureInPicture atRest;
        atRest.transform[entry] += 5e-13;
        SettingsEffectSubFrame const untouched;
        EXPECT_TRUE(at<SettingsEffectSubFrame>(Factory::videoEffectSettings(atRest, {}), 0).IsEqualTo(untouched))
            << entry;
    }
}

TEST_F(MatricesAndLists, SideBySideTakesAnyTransform)
{
    // What comes of an overflow or of no number is the arithmetic's affair; there is a sub-frame all the same.
    forEachEntry([](Transform const & transform) {
        for (auto const side : {&SideBySide::transformSrc, &SideBySide::transformDst}) {
            SideBySide effect;
            effect.*side = transform;
            EXPECT_EQ(Factory::videoEffectSettings(effect, {}).settings.at(0)->GetClassId(), "SettingsEffectSubFrame");
        }
    });
}

TEST_F(MatricesAndLists, SideBySideTakesSharesBeforeLengths)
{
    // The source hangs over on all sides, at the left by 0.01 of its width 1.1, of which the target, 0.8 wide, gives up
    // its share. The product or the quotient of the widths taken first would end on a neighbouring double, on each
    // side.
    SideBySide effect;
    effect.setTransformSrc({1.1, 0, 0, 1.6, 0, 0, 0.04, -0.03, 1});
    effect.setTransformDst({0.8, 0, 0, 0.7, 0, 0, 0.03, 0.04, 1});
    auto const record = Factory::videoEffectSettings(effect, {});
    auto const & settings = at<SettingsEffectSubFrame>(record, 0);
    EXPECT_EQ(settings.srcLeft, 0);
    EXPECT_EQ(settings.srcTop, 0);
    EXPECT_EQ(settings.srcRight, 1);
    EXPECT_EQ(settings.srcBottom, 1);
    EXPECT_EQ(settings.dstLeft, 0.13727272727272727);
    EXPECT_EQ(settings.dstTop, 0.33437500000000003);
    EXPECT_EQ(settings.dstRight, 0.8645454545454545);
    EXPECT_EQ(settings.dstBottom, 0.771875);
}

TEST_F(MatricesAndLists, TransposeAtLargeAngles)
{
    // For the last three the angle times pi, divided by 180, is another double than the angle times (pi / 180) or
    // divided by 180 first; so far from 0, that moves the eighth place of sine and cosine. The expected sine and cosine
    // are those of the right double, to twenty places.
    struct
    {
        int angle;
        double cosine, sine;
    } const turns[] = {
        {450, 3.0616169978683830179e-16, 1},
        {-450, 3.0616169978683830179e-16, -1},
        {2147483647, -0.60181501829158921523, 0.79863551370991143665},
        {-2147483647, -0.60181501829158921523, -0.79863551370991143665},
        {2147483605, 0.087155739442563473684, 0.99619469838090384489},
        {2147483609, 0.017452411110231085492, 0.99984769507482462495},
        {2147483621, -0.19080898919616640867, 0.98162718464900779801},
    };
    for (auto const & turn : turns) {
        SCOPED_TRACE(turn.angle);
        Transpose effect;
        effect.setAngle(turn.angle);
        auto const record = Factory::videoEffectSettings(effect, {});
        auto const & matrix = at<SettingsEffectTransform>(record, 0).matrix;
        EXPECT_DOUBLE_EQ(matrix[0], turn.cosine);
        EXPECT_DOUBLE_EQ(matrix[1], turn.sine);
        EXPECT_DOUBLE_EQ(matrix[3], -turn.sine);
        EXPECT_DOUBLE_EQ(matrix[4], turn.cosine);
    }
}

/// The frame that a mask's only frame gives for the start of the effect.
template <class Frame> SettingsEffectMask::FrameMask frameOf(Frame const & frame)
{
    Mask effect;
    effect.addFrame(frame);
    auto const record = Factory::videoEffectSettings(effect, {});
    return *dynamic_cast<SettingsEffectMask const &>(*record.settings.at(0)).GetFrameFunctors().at(0)(0);
}

TEST_F(MatricesAndLists, Frames)
{
    forEachEntry([](Transform const & transform) {
        expectSame(frameOf(*FrameHighlight().setTranform(transform)).matrix, transform);
        expectSame(frameOf(*FrameConceal().setTranform(transform)).matrix, transform);
    });
    for (double const number : numbers) {
        auto const frame = frameOf(*FrameConceal().setOpacity(number)->setSmoothness(-number));
        expectSame(frame.opacity, number);
        expectSame(frame.smoothness, -number);
        Mask effect;
        effect.addFrame(*FrameConceal().setPixelSize(number));
        auto const record = Factory::videoEffectSettings(effect, {});
        expectSame(at<SettingsEffectMask>(record, 0).pixelSize, number);
    }
}

TEST_F(MatricesAndLists, FramesOfUnknownShapesAndMethods)
{
    constexpr int least = std::numeric_limits<int>::min();
    constexpr int most = std::numeric_limits<int>::max();
    for (auto const & [shape, passed] : {std::pair(0, 0), {1, 1}, {2, 0}, {-1, 0}, {257, 0}, {least, 0}, {most, 0}}) {
        EXPECT_EQ(frameOf(*FrameHighlight().setShape(Frame::Shape{shape})).shape, passed) << shape;
        EXPECT_EQ(frameOf(*FrameConceal().setShape(Frame::Shape{shape})).shape, passed) << shape;
    }
    for (auto const & [method, passed] :
        {std::pair(0, 0), {1, 1}, {2, 2}, {3, 0}, {-1, 0}, {258, 0}, {least, 0}, {most, 0}})
        EXPECT_EQ(frameOf(*FrameConceal().setMethod(FrameConceal::Method{method})).method, passed) << method;
    // A highlight's method, opacity and smoothness are no matter of its frame.
    auto const highlight = frameOf(FrameHighlight());
    EXPECT_EQ(highlight.method, 0);
    EXPECT_EQ(highlight.opacity, 1);
    EXPECT_EQ(highlight.smoothness, 0);
}

TEST_F(MatricesAndLists, TrackedFrames)
{
    // All numbers are exact: 3/4 by 1/8 of the picture, its middle at (0.625, 0.1875).
    Testing::TemporaryTrack const track("matrices", R"({"frames": [{"time": 0, "rect": [0.25, 0.125, 1, 0.25]}]})");
    Transform placed;
    for (std::size_t index = 0; index < 9; ++index)
        placed[index] = static_cast<double>(index + 1);
    auto const matrix =
        frameOf(*FrameConceal().setTrackingId(QStringLiteral("matrices"))->setTrackingTransform(placed)).matrix;
    EXPECT_EQ(matrix, Matrix3x3(0.75, 0.25, 3, 3, 0.625, 6, 7.125, 7.6875, 9));
}

TEST_F(MatricesAndLists, TrackedFramesOfALongEffect)
{
    // 2^53 - 1 is a double and no float, so that the end would be missed.
    Testing::TemporaryTrack const track("end", R"({"frames": [{"time": 9007199254740991, "rect": [0, 0, 1, 1]}]})");
    Mask effect;
    effect.addFrame(*FrameHighlight().setTrackingId(QStringLiteral("end")));
    auto const record = Factory::videoEffectSettings(effect, {{}, 9007199254740991});
    auto const frameAt = at<SettingsEffectMask>(record, 0).GetFrameFunctors().at(0);
    EXPECT_TRUE(frameAt(1));
    EXPECT_FALSE(frameAt(1 - 0x1p-53));
    EXPECT_FALSE(frameAt(1 + 0x1p-52));
}

TEST_F(MatricesAndLists, BandsOfAnEqualizer)
{
    AudioEqualizer effect;
    std::int32_t frequency = std::numeric_limits<std::int32_t>::min();
    for (double const number : numbers) {
        effect.multiband.emplace_back(frequency, number);
        frequency = frequency == 16777217 ? std::numeric_limits<std::int32_t>::max() : 16777217; // no float
    }
    auto const record = Factory::audioEffectSettings(effect, {});
    auto const bands = at<SettingsAudioEqualizer>(record, 0).GetMultiband();
    ASSERT_EQ(bands.size(), effect.multiband.size());
    for (std::size_t index = 0; index < bands.size(); ++index) {
        EXPECT_EQ(bands[index].centralFrequency, effect.multiband[index].centralFrequency);
        expectSame(bands[index].gain, effect.multiband[index].gain);
    }
}

TEST_F(MatricesAndLists, RepeatsOfAnEcho)
{
    AudioEcho effect;
    std::int32_t delay = std::numeric_limits<std::int32_t>::min();
    for (double const number : numbers) {
        effect.echos.emplace_back(delay, number);
        delay = delay == 16777217 ? std::numeric_limits<std::int32_t>::max() : 16777217;
    }
    auto const record = Factory::audioEffectSettings(effect, {});
    auto const echos = at<SettingsAudioEcho>(record, 0).GetEchos();
    ASSERT_EQ(echos.size(), effect.echos.size());
    for (std::size_t index = 0; index < echos.size(); ++index) {
        EXPECT_EQ(echos[index].delay, effect.echos[index].delay);
        expectSame(echos[index].decay, effect.echos[index].decay);
    }
}

TEST_F(MatricesAndLists, TheCurveOfAMuffle)
{
    // 27 exp(-(log2(1000) - k)^2 / (2 * 1.1^2)) - 20 for k from 5 to 14, to twenty places. 1.1 is no number of single
    // precision.
    constexpr double gains[] = {-19.998985985586616076, -19.959364261695340449, -19.287391297085835207,
        -14.531439392218451144, -1.6357211733728112611, 6.9869414606516985974, -2.6454883819094036779,
        -15.116287757849025181, -19.398595494721276787, -19.967591253901547865};
    AudioMuffle effect;
    effect.gainUp = 7;
    effect.gainDown = 20;
    // Its sign does not count, since it is squared.
    for (double const dispersion : {1.1, -1.1}) {
        effect.dispersion = dispersion;
        auto const record = Factory::audioEffectSettings(effect, {});
        auto const bands = at<SettingsAudioEqualizer>(record, 0).GetMultiband();
        ASSERT_EQ(bands.size(), 10U);
        for (std::size_t band = 0; band < 10; ++band) {
            EXPECT_EQ(bands[band].centralFrequency, 32 << band);
            EXPECT_NEAR(bands[band].gain, gains[band], 1e-13) << "band " << band;
        }
    }
}

} // namespace
