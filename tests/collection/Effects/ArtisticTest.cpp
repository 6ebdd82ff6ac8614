#include <effects/Artistic.h>
#include <support/Conversion.h>
#include <support/Filter.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::expectConversion;
using Testing::settings;

// 0.1 in single precision is 0.10000000149011612.
class ArtisticConversion : public Testing::ConversionTest
{};

TEST_F(ArtisticConversion, OilPaint)
{
    OilPaint effect;
    effect.intensity = 0.1;
    effect.radius = 7;
    expectConversion(
        effect, settings("SettingsEffectOilPaint", R"(["SetIntensity", 0.10000000149011612])", R"("radius": 7)"));
}

TEST_F(ArtisticConversion, PopArtPassesItsPresets)
{
    struct Row
    {
        int preset;
        char const * params;
    };
    Row const rows[] = {
        {0, "2, 15, 0.7, 0.96, 0.1, 0.1875"},
        {1, "3, 15, 0.7, 0.49, 0.1, 0.2111"},
        {2, "4, 15, 0.7, 0.1, 0.1, 0.1843"},
        {3, "5, 15, 0.7, 0.17, 0.1, 0.1341"},
    };
    for (Row const & row : rows) {
        PopArt effect;
        effect.intensity = 0.1;
        effect.preset = PopArt::Preset(row.preset);
        expectConversion(
            effect, settings("SettingsEffectPopArt",
                        std::string(R"(["SetIntensity", 0.10000000149011612], ["SetParams", )") + row.params + "]"));
    }
}

TEST_F(ArtisticConversion, PopArtOfAnUnknownPresetPassesTheIntensityAlone)
{
    for (int const preset : {-1, 4}) {
        PopArt effect;
        effect.preset = PopArt::Preset(preset);
        expectConversion(effect, settings("SettingsEffectPopArt", R"(["SetIntensity", 1])"));
    }
}

TEST_F(ArtisticConversion, Posterize)
{
    Posterize effect;
    effect.intensity = 0.1;
    effect.colorsNumber = 3;
    expectConversion(effect,
        settings("SettingsEffectPosterize", R"(["SetColorsNumber", 3], ["SetIntensity", 0.10000000149011612])"));
}

TEST_F(ArtisticConversion, FindEdges)
{
    FindEdges effect;
    effect.intensity = 0.1;
    effect.sensibility = 0.3;
    expectConversion(effect, settings("SettingsEffectFindEdges", R"(["SetParams", 0, 0.1, 0.3])"));
    effect.type = FindEdges::Method(1);
    expectConversion(effect, settings("SettingsEffectFindEdges", R"(["SetParams", 1, 0.1, 0.3])"));
}

TEST_F(ArtisticConversion, FindEdgesOfAnUnknownTypePassesNothing)
{
    for (int const type : {-1, 2}) {
        FindEdges effect;
        effect.type = FindEdges::Method(type);
        expectConversion(effect, settings("SettingsEffectFindEdges", ""));
    }
}

TEST_F(ArtisticConversion, HalfTone)
{
    HalfTone effect;
    effect.intensity = 0.1;
    effect.bkgnd = 0x80010203;
    effect.dtclr = 0x80FF0000;
    effect.scale = 0.3;
    effect.angle = 60;
    // 128 / 255.
    expectConversion(effect,
        settings("SettingsEffectHalfTone",
            R"(["SetBackGroundRGB", 1, 2, 3], ["SetDotRGB", 255, 0, 0], ["SetParam", 0.5019607843137255, 0.1, 0.3, 60])"));
}

TEST_F(ArtisticConversion, HalfToneAtItsDefaults)
{
    expectConversion(
        HalfTone(), settings("SettingsEffectHalfTone",
                        R"(["SetBackGroundRGB", 0, 0, 0], ["SetDotRGB", 0, 0, 0], ["SetParam", 0, 1, 0.001, 30])"));
}

TEST_F(ArtisticConversion, HalfToneTakesTheAlphaOfTheDotsAlone)
{
    HalfTone effect;
    effect.bkgnd = 0x80FF0000;
    effect.dtclr = 0xFF000000;
    expectConversion(
        effect, settings("SettingsEffectHalfTone",
                    R"(["SetBackGroundRGB", 255, 0, 0], ["SetDotRGB", 0, 0, 0], ["SetParam", 1, 1, 0.001, 30])"));
}

TEST_F(ArtisticConversion, Mosaic)
{
    struct Row
    {
        int type;
        char const * passed;
    };
    // An unknown one leaves the settings' own, 0.
    Row const rows[] = {{0, R"("type": 0)"}, {1, R"("type": 1)"}, {2, R"("type": 0)"}, {-1, R"("type": 0)"}};
    for (Row const & row : rows) {
        Mosaic effect;
        effect.intensity = 0.1;
        effect.type = Mosaic::Shape(row.type);
        effect.amountVer = 3;
        effect.amountHor = 4;
        expectConversion(effect, settings("SettingsEffectMosaic",
                                     R"(["SetAmount", 3, 4], ["SetIntensity", 0.10000000149011612])", row.passed));
    }
}

TEST_F(ArtisticConversion, GlassMosaic)
{
    GlassMosaic effect;
    effect.intensity = 0.1;
    effect.angle = 0.2;
    effect.curve = 0.3;
    effect.repeatsh = 0.4;
    effect.repeatsv = 0.5;
    expectConversion(effect, settings("SettingsEffectGlassMosaic",
                                 R"(["SetParams", 0.2, 0.3, 0.4, 0.5], ["SetIntensity", 0.10000000149011612])"));
}

TEST_F(ArtisticConversion, Erosion)
{
    Erosion effect;
    effect.intensity = 0.1;
    expectConversion(effect, settings("SettingsEffectErosion", R"(["SetParams", 0.1, 0])"));
    effect.type = Erosion::Direction(1);
    expectConversion(effect, settings("SettingsEffectErosion", R"(["SetParams", 0.1, 1])"));
}

TEST_F(ArtisticConversion, ErosionOfAnUnknownTypePassesNothing)
{
    for (int const type : {-1, 2}) {
        Erosion effect;
        effect.type = Erosion::Direction(type);
        expectConversion(effect, settings("SettingsEffectErosion", ""));
    }
}

TEST_F(ArtisticConversion, Diffuse)
{
    Diffuse effect;
    effect.intensity = 0.1;
    effect.level = 0.2;
    effect.prob = 0.3;
    expectConversion(
        effect, settings("SettingsEffectDiffuse", R"(["SetParams", 0.2, 0.3], ["SetIntensity", 0.10000000149011612])"));
}

TEST_F(ArtisticConversion, Stripes)
{
    Stripes effect;
    effect.intensity = 0.1;
    effect.count = 3;
    effect.deep = 0.2;
    expectConversion(effect, settings("SettingsEffectStripes",
                                 R"(["SetCount", 3], ["SetDeep", 0.2], ["SetIntensity", 0.10000000149011612])"));
}

TEST_F(ArtisticConversion, AddNoize)
{
    struct Row
    {
        int type;
        char const * passed;
    };
    Row const rows[] = {{0, R"("type": 0)"}, {1, R"("type": 1)"}, {2, R"("type": 0)"}, {-1, R"("type": 0)"}};
    for (Row const & row : rows) {
        AddNoize effect;
        effect.intensity = 0.1;
        effect.type = AddNoize::Kind(row.type);
        expectConversion(effect, settings("SettingsEffectAddNoize", R"(["SetLevel", 0.1])", row.passed));
    }
}

} // namespace
