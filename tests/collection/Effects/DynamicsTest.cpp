#include <cmath>
#include <limits>

#include <effects/Dynamics.h>
#include <Settings/SettingsAudio.h>
#include <support/Conversion.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Quoril::Proc::SettingsAudioCompressor;
using Quoril::Proc::SettingsAudioGate;
using Testing::convert;
using testing::ElementsAre;
using Testing::settings;

class DynamicsConversion : public Testing::ConversionTest
{
protected:
    // Levels whose ratios are known: 20 dB are 10, 40 dB are 100, -20 dB are 0.1. Single precision makes 0.1 of it
    // 0.10000000149011612 and 0.01 0.009999999776482582.
    template <class Processor> static Processor processor()
    {
        Processor effect;
        effect.intensity = 0.25;
        effect.detection = AudioDynamics::Detection{1};
        effect.link = AudioDynamics::Link{1};
        effect.gainIn = Decibel::fromDbLevel(20);
        effect.threshold = Decibel::fromDbLevel(-20);
        effect.ratio = 1.5;
        effect.attack = 1;
        effect.release = 0;
        effect.gainOut = Decibel::fromDbLevel(40);
        effect.knee = 0.1;
        return effect;
    }

    template <class Settings, class Processor> static Settings converted(Processor const & effect)
    {
        auto const record = Factory::audioEffectSettings(effect, {});
        return dynamic_cast<Settings const &>(*record.settings.at(0));
    }
};

TEST_F(DynamicsConversion, NoiseGate)
{
    auto const converted = convert(processor<AudioNoiseGate>(), Factory::AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioGate",
            R"(["SetThreshold", 0.10000000149011612], ["SetLevelIn", 10], ["SetIntensity", 0.25], ["SetRatio", 1.5], )"
            R"(["SetAttackMs", 1], ["SetReleaseMs", 0.009999999776482582], ["SetMakeup", 100], )"
            R"(["SetKnee", 0.10000000149011612])",
            R"("detection": 1, "link": 1)")));
}

TEST_F(DynamicsConversion, CompressorKeepsItsThresholdWhole)
{
    auto const converted = convert(processor<AudioCompressor>(), Factory::AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioCompressor",
            R"(["SetIntensity", 0.25], ["SetLevelIn", 10], ["SetThreshold", 0.1], ["SetRatio", 1.5], )"
            R"(["SetAttack", 1], ["SetRelease", 0.009999999776482582], ["SetMakeup", 100], )"
            R"(["SetKnee", 0.10000000149011612])",
            R"("detection": 1, "link": 1)")));
}

TEST_F(DynamicsConversion, Defaults)
{
    auto const gate = converted<SettingsAudioGate>(AudioNoiseGate());
    auto const compressor = converted<SettingsAudioCompressor>(AudioCompressor());
    // 10^(-18.1 / 20) to 20 places.
    EXPECT_EQ(gate.GetThreshold(), 0.12445146117713850870F);
    EXPECT_DOUBLE_EQ(compressor.GetThreshold(), 0.12445146117713850870);
    EXPECT_NE(compressor.GetThreshold(), static_cast<double>(gate.GetThreshold()));
    EXPECT_EQ(gate.GetIntensity(), 0.94F);
    EXPECT_EQ(compressor.GetIntensity(), 1);
    EXPECT_EQ(gate.GetKnee(), 2.828427125F);
    EXPECT_EQ(compressor.GetKnee(), 2.82843F);
    EXPECT_NE(gate.GetKnee(), compressor.GetKnee());
    EXPECT_EQ(gate.GetAttackMs(), 20);
    EXPECT_EQ(compressor.GetRelease(), 250);
}

TEST_F(DynamicsConversion, TimesAreRaised)
{
    struct Row
    {
        std::int64_t milliseconds;
        float passed;
    };
    constexpr Row rows[] = {
        {1, 1},
        {0, 0.01F},
        {-1, 0.01F},
        {std::numeric_limits<std::int64_t>::min(), 0.01F},
        {std::numeric_limits<std::int64_t>::max(), 9223372036854775808.0F}, // 2^63
        // Through double it is the even neighbour 2^60 + 2^36, which lies half-way between two floats, and the even
        // one of those is 2^60. Straight it would be 2^60 + 2^37.
        {(std::int64_t(1) << 60) + (std::int64_t(1) << 36) + 1, 1152921504606846976.0F},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.milliseconds);
        AudioNoiseGate gate;
        gate.attack = gate.release = row.milliseconds;
        EXPECT_EQ(converted<SettingsAudioGate>(gate).GetAttackMs(), row.passed);
        EXPECT_EQ(converted<SettingsAudioGate>(gate).GetReleaseMs(), row.passed);
        AudioCompressor compressor;
        compressor.attack = compressor.release = row.milliseconds;
        EXPECT_EQ(converted<SettingsAudioCompressor>(compressor).GetAttack(), row.passed);
        EXPECT_EQ(converted<SettingsAudioCompressor>(compressor).GetRelease(), row.passed);
    }
}

TEST_F(DynamicsConversion, UnknownNumbersBecomeZero)
{
    for (auto const & [number, passed] : {std::pair(0, 0), {1, 1}, {2, 0}, {-1, 0}, {INT32_MIN, 0}, {INT32_MAX, 0}}) {
        SCOPED_TRACE(number);
        AudioNoiseGate gate;
        gate.detection = AudioDynamics::Detection{number};
        EXPECT_EQ(converted<SettingsAudioGate>(gate).detection, passed);
        EXPECT_EQ(converted<SettingsAudioGate>(gate).link, 0);
        AudioCompressor compressor;
        compressor.link = AudioDynamics::Link{number};
        EXPECT_EQ(converted<SettingsAudioCompressor>(compressor).detection, 0);
        EXPECT_EQ(converted<SettingsAudioCompressor>(compressor).link, passed);
    }
}

TEST_F(DynamicsConversion, WhatIsNotFinitePassesOn)
{
    AudioCompressor effect;
    effect.threshold = Decibel::fromDbLevel(-std::numeric_limits<double>::infinity());
    effect.gainIn = Decibel::fromDbLevel(std::numeric_limits<double>::infinity());
    effect.ratio = std::numeric_limits<double>::quiet_NaN();
    auto const settings = converted<SettingsAudioCompressor>(effect);
    EXPECT_EQ(settings.GetThreshold(), 0);
    EXPECT_EQ(settings.GetLevelIn(), std::numeric_limits<float>::infinity());
    EXPECT_TRUE(std::isnan(settings.GetRatio()));
}

} // namespace
