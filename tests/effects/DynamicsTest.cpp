#include <EditorModel/EffectArchive.h>
#include <effects/Dynamics.h>
#include <effects/Identity.h>
#include <support/Documents.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect;
using Testing::expectKeys;

template <class Processor> void expectCommonDefaults(Processor const & effect)
{
    // The fields are shared, and no class lies between.
    static_assert(std::is_base_of_v<AudioEffect, Processor>);
    static_assert(!std::is_polymorphic_v<AudioDynamics>);
    EXPECT_EQ(effect.type(), Type::Audio);
    EXPECT_EQ(effect.impl(), Impl::Effect);
    EXPECT_TRUE(effect.hasIntensity());
    EXPECT_EQ(effect.detection, AudioDynamics::Detection{0});
    EXPECT_EQ(effect.link, AudioDynamics::Link{0});
    EXPECT_EQ(effect.gainIn, Decibel());
    EXPECT_EQ(effect.threshold.dbLevel(), -18.1);
    EXPECT_EQ(effect.ratio, 2);
    EXPECT_EQ(effect.attack, 20);
    EXPECT_EQ(effect.release, 250);
    EXPECT_EQ(effect.gainOut, Decibel());
}

TEST(AudioNoiseGate, Defaults)
{
    AudioNoiseGate const effect;
    expectCommonDefaults(effect);
    EXPECT_EQ(effect.id, Id::NoiseGate);
    EXPECT_EQ(effect.groupId, Id::NoiseGate);
    EXPECT_EQ(effect.tag, "effect_audio_noise_gate");
    EXPECT_EQ(effect.defaultTag(), "effect_audio_noise_gate");
    EXPECT_EQ(effect.intensity, 0.94);
    EXPECT_EQ(effect.knee, 2.828427125);
}

TEST(AudioCompressor, Defaults)
{
    AudioCompressor const effect;
    expectCommonDefaults(effect);
    EXPECT_EQ(effect.id, Id::Compressor);
    EXPECT_EQ(effect.groupId, Id::Compressor);
    EXPECT_EQ(effect.tag, "effect_audio_compressor");
    EXPECT_EQ(effect.defaultTag(), "effect_audio_compressor");
    EXPECT_EQ(effect.intensity, 1);
    EXPECT_EQ(effect.knee, 2.82843);
}

TEST(AudioNoiseGate, RangeIsTheIntensitySeenFromTheOtherEnd)
{
    AudioNoiseGate effect;
    effect.setRange(0.25);
    EXPECT_EQ(effect.intensity, 0.75);
    EXPECT_EQ(effect.range(), 0.25);
    EXPECT_FALSE(effect.Object::range.has_value());
}

TEST(AudioNoiseGate, RangeIsNoFieldOfItsOwn)
{
    AudioNoiseGate effect;
    effect.setRange(0.25);
    std::string const document = Archive::toJson(effect);
    EXPECT_EQ(document.find("range"), std::string::npos) << document;
    EXPECT_NE(document.find(R"("intensity":0.75)"), std::string::npos) << document;
}

template <class Effect> class DynamicsArchive : public testing::Test
{};
using Processors = testing::Types<AudioNoiseGate, AudioCompressor>;
TYPED_TEST_SUITE(DynamicsArchive, Processors, );

TYPED_TEST(DynamicsArchive, EveryFieldSurvives)
{
    TypeParam effect;
    effect.detection = AudioDynamics::Detection{-7};
    effect.link = AudioDynamics::Link{9};
    effect.gainIn = Decibel::fromDbLevel(-1.25);
    effect.threshold = Decibel::fromDbLevel(-30.3);
    effect.ratio = 4.5;
    effect.attack = -(std::int64_t(1) << 40);
    effect.release = std::int64_t(1) << 41;
    effect.gainOut = Decibel::fromDbLevel(6.1);
    effect.knee = 0.125;
    effect.intensity = 0.5;

    // The base is the common one, whatever lies between in the code.
    EXPECT_EQ(nlohmann::json::parse(Archive::toJson(effect)).at("Effect::AudioEffect").at("Effect::Object").at("id"),
        effect.id.toStdString());
    expectKeys(effect, R"({"attack": -1099511627776, "detection": -7, "gainIn": -1.25, "gainOut": 6.1,
        "knee": 0.125, "link": 9, "ratio": 4.5, "release": 2199023255552,
        "threshold": -30.3})"_json);
}

} // namespace
