#include <collection/Effects/Stages.h>
#include <effects/Mirroring.h>
#include <effects/PrivateIdentity.h>
#include <Settings/SettingsTransform.h>
#include <support/Conversion.h>
#include <support/Documents.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::convert;
using testing::ElementsAre;
using Testing::settings;

class MirroringConversion : public Testing::ConversionTest
{};

TEST_F(MirroringConversion, FlipIsADiagonal)
{
    struct
    {
        bool vertical, horizontal;
        char const * matrix;
    } const rows[] = {
        {false, false, "[1, 0, 0, 0, 1, 0, 0, 0, 1]"},
        {true, false, "[1, 0, 0, 0, -1, 0, 0, 0, 1]"},
        {false, true, "[-1, 0, 0, 0, 1, 0, 0, 0, 1]"},
        {true, true, "[-1, 0, 0, 0, -1, 0, 0, 0, 1]"},
    };
    for (auto const & row : rows) {
        Flip effect;
        effect.vertical = row.vertical;
        effect.horizontal = row.horizontal;
        auto const converted = convert(effect);
        EXPECT_EQ(converted.stageCode, 18);
        EXPECT_EQ(converted.implementation, "DEFAULT");
        EXPECT_THAT(converted.settings,
            ElementsAre(settings("SettingsEffectTransform", "", std::string(R"("mode": 0, "matrix": )") + row.matrix)));
    }
}

TEST_F(MirroringConversion, Mirror)
{
    Mirror effect;
    effect.vertical = Mirror::Half::Second;
    effect.horizontal = Mirror::Half{3};
    auto const converted = convert(effect);
    EXPECT_EQ(converted.stageCode, 18);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(
        converted.settings, ElementsAre(settings("SettingsEffectMirror", "", R"("vertical": 2, "horizontal": 0)")));
}

} // namespace
