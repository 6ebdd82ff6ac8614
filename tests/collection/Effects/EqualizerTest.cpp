#include <limits>

#include <effects/Equalizer.h>
#include <support/Conversion.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::convert;
using testing::ElementsAre;
using testing::IsEmpty;
using Testing::settings;

class EqualizerConversion : public Testing::ConversionTest
{};

TEST_F(EqualizerConversion, CopiesItsBandsInOrderAndNothingElse)
{
    AudioEqualizer effect;
    effect.intensity = 0.5;
    effect.preset = AudioEqualizer::Preset{7};
    effect.presetName = "Mine";
    effect.multiband = {{440, -3.5}, {-1, 0.1}, {440, 2}};
    auto const converted = convert(effect, Factory::AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioEqualizer", R"(["SetMultiband", [[440, -3.5], [-1, 0.1], [440, 2]]])")));
    EXPECT_THAT(converted.log, IsEmpty());
}

TEST_F(EqualizerConversion, WithoutBandsAnEmptyListIsPassed)
{
    EXPECT_THAT(convert(AudioEqualizer(), Factory::AudioParams()).settings,
        ElementsAre(settings("SettingsAudioEqualizer", R"(["SetMultiband", []])")));
}

TEST_F(EqualizerConversion, APresetIsItsBands)
{
    auto const effect = AudioEqualizer::makePreset(AudioEqualizer::Preset{2});
    EXPECT_THAT(convert(effect, Factory::AudioParams()).settings,
        ElementsAre(settings("SettingsAudioEqualizer",
            R"(["SetMultiband", [[31, 0], [63, 0], [125, 0], [250, 3.5], [500, 0], [1000, 0], [2000, 5], [4000, 0], )"
            R"([8000, 0], [16000, 0]]])")));
}

} // namespace
