#include <cmath>
#include <limits>

#include <effects/Modulation.h>
#include <Settings/SettingsAudio.h>
#include <support/Conversion.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Factory::AudioParams;
using Quoril::Proc::SettingsAudioFlanger;
using Reverberation = Quoril::Proc::SettingsAudioReverberationImpulseResponse;
using Testing::convert;
using testing::ElementsAre;
using Testing::settings;

class ModulationConversion : public Testing::ConversionTest
{
protected:
    template <class Settings> static Settings converted(Object const & effect, AudioParams const & params = {})
    {
        auto const record = Factory::audioEffectSettings(effect, params);
        return dynamic_cast<Settings const &>(*record.settings.at(0));
    }
};

// Of 0.71, 0.8 and 0.1 in single precision: 0.7099999785423279, 0.800000011920929 and 0.10000000149011612.

TEST_F(ModulationConversion, Flanger)
{
    AudioFlanger effect;
    effect.shape = AudioFlanger::Shape{0};
    effect.interpolation = AudioFlanger::Interpolation{1};
    effect.delay = 3;
    effect.depth = -4;
    effect.regen = 0.25;
    effect.speed = 0.1;
    auto const converted = convert(effect, AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioFlanger",
            R"(["SetIntensity", 0.7099999785423279], ["SetDelay", 3], ["SetDepth", -4], ["SetRegen", 0.25], )"
            R"(["SetSpeed", 0.10000000149011612], ["SetPhase", 25])",
            R"("shape": 0, "interpolation": 1)")));
}

TEST_F(ModulationConversion, FlangersUnknownNumbersGoDifferentWays)
{
    struct Row
    {
        int number, shape, interpolation;
    };
    constexpr Row rows[] = {{0, 0, 0}, {1, 1, 1}, {2, 1, 0}, {7, 1, 0}, {-1, 1, 0}, {INT32_MIN, 1, 0}};
    for (Row const & row : rows) {
        SCOPED_TRACE(row.number);
        AudioFlanger effect;
        effect.shape = AudioFlanger::Shape{row.number};
        effect.interpolation = AudioFlanger::Interpolation{row.number};
        auto const settings = converted<SettingsAudioFlanger>(effect);
        EXPECT_EQ(settings.shape, row.shape);
        EXPECT_EQ(settings.interpolation, row.interpolation);
    }
}

TEST_F(ModulationConversion, FlangersTimesGoStraightToSinglePrecision)
{
    // Half-way between two floats, and one more: by way of a double the one would be lost, and with it the direction.
    AudioFlanger effect;
    effect.delay = (std::int64_t(1) << 60) + (std::int64_t(1) << 36) + 1;
    effect.depth = -effect.delay;
    auto const settings = converted<SettingsAudioFlanger>(effect);
    EXPECT_EQ(settings.GetDelay(), 1152921642045800448.0F); // 2^60 + 2^37
    EXPECT_EQ(settings.GetDepth(), -1152921642045800448.0F);
}

TEST_F(ModulationConversion, Vibrato)
{
    auto const converted = convert(AudioVibrato(), AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioVibrato", R"(["SetIntensity", 0.800000011920929], ["SetFrequency", 15])")));
}

TEST_F(ModulationConversion, DistortionPassesItsToneFirst)
{
    auto const converted = convert(AudioDistortion(), AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioDistortion",
            R"(["SetIntensity", 0.5], ["SetTone", 0.5], ["SetBoost", 0.10000000149011612])", R"("type": 0)")));
}

TEST_F(ModulationConversion, DistortionsKinds)
{
    for (auto const & [kind, passed] :
        {std::pair(0, 0), {1, 1}, {2, 2}, {3, 3}, {4, 4}, {5, 0}, {-1, 0}, {INT32_MAX, 0}}) {
        AudioDistortion effect;
        effect.type = AudioDistortion::Kind{kind};
        EXPECT_EQ(converted<Quoril::Proc::SettingsAudioDistortion>(effect).type, passed) << kind;
    }
}

TEST_F(ModulationConversion, Reverb)
{
    auto const converted = convert(AudioReverb(), AudioParams{44100});
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioReverberationImpulseResponse",
            R"(["SetReverberationTime", 0.6], ["SetDelay", 10], ["SetSlpfFrequency", 16000], ["SetDryGain", 0.7], )"
            R"(["SetWetGain", 1])",
            R"("modeA": 2, "modeB": 1, "modeC": 1)")));
}

TEST_F(ModulationConversion, ReverbsLowPassEndsBelowHalfTheSampleRate)
{
    struct Row
    {
        int sampleRate, frequency, passed;
    };
    constexpr Row rows[] = {
        {22050, 16000, 11025},
        {44100, 16000, 16000},
        {44100, 30000, 22050},
        {32000, 16000, 16000},
        {32001, 16001, 16000},
        {31999, 16000, 15999},
        {-3, 16000, -1}, // towards zero
        {44100, INT32_MIN, INT32_MIN},
    };
    for (Row const & row : rows) {
        AudioReverb effect;
        effect.frequency = row.frequency;
        EXPECT_EQ(converted<Reverberation>(effect, AudioParams{row.sampleRate}).GetSlpfFrequency(), row.passed)
            << row.sampleRate << ' ' << row.frequency;
    }
}

TEST_F(ModulationConversion, ReverbsBalanceTurnsOneSideDown)
{
    struct Row
    {
        double balance, dry, wet;
    };
    constexpr Row rows[] = {
        {0, 1, 1},
        {-0.0, 1, 1},
        {0.25, 0.75, 1},
        {-0.25, 1, 0.75},
        {1, 0, 1},
        {-1, 1, 0},
        {1.5, -0.5, 1},
        {-1.5, 1, -0.5},
        {std::numeric_limits<double>::quiet_NaN(), 1, 1},
        {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(), 1},
    };
    for (Row const & row : rows) {
        AudioReverb effect;
        effect.dryWetBalance = row.balance;
        auto const settings = converted<Reverberation>(effect);
        EXPECT_EQ(settings.GetDryGain(), row.dry) << row.balance;
        EXPECT_EQ(settings.GetWetGain(), row.wet) << row.balance;
    }
}

TEST_F(ModulationConversion, ReverbsTimesKeepTheirPrecision)
{
    AudioReverb effect;
    effect.delay = (std::int64_t(1) << 53) + 1;
    effect.duration = 1;
    auto const settings = converted<Reverberation>(effect);
    EXPECT_EQ(settings.GetDelay(), 9007199254740993);
    EXPECT_EQ(settings.GetReverberationTime(), 0.001);
}

} // namespace
