#include <cstdint>
#include <limits>
#include <memory>
#include <string>

#include <collection/Effects/FactoryCaches.h>
#include <collection/Effects/Stages.h>
#include <effects/Blur.h>
#include <effects/Light.h>
#include <effects/PrivateIdentity.h>
#include <Settings/SettingsBlur.h>
#include <Settings/SettingsLight.h>
#include <Settings/Value.h>
#include <support/Conversion.h>
#include <support/Filter.h>
#include <support/Images.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
namespace Proc = Quoril::Proc;
using Testing::convert;
using testing::ElementsAre;
using Testing::expectConversion;
using testing::IsEmpty;
using Testing::settings;
using Testing::writeImage;

constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();

class LightConversion : public Testing::ConversionTest
{};

struct Flight
{
    char const * image;
    int count;
    double scale;
    int firstValue, secondValue, direction;
    double moveSpeed, rotationSpeed, swingSpeed;
    int thirdValue;
};

constexpr Flight flights[] = {
    {"leaf2.png", 60, 0.75, 270, 30, -90, 0.0625, 0.0, 0.15, 45},
    {"baloon.png", 60, 0.87, 0, 30, 90, 0.0625, 0.0, 0.0, 45},
    {"bunny.png", 60, 0.81, 0, 30, -90, 0.0625, 0.0, 0.65, 69},
    {"cupid2.png", 10, 0.75, 350, 10, 180, 0.05, 0.0, 0.1, 9},
    {"gift box.png", 35, 0.87, 0, 30, -90, 0.15, 0.0, 0.3, 60},
    {"ghost2.png", 15, 1.5, 0, 30, 128, 0.0375, 0.0, 0.0, 45},
    {"heart.png", 50, 0.58, 0, 30, 100, 0.15, 0.0, 0.55, 80},
    {"envelope2.png", 21, 0.52, 11, 30, 80, 0.025, 0.0, 0.1, 11},
    {"paper plane.png", 25, 1.15, 31, 10, 190, 0.25, 0.0, 0.0, 1},
    {"umbrella.png", 30, 0.92, 0, 15, 90, 0.0625, 0.0, 0.0, 45},
    {"rose2.png", 64, 0.69, 0, 15, -90, 0.025, 0.1, 0.0, 1},
    {"flower1.png", 200, 0.29, 0, 15, -90, 0.025, 0.1, 0.0, 1},
    {"star.png", 120, 0.35, 0, 15, 100, 0.1, 1.0, 0.0, 45},
    {"air baloon.png", 14, 1.27, 0, 15, 90, 0.0375, 0.0, 0.0, 45},
    {"snowflake3.png", 113, 0.4, 0, 45, -90, 0.0375, 0.0, 0.25, 60},
    {"snowflake2.png", 83, 0.4, 0, 45, 200, 0.025, 0.25, 0.0, 45},
};

FlyingObjects flying(int preset)
{
    FlyingObjects effect;
    effect.preset = static_cast<FlyingObjects::Preset>(preset);
    return effect;
}

std::string call(char const * setter, Proc::Value const & argument)
{
    return Proc::Value(Proc::Value::List{setter, argument}).toString();
}

std::string imageOfWidth(int width)
{
    return call("SetImage", Proc::Value::Object{{"width", width}, {"height", 1}});
}

class FlyingObjectsConversion : public LightConversion
{
protected:
    // One image per preset, distinguished by width, from 1 on.
    void SetUp() override
    {
        int width = 0;
        for (Flight const & flight : flights)
            writeImage(::Settings::stockFlyingObjectsPath() + "/" + flight.image, ++width, 1);
    }

    Testing::TemporaryStock stock;
};

using Image = std::shared_ptr<Proc::ImageHandler const>;

Image image(FlyingObjects const & effect)
{
    auto const record = Factory::videoEffectSettings(effect, {});
    return dynamic_cast<Proc::SettingsEffectFlyingObjects const &>(*record.settings.at(0)).GetImage();
}

