#include <cmath>
#include <limits>

#include <collection/Effects/Conversions.h>
#include <effects/ColorCorrection.h>
#include <effects/Identity.h>
#include <Settings/SettingsColor.h>
#include <support/Conversion.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::convert;
using testing::ElementsAre;
using testing::IsEmpty;
using Testing::settings;

class ColorCorrectionConversion : public Testing::ConversionTest
{};

TEST_F(ColorCorrectionConversion, OneButtonCorrections)
{
    struct Row
    {
        VideoEffect const & effect;
        std::string settings;
    };
    AutoContrast const contrast;
    AutoSaturation const saturation;
    MagicEnhance const enhance;
    Row const rows[] = {
        {contrast, settings("SettingsEffectAutoContrast", "")},
        {saturation, settings("SettingsEffectSaturation", "")},
        {enhance, settings("SettingsEffectMagicEnhance2", "")},
    };
    for (Row const & row : rows) {
        auto const converted = convert(row.effect);
        EXPECT_EQ(converted.stageCode, 19);
        EXPECT_EQ(converted.implementation, "DEFAULT");
        EXPECT_THAT(converted.settings, ElementsAre(row.settings));
    }
}

TEST_F(ColorCorrectionConversion, WhiteBalanceSplitsTheColourAndDropsItsAlpha)
{
    WhiteBalance effect;
    effect.color = 0x00112233;
    auto const converted = convert(effect);
    EXPECT_EQ(converted.stageCode, 19);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings, ElementsAre(settings("SettingsEffectAutoWhiteBalance", "",
                                        R"("red": 17, "green": 34, "blue": 51, "alpha": 255)")));
}

// One panel, and the settings that come of it.
struct Panel
{
    char const * name;
    void (*move)(ManualEnhance &);
    std::vector<std::string> settings;
};

void PrintTo(Panel const & panel, std::ostream * stream)
{
    *stream << panel.name;
}

class ManualEnhanceConversion : public Testing::ConversionTest, public testing::WithParamInterface<Panel>
{};

TEST_P(ManualEnhanceConversion, BuildsOnlyWhatMoved)
{
    ManualEnhance effect;
    GetParam().move(effect);
    auto const converted = convert(effect);
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_EQ(converted.settings, GetParam().settings);
    EXPECT_THAT(converted.log, IsEmpty());
}

std::string colorize(char const * red, char const * green, char const * intensity)
{
    return settings("SettingsEffectGIMPColorize", std::string(R"(["SetRed", )") + red + R"(], ["SetGreen", )" + green +
                                                      R"(], ["SetBlue", )" + red + R"(], ["SetIntensity", )" +
                                                      intensity + "]");
}

std::string temperatures(char const * original, char const * intended)
{
    return settings("SettingsEffectGIMPColorTemperature", std::string(R"(["SetOriginalTemperature", )") + original +
                                                              R"(], ["SetIntendedTemperature", )" + intended + "]");
}

std::string correction(char const * brightness, char const * contrast)
{
    return settings("SettingsEffectGIMPColorCorrection",
        std::string(R"(["SetBrightness", )") + brightness + R"(], ["SetContrast", )" + contrast + "]");
}

std::string balance(char const * saturation, char const * gamma)
{
    return settings(
        "SettingsEffectColorBalance", "", std::string(R"("saturation": )") + saturation + R"(, "gamma": )" + gamma);
}

std::string hueSaturation(char const * hue)
{
    // 0.7 in single precision.
    return settings("SettingsEffectGIMPHueSaturation",
        std::string(R"(["SetHue", 0, )") + hue + R"(], ["SetIntensity", 0.699999988079071])");
}

std::string shadows(char const * shadows, char const * highlights)
{
    return settings("SettingsEffectGIMPShadowsHightlights",
        std::string(R"(["SetShadows", )") + shadows + R"(], ["SetHighlights", )" + highlights + "]");
}

