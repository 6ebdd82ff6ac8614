#include <limits>
#include <memory>
#include <string>

#include <collection/Effects/Stages.h>
#include <effects/Blur.h>
#include <effects/PrivateIdentity.h>
#include <Settings/SettingsBlur.h>
#include <support/Conversion.h>
#include <support/Filter.h>
#include <support/Images.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::convert;
using testing::ElementsAre;
using Testing::expectConversion;
using testing::IsEmpty;
using Testing::settings;
using Testing::writeImage;

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

class BlurConversion : public Testing::ConversionTest
{};

TEST_F(BlurConversion, PlainOnes)
{
    Blur blur;
    MotionBlur motion;
    Sharpen sharpen;
    struct Row
    {
        VideoEffect & effect;
        double intensity;
        std::string settings;
    };
    Row const rows[] = {
        {blur, 20, settings("SettingsEffectBlurGaussian", R"(["SetScale", 1])")},
        {blur, 0, settings("SettingsEffectBlurGaussian", R"(["SetScale", 0])")},
        {blur, 1, settings("SettingsEffectBlurGaussian", R"(["SetScale", 0.05])")},
        {blur, -5, settings("SettingsEffectBlurGaussian", R"(["SetScale", -0.25])")},
        {motion, 20, settings("SettingsEffectMotionBlur", R"(["SetScale", 20])")},
        {motion, 0.1, settings("SettingsEffectMotionBlur", R"(["SetScale", 0.1])")},
        {sharpen, 20, settings("SettingsEffectSharpen", R"(["SetLevel", 20])")},
        {sharpen, 0.1, settings("SettingsEffectSharpen", R"(["SetLevel", 0.1])")},
    };
    for (Row const & row : rows) {
        row.effect.intensity = row.intensity;
        expectConversion(row.effect, row.settings);
    }
}

TEST_F(BlurConversion, TiltShiftPassesItsLines)
{
    TiltShift effect;
    effect.intensity = 0.1;
    expectConversion(
        effect, settings("SettingsEffectTiltShiftQEM",
                    R"(["SetParams", 0.2, 0.1], ["SetUpperLine", 0, 1, 0.1], ["SetLowerLine", 0, 1, 0.9])"));
    effect.a1 = 1;
    effect.b1 = 2;
    effect.c1 = 3;
    effect.a2 = 4;
    effect.b2 = 5;
    effect.c2 = 6;
    effect.smns = 7;
    expectConversion(effect, settings("SettingsEffectTiltShiftQEM",
                                 R"(["SetParams", 7, 0.1], ["SetUpperLine", 1, 2, 3], ["SetLowerLine", 4, 5, 6])"));
}

class BokehBlurConversion : public BlurConversion
{
protected:
    // One image per mask, distinguished by width, from 1 on.
    void SetUp() override
    {
        char const * const masks[] = {"bang.png", "blossom.png", "bokeh.png", "butterfly.png", "clover.png",
            "diamonds.png", "heart.png", "ice.png", "star.png"};
        int width = 0;
        for (char const * mask : masks)
            writeImage(::Settings::stockBlurMasksPath() + "/" + mask, ++width, 1);
    }

    Testing::TemporaryStock stock;
};

using Image = std::shared_ptr<Quoril::Proc::ImageHandler const>;

BokehBlur bokeh(int preset)
{
    BokehBlur effect;
    effect.preset = static_cast<BokehBlur::Preset>(preset);
    return effect;
}

Image mask(BokehBlur const & effect)
{
    auto const record = Factory::videoEffectSettings(effect, {});
    return dynamic_cast<Quoril::Proc::SettingsEffectBokehBlur const &>(*record.settings.at(0)).GetImage();
}

TEST_F(BokehBlurConversion, DefaultIsTheThirdMask)
{
    BokehBlur effect;
    effect.intensity = 0.1;
    // The intensity is 0.1 in single precision.
    expectConversion(effect, settings("SettingsEffectBokehBlur",
                                 R"(["SetImage", {"width": 3, "height": 1}], ["SetIntensity", 0.10000000149011612], )"
                                 R"(["SetParams", 0.045, 5, 0.575])"));
}

TEST_F(BokehBlurConversion, PresetsBeyondTheMasksTakeTheNearest)
{
    struct Row
    {
        int preset;
        int width;
    };
    Row const rows[] = {{lowest, 1}, {-1, 1}, {0, 1}, {1, 2}, {2, 3}, {3, 4}, {4, 5}, {5, 6}, {6, 7}, {7, 8}, {8, 9},
        {9, 9}, {1000, 9}, {highest, 9}};
    for (Row const & row : rows) {
        BokehBlur const effect = bokeh(row.preset);
        EXPECT_EQ(mask(effect)->width, row.width) << row.preset;
        EXPECT_EQ(static_cast<int>(effect.preset), row.preset);
    }
}

TEST_F(BokehBlurConversion, AFactorySharesItsMasks)
{
    Image const first = mask(bokeh(0));
    EXPECT_EQ(mask(bokeh(0)), first);
    EXPECT_EQ(mask(bokeh(-1)), first);
    EXPECT_NE(mask(bokeh(1)), first);
    Factory::SettingsFactory const another;
    EXPECT_NE(mask(bokeh(0)), first);
}

TEST_F(BokehBlurConversion, AMissingMaskStaysMissing)
{
    QString const path = ::Settings::stockBlurMasksPath() + "/ice.png";
    ASSERT_TRUE(QFile::remove(path));
    Image const missing = mask(bokeh(7));
    ASSERT_NE(missing, nullptr);
    EXPECT_EQ(missing->width, 0);
    EXPECT_EQ(missing->height, 0);
    EXPECT_EQ(missing->pixels, nullptr);
    writeImage(path, 8, 1);
    EXPECT_EQ(mask(bokeh(7)), missing);
}

TEST(BokehBlurMasks, OutliveTheFactory)
{
    Testing::TemporaryStock const stock;
    writeImage(::Settings::stockBlurMasksPath() + "/bokeh.png", 200, 100, QColor(7, 7, 7));
    Factory::EffectSettings record;
    {
        Factory::SettingsFactory const factory;
        record = Factory::videoEffectSettings(BokehBlur(), {});
    }
    Image const image = dynamic_cast<Quoril::Proc::SettingsEffectBokehBlur const &>(*record.settings.at(0)).GetImage();
    ASSERT_EQ(image->width, 200);
    EXPECT_EQ(image->pixels[0], 7);
    EXPECT_EQ(image->pixels[199 * 4 + 99 * 200 * 4], 7);
}

} // namespace
