#include <cmath>
#include <limits>

#include <collection/Effects/Stages.h>
#include <effects/Geometry.h>
#include <effects/Identity.h>
#include <Settings/SettingsTransform.h>
#include <support/Conversion.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Proc = Quoril::Proc::SettingsEffectTransform;
using Testing::convert;
using testing::ElementsAre;
using Testing::settings;

class GeometryConversion : public Testing::ConversionTest
{};

TEST_F(GeometryConversion, CropPassesItsTransform)
{
    Crop effect;
    auto converted = convert(effect);
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsEffectTransform", "", R"("mode": 2, "matrix": [1, 0, 0, 0, 1, 0, 0, 0, 1])")));

    effect.setTransform({0.5, 0.1, 0.2, 2, 0.3, 0.4, -0.25, 0.75, 1.5});
    converted = convert(effect);
    EXPECT_THAT(converted.settings, ElementsAre(settings("SettingsEffectTransform", "",
                                        R"("mode": 2, "matrix": [0.5, 0.1, 0.3, 0.2, 2, 0.4, -0.25, 0.75, 1.5])")));
}

struct Turn
{
    int angle;
    double cosine, sine;
};

TEST_F(GeometryConversion, TransposeTurnsByAnyAngle)
{
    Turn const turns[] = {
        {0, 1, 0},
        // The cosine of the double nearest a right angle is the rest that is missing to the angle itself.
        {90, 6.123233995736766e-17, 1},
        {-90, 6.123233995736766e-17, -1},
        // The rest is another one here: the angle is not reduced.
        {450, 3.061616997868383e-16, 1},
        {1, 0.9998476951563913, 0.01745240643728351},
        {180, -1, 1.2246467991473532e-16},
    };
    for (Turn const & turn : turns) {
        SCOPED_TRACE(turn.angle);
        Transpose effect;
        effect.setAngle(turn.angle);
        auto const record = Factory::videoEffectSettings(effect, {});
        EXPECT_EQ(record.stageCode, 18);
        EXPECT_EQ(record.implementation, "DEFAULT");
        ASSERT_EQ(record.settings.size(), 1U);
        auto const & converted = dynamic_cast<Proc const &>(*record.settings[0]);
        EXPECT_EQ(converted.mode, Proc::Mode{1});
        double const expected[] = {turn.cosine, turn.sine, 0, -turn.sine, turn.cosine, 0, 0, 0, 1};
        for (std::size_t i = 0; i < 9; ++i)
            EXPECT_DOUBLE_EQ(converted.matrix[i], expected[i]) << "entry " << i;
    }
}

TEST_F(GeometryConversion, TransposeTakesTheEndsOfTheRange)
{
    for (int const angle : {std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        Transpose effect;
        effect.setAngle(angle);
        auto const record = Factory::videoEffectSettings(effect, {});
        auto const & converted = dynamic_cast<Proc const &>(*record.settings.at(0));
        EXPECT_NEAR(std::hypot(converted.matrix[0], converted.matrix[1]), 1, 1e-15);
    }
}

TEST_F(GeometryConversion, FixVertVideoPassesTheFramesGeometry)
{
    Factory::VideoParams params;
    params.frameGeometry = {1920, std::numeric_limits<std::int64_t>::min()};
    params.duration = 7;
    auto const converted = convert(FixVertVideo(), params);
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsEffectFixVertVideo", "", R"("geometry": [1920, -9223372036854775808])")));
}

} // namespace