INSTANTIATE_TEST_SUITE_P(Sliders, ManualEnhanceConversion,
    testing::Values(
        // The single-precision 0.45 is 0.44999998807907104.
        Panel{"tint up", [](ManualEnhance & e) { e.setTint(1); }, {colorize("0", "1", "0.44999998807907104")}},
        Panel{"tint down", [](ManualEnhance & e) { e.setTint(-1); }, {colorize("1", "0", "0.44999998807907104")}},
        Panel{"warm", [](ManualEnhance & e) { e.setTemperature(1); }, {temperatures("2700", "6500")}},
        Panel{"cold", [](ManualEnhance & e) { e.setTemperature(-1); }, {temperatures("6500", "2500")}},
        Panel{"half warm", [](ManualEnhance & e) { e.setTemperature(0.5); }, {temperatures("4600", "6500")}},
        Panel{"brightness", [](ManualEnhance & e) { e.setBrightness(0.5); }, {correction("0.5", "0")}},
        // 0.39 in single precision.
        Panel{"contrast", [](ManualEnhance & e) { e.setContrast(1); }, {correction("0", "0.38999998569488525")}},
        Panel{"saturation down", [](ManualEnhance & e) { e.setSaturation(-1); }, {balance("0", "1")}},
        Panel{"saturation up", [](ManualEnhance & e) { e.setSaturation(1); }, {balance("3", "1")}},
        Panel{"gamma down", [](ManualEnhance & e) { e.setGamma(-1); }, {balance("1", "4")}},
        Panel{"gamma up", [](ManualEnhance & e) { e.setGamma(1); }, {balance("1", "0.5")}},
        Panel{"gamma far down", [](ManualEnhance & e) { e.setGamma(-2); }, {balance("1", "-2")}},
        Panel{"hue", [](ManualEnhance & e) { e.setHue(-0.5); }, {hueSaturation("-90")}},
        Panel{"shadows down", [](ManualEnhance & e) { e.setShadows(-0.5); }, {shadows("-50", "0")}},
        Panel{"shadows up", [](ManualEnhance & e) { e.setShadows(0.5); }, {shadows("35", "0")}},
        Panel{"highlights down", [](ManualEnhance & e) { e.setHighlights(-0.5); }, {shadows("0", "-40")}},
        Panel{"highlights up", [](ManualEnhance & e) { e.setHighlights(0.5); }, {shadows("0", "50")}},
        Panel{"just moved", [](ManualEnhance & e) { e.setSaturation(2e-12); }, {balance("1.000000000004", "1")}},
        Panel{"everything",
            [](ManualEnhance & e) {
                e.setGamma(1)->setHighlights(1)->setShadows(1)->setBrightness(1)->setContrast(1);
                e.setSaturation(1)->setHue(1)->setTemperature(1)->setTint(1);
            },
            {colorize("0", "1", "0.44999998807907104"), temperatures("2700", "6500"),
                correction("1", "0.38999998569488525"), balance("3", "0.5"), hueSaturation("180"),
                shadows("70", "100")}}),
    [](testing::TestParamInfo<Panel> const & panel) {
        std::string name = panel.param.name;
        for (char & letter : name)
            letter = letter == ' ' ? '_' : letter;
        return name;
    });

TEST_F(ColorCorrectionConversion, GammaWhereItsDivisorVanishesIsInfinite)
{
    // -4/3 * 0.75 is exactly -1 in doubles only at the double nearest -4/3; the sum with 1 is then 0 or a rounding
    // error of it, so what can be asked for is a size that no slider reaches.
    ManualEnhance effect;
    effect.setGamma(-4.0 / 3.0);
    auto const record = Factory::videoEffectSettings(effect, {});
    ASSERT_EQ(record.settings.size(), 1U);
    auto const & balanced = dynamic_cast<Quoril::Proc::SettingsEffectColorBalance const &>(*record.settings[0]);
    EXPECT_GT(std::abs(balanced.gamma), 1e14);
}

TEST_F(ColorCorrectionConversion, SlidersAtRestGiveTheEmptyRecordAndAMessage)
{
    ManualEnhance effect;
    effect.setTint(1e-13)->setGamma(-1e-12);
    auto const converted = convert(effect);
    EXPECT_EQ(converted.stageCode, 0);
    EXPECT_EQ(converted.implementation, "");
    EXPECT_THAT(converted.settings, IsEmpty());
    EXPECT_THAT(converted.log,
        ElementsAre("Couldn't provide settings for effect. Effect ID is 7cbc055b-98bf-4fcc-be7d-f431a05e608a"));
}

TEST(ManualEnhanceConverter, SlidersAtRestGiveARecordOfNothing)
{
    Factory::Conversions table;
    Factory::addColorCorrection(table);
    Factory::FactoryCaches caches;
    auto const record = table.video.value(Id::ManualEnhance).convert(ManualEnhance(), {{}, caches});
    EXPECT_THAT(record.settings, IsEmpty());
    EXPECT_EQ(record.stageCode, 18);
    EXPECT_EQ(record.implementation, "DEFAULT");
}

} // namespace