TEST_F(FlyingObjectsConversion, EveryPreset)
{
    int preset = 0;
    for (Flight const & flight : flights) {
        SCOPED_TRACE(flight.image);
        FlyingObjects effect = flying(preset);
        effect.intensity = 0.1;
        std::string const calls =
            imageOfWidth(preset + 1) + ", " +
            // 0.1 in single precision.
            R"(["SetIntensity", 0.10000000149011612], )" + call("SetObjectsCount", flight.count) + ", " +
            call("SetScale", flight.scale) + ", " + call("SetMoveDirection", flight.direction) + ", " +
            call("SetMoveSpeed", flight.moveSpeed) + ", " + call("SetRotationSpeed", flight.rotationSpeed) + ", " +
            call("SetSwingRotationSpeed", flight.swingSpeed);
        std::string const fields = R"("paramsHead": [1920, 1080], "firstValue": )" + std::to_string(flight.firstValue) +
                                   R"(, "secondValue": )" + std::to_string(flight.secondValue) + R"(, "thirdValue": )" +
                                   std::to_string(flight.thirdValue);
        expectConversion(effect, settings("SettingsEffectFlyingObjects", calls, fields), {{1920, 1080}, 1000});
        ++preset;
    }
    EXPECT_EQ(preset, 16);
}

TEST_F(FlyingObjectsConversion, UnknownPresetsHaveTheNearestImageAndNoFlight)
{
    struct Row
    {
        int preset;
        int width;
    };
    for (Row const & row : {Row{-1, 1}, Row{lowest, 1}, Row{16, 16}, Row{highest, 16}}) {
        expectConversion(flying(row.preset),
            settings("SettingsEffectFlyingObjects", imageOfWidth(row.width) + R"(, ["SetIntensity", 1])",
                R"("paramsHead": [3, 2], "firstValue": 0, "secondValue": 0, "thirdValue": 0)"),
            {{3, 2}, 0});
    }
}

TEST_F(FlyingObjectsConversion, CopiesTheGeometryWhole)
{
    std::int64_t const large = std::int64_t{1} << 62;
    auto const record = Factory::videoEffectSettings(FlyingObjects(), {{large, -large}, 5});
    auto const & filled = dynamic_cast<Proc::SettingsEffectFlyingObjects const &>(*record.settings.at(0));
    EXPECT_THAT(filled.paramsHead, ElementsAre(large, -large));
}

TEST_F(FlyingObjectsConversion, AFactorySharesItsImages)
{
    Image const first = image(flying(15));
    EXPECT_EQ(image(flying(15)), first);
    EXPECT_EQ(image(flying(16)), first);
    EXPECT_NE(image(flying(14)), first);
}

TEST_F(FlyingObjectsConversion, AMissingImageStaysMissing)
{
    QString const path = ::Settings::stockFlyingObjectsPath() + "/gift box.png";
    ASSERT_TRUE(QFile::remove(path));
    Image const missing = image(flying(4));
    ASSERT_NE(missing, nullptr);
    EXPECT_EQ(missing->pixels, nullptr);
    writeImage(path, 5, 1);
    EXPECT_EQ(image(flying(4)), missing);
}

TEST_F(LightConversion, LensFlareWritesThePresetsThatTheEngineKnows)
{
    struct Row
    {
        int presets;
        int written;
    };
    constexpr int untouched = 0; // as the settings start
    Row const rows[] = {{0, 0}, {1, 1}, {2, 2}, {3, 3}, {4, untouched}, {5, untouched}, {6, 4}, {7, 5}, {8, untouched},
        {-1, untouched}, {lowest, untouched}, {highest, untouched}};
    for (Row const & row : rows) {
        LensFlare effect;
        effect.Presets = static_cast<LensFlare::Preset>(row.presets);
        auto const record = Factory::videoEffectSettings(effect, {});
        auto const & filled = dynamic_cast<Proc::SettingsEffectLensFlare const &>(*record.settings.at(0));
        EXPECT_EQ(static_cast<int>(filled.preset), row.written) << row.presets;
    }
}

TEST_F(LightConversion, LensFlareInAFactory)
{
    LensFlare effect;
    effect.Presets = LensFlare::Preset{7};
    effect.intensity = 0.1;
    expectConversion(
        effect, settings("SettingsEffectLensFlare", R"(["SetIntensity", 0.10000000149011612])", R"("preset": 5)"));
    effect.Presets = LensFlare::Preset{5};
    expectConversion(
        effect, settings("SettingsEffectLensFlare", R"(["SetIntensity", 0.10000000149011612])", R"("preset": 0)"));
}

