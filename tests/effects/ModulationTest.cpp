#include <effects/Identity.h>
#include <effects/Modulation.h>
#include <support/Documents.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect;
using Testing::expectKeys;

TEST(Modulation, Identity)
{
    struct Row
    {
        Object const & effect;
        QString id;
        char const * tag;
        double intensity;
        Impl impl;
        bool hasIntensity;
    };
    AudioFlanger const flanger;
    AudioVibrato const vibrato;
    AudioDistortion const distortion;
    AudioReverb const reverb;
    Row const rows[] = {
        {flanger, Id::Flanger, "effect_audio_flanger", 0.71, Impl::Effect, true},
        {vibrato, Id::Vibrato, "effect_audio_vibrato", 0.8, Impl::Effect, true},
        {distortion, Id::Distortion, "effect_audio_distortion", 0.5, Impl::Effect, true},
        {reverb, Id::Reverb, "effect_audio_reverb", 1, Impl::Filter, false},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.tag);
        EXPECT_EQ(row.effect.id, row.id);
        EXPECT_EQ(row.effect.groupId, row.id);
        EXPECT_EQ(row.effect.tag, row.tag);
        EXPECT_EQ(row.effect.defaultTag(), row.tag);
        EXPECT_EQ(row.effect.intensity, row.intensity);
        EXPECT_EQ(row.effect.type(), Type::Audio);
        EXPECT_EQ(row.effect.impl(), row.impl);
        EXPECT_EQ(row.effect.hasIntensity(), row.hasIntensity);
    }
}

TEST(Modulation, Defaults)
{
    AudioFlanger const flanger;
    EXPECT_EQ(flanger.shape, AudioFlanger::Shape{1});
    EXPECT_EQ(flanger.interpolation, AudioFlanger::Interpolation{0});
    EXPECT_EQ(flanger.delay, 0);
    EXPECT_EQ(flanger.depth, 2);
    EXPECT_EQ(flanger.regen, 0);
    EXPECT_EQ(flanger.speed, 0.5);
    EXPECT_EQ(flanger.phase, 25);
    EXPECT_EQ(AudioVibrato().frequencyHz, 15);
    AudioDistortion const distortion;
    EXPECT_EQ(distortion.type, AudioDistortion::Kind{0});
    EXPECT_EQ(distortion.boost, 0.1);
    EXPECT_EQ(distortion.tone, 0.5);
    AudioReverb const reverb;
    EXPECT_EQ(reverb.delay, 10);
    EXPECT_EQ(reverb.duration, 600);
    EXPECT_EQ(reverb.dryWetBalance, 0.3);
    EXPECT_EQ(reverb.frequency, 16000);
}

TEST(Modulation, Archives)
{
    AudioFlanger flanger;
    flanger.shape = AudioFlanger::Shape{7};
    flanger.interpolation = AudioFlanger::Interpolation{-7};
    flanger.delay = (std::int64_t(1) << 53) + 1;
    flanger.depth = 3;
    flanger.regen = 0.25;
    flanger.speed = 1.5;
    flanger.phase = 90;
    expectKeys(flanger, R"({"delay": 9007199254740993, "depth": 3, "interpolation": -7, "phase": 90.0,
        "regen": 0.25, "shape": 7, "speed": 1.5})"_json);

    AudioVibrato vibrato;
    vibrato.frequencyHz = 7.25;
    expectKeys(vibrato, R"({"frequencyHz": 7.25})"_json);

    AudioDistortion distortion;
    distortion.type = AudioDistortion::Kind{4};
    distortion.boost = 0.75;
    distortion.tone = 0.25;
    expectKeys(distortion, R"({"boost": 0.75, "tone": 0.25, "type": 4})"_json);

    AudioReverb reverb;
    reverb.delay = 1;
    reverb.duration = 2;
    reverb.dryWetBalance = -0.5;
    reverb.frequency = 3;
    expectKeys(reverb, R"({"delay": 1, "dryWetBalance": -0.5, "duration": 2, "frequency": 3})"_json);
}

} // namespace
