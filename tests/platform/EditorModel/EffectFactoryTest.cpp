#include <EditorModel/EffectFactory.h>

#include <array>
#include <cstdint>
#include <stdexcept>
#include <string>

#include "TestEffect.h"

#include <gtest/gtest.h>

namespace {

using namespace Effect::Factory;

/// Tells in its record what it was asked.
class EchoFactory final : public IFactory
{
    EffectSettings createVideoEffectSettings(Effect::Object const &, VideoParams const & params) override
    {
        return {{}, 18, std::to_string(params.frameGeometry[0]) + ' ' + std::to_string(params.duration)};
    }
    EffectSettings createAudioEffectSettings(Effect::Object const & effect, AudioParams const & params) override
    {
        return {{}, 1, effect.id.toStdString() + ' ' + std::to_string(params.sampleRate)};
    }
};

TEST(EffectFactory, NoneIsInstalledAtFirst)
{
    EXPECT_EQ(factory(), nullptr);
    EXPECT_THROW(videoEffectSettings(Sample::Effect(), {}), std::logic_error);
    EXPECT_THROW(audioEffectSettings(Sample::Effect(), {}), std::logic_error);
}

TEST(EffectFactory, TheInstalledOneIsAsked)
{
    EchoFactory echo;
    setFactory(&echo);
    EXPECT_EQ(factory(), &echo);
    VideoParams params;
    EXPECT_EQ(params.frameGeometry, (std::array<std::int64_t, 2>{0, 0}));
    EXPECT_EQ(params.duration, 0);
    params.frameGeometry = {1920, 1080};
    params.duration = 1000;
    auto const video = videoEffectSettings(Sample::Effect(), params);
    EXPECT_EQ(video.stageCode, 18);
    EXPECT_EQ(video.implementation, "1920 1000");
    auto const audio = audioEffectSettings(Sample::Effect(), {});
    EXPECT_EQ(audio.stageCode, 1);
    EXPECT_EQ(audio.implementation, "the-id 48000");

    setFactory(nullptr);
    EXPECT_EQ(factory(), nullptr);
    EXPECT_THROW(videoEffectSettings(Sample::Effect(), {}), std::logic_error);
}

TEST(EffectFactory, ADefaultRecordIsEmpty)
{
    EffectSettings const record;
    EXPECT_TRUE(record.settings.empty());
    EXPECT_EQ(record.stageCode, 0);
    EXPECT_TRUE(record.implementation.empty());
}

} // namespace