TEST_F(LightConversion, LightLeaksAlwaysWriteAPreset)
{
    auto const written = [](int presets) {
        LightLeaks effect;
        effect.Presets = static_cast<LightLeaks::Preset>(presets);
        auto const record = Factory::videoEffectSettings(effect, {});
        return static_cast<int>(dynamic_cast<Proc::SettingsEffectLightLeaks const &>(*record.settings.at(0)).preset);
    };
    for (int presets = 1; presets <= 15; ++presets)
        EXPECT_EQ(written(presets), presets);
    for (int const presets : {0, -1, lowest, 16, highest})
        EXPECT_EQ(written(presets), 0) << presets;
}

TEST_F(LightConversion, LightLeaksInAFactory)
{
    LightLeaks effect;
    effect.Presets = LightLeaks::Preset{15};
    effect.intensity = 0.1;
    expectConversion(
        effect, settings("SettingsEffectLightLeaks", R"(["SetIntensity", 0.10000000149011612])", R"("preset": 15)"));
}

TEST_F(LightConversion, EveryVignette)
{
    struct Row
    {
        std::string first, second, third;
        std::string color;
        std::string sizes;
    };
    Row const rows[] = {
        {"0", "1", "0", "0, 0, 0, 100", "0.45, 0.5"},
        {"0", "1", "0", "0, 0, 0, 200", "0.35, 0.5"},
        {"3", "0", "0", "255, 128, 128, 100", "0.45, 0.5"},
        {"0", "1", "0", "255, 255, 255, 200", "0.45, 0.55"},
        {"3", "1", "0", "0, 0, 0, 255", "0.45, 0.5"},
        {"4", "1", "1", "0, 0, 0, 100", "0.5, 0.6"},
        {"4", "1", "1", "0, 0, 0, 255", "0.4, 0.65"},
        {"5", "1", "0", "0, 0, 0, 200", "0.35, 0.5"},
        {"5", "1", "0", "0, 0, 0, 100", "0.35, 0.5"},
    };
    int preset = 0;
    for (Row const & row : rows) {
        SCOPED_TRACE(preset);
        VignetteFilter effect;
        effect.preset = static_cast<VignetteFilter::Preset>(preset);
        effect.intensity = 0.1;
        std::string const calls = R"(["SetColor", )" + row.color + R"(], ["SetParams", 0.5, 0.5, )" + row.sizes +
                                  R"(], ["SetIntensity", 0.10000000149011612])";
        expectConversion(effect, settings("SettingsEffectVignetteFilter", calls,
                                     R"("firstMode": )" + row.first + R"(, "secondMode": )" + row.second +
                                         R"(, "thirdMode": )" + row.third));
        ++preset;
    }
    EXPECT_EQ(preset, 9);
}

TEST_F(LightConversion, UnknownVignettesAreAnIntensityAndNothingElse)
{
    for (int const preset : {9, -1, lowest, highest}) {
        VignetteFilter effect;
        effect.preset = static_cast<VignetteFilter::Preset>(preset);
        expectConversion(effect, settings("SettingsEffectVignetteFilter", R"(["SetIntensity", 1])",
                                     R"("firstMode": 0, "secondMode": 0, "thirdMode": 0)"));
    }
}

TEST_F(LightConversion, ImagesOfOneNameInTwoFoldersAreTwo)
{
    Testing::TemporaryStock const stock;
    writeImage(::Settings::stockFlyingObjectsPath() + "/heart.png", 4, 1);
    writeImage(::Settings::stockBlurMasksPath() + "/heart.png", 9, 1);
    BokehBlur blur;
    blur.preset = BokehBlur::Preset::Heart;
    auto const record = Factory::videoEffectSettings(blur, {});
    EXPECT_EQ(dynamic_cast<Proc::SettingsEffectBokehBlur const &>(*record.settings.at(0)).GetImage()->width, 9);
    EXPECT_EQ(image(flying(6))->width, 4);
}

} // namespace
