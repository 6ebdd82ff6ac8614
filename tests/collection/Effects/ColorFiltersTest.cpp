#include <typeinfo>

#include <effects/ColorFilters.h>
#include <effects/PrivateIdentity.h>
#include <support/Conversion.h>
#include <support/Filter.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::expectConversion;
using Testing::settings;

// 0.1 in single precision is 0.10000000149011612.
class ColorFiltersConversion : public Testing::ConversionTest
{};

TEST_F(ColorFiltersConversion, ColorBrush)
{
    struct Row
    {
        int type;
        char const * passed;
    };
    // An unknown one leaves the settings' own, 0.
    Row const rows[] = {{0, "0"}, {1, "1"}, {2, "0"}, {-1, "0"}};
    for (Row const & row : rows) {
        ColorBrush effect;
        effect.intensity = 0.1;
        effect.pType = ColorBrush::Brush(row.type);
        effect.angle = 3;
        effect.size = 4;
        effect.rough = 5;
        expectConversion(effect, settings("SettingsEffectColorBrush", R"(["SetIntensity", 0.10000000149011612])",
                                     std::string(R"("angle": 3, "size": 4, "rough": 5, "type": )") + row.passed));
    }
}

TEST_F(ColorFiltersConversion, ColorFilterFallsBackToThePlainPreset)
{
    struct Row
    {
        int preset;
        int passed;
    };
    Row rows[36 + 4] = {{-2147483647 - 1, 0}, {-1, 0}, {36, 0}, {2147483647, 0}};
    for (int preset = 0; preset <= 35; ++preset)
        rows[4 + preset] = {preset, preset};
    for (Row const & row : rows) {
        ColorFilter effect;
        effect.intensity = 0.1;
        effect.preset = ColorFilter::Preset(row.preset);
        expectConversion(
            effect, settings("SettingsEffectColorFilter", "",
                        R"("preset": )" + std::to_string(row.passed) + R"(, "intensity": 0.10000000149011612)"));
    }
}

TEST_F(ColorFiltersConversion, ColorMixBurn)
{
    ColorMixBurn effect;
    effect.intensity = 0.1;
    expectConversion(effect, settings("SettingsEffectColorMixBurn", R"(["SetStrength", 0.1])"));
}

TEST_F(ColorFiltersConversion, ColorSelectAtItsDefaults)
{
    expectConversion(
        ColorSelect(), settings("SettingsEffectColorSelect", R"(["SetParams", 80, 0, 0.03, 0.1], ["SetIntensity", 1])",
                           R"("red": 0, "green": 200, "blue": 0)"));
}

TEST_F(ColorFiltersConversion, ColorSelect)
{
    struct Row
    {
        int noiseLevel;
        char const * passed;
    };
    Row const rows[] = {{256, "1"}, {128, "0.5"}, {1, "0.00390625"}, {-256, "-1"}};
    for (Row const & row : rows) {
        ColorSelect effect;
        effect.intensity = 0.1;
        effect.color = 0x00102030;
        effect.hueTolerance = 5;
        effect.noiseLevel = row.noiseLevel;
        effect.harshness = 150;
        effect.transparency = 25;
        expectConversion(effect, settings("SettingsEffectColorSelect",
                                     std::string(R"(["SetParams", 5, )") + row.passed +
                                         R"(, 1.5, 0.25], ["SetIntensity", 0.10000000149011612])",
                                     R"("red": 16, "green": 32, "blue": 48)"));
    }
}

TEST_F(ColorFiltersConversion, ColorMixExchangeDropsTheAlpha)
{
    for (std::uint32_t const alpha : {0x00000000U, 0x80000000U, 0xFF000000U}) {
        ColorMixExchange effect;
        effect.intensity = 0.1;
        effect.color = alpha | 0x102030;
        expectConversion(effect, settings("SettingsEffectColorMixExchange",
                                     R"(["SetExchangeColor", 16, 32, 48], ["SetIntensity", 0.10000000149011612])"));
    }
}

TEST_F(ColorFiltersConversion, Invert)
{
    Invert effect;
    effect.intensity = 0.1;
    expectConversion(effect, settings("SettingsEffectInvert", R"(["SetIntensity", 0.10000000149011612])"));
}

// The conversion of a host's own class is tested in the tests of that host.
TEST_F(ColorFiltersConversion, ColorMixFieldIsABadCastWithoutItsClass)
{
    VideoEffect const effect(Id::ColorMixField, Id::ColorMixField);
    EXPECT_THROW(Factory::videoEffectSettings(effect, {}), std::bad_cast);
}

} // namespace
