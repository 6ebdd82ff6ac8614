#include <EditorModel/EffectFactory.h>

#include <array>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <type_traits>
#include <utility>

#include <Settings/SettingsBlur.h>

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

// A copy would have to share or clone what the record owns.
static_assert(!std::is_copy_constructible_v<EffectSettings>);
static_assert(!std::is_copy_assignable_v<EffectSettings>);
static_assert(std::is_nothrow_move_constructible_v<EffectSettings>);
static_assert(std::is_nothrow_move_assignable_v<EffectSettings>);
static_assert(std::is_nothrow_default_constructible_v<EffectSettings>);

TEST(EffectFactory, ARecordIsMoved)
{
    EffectSettings record{{}, 18, "DEFAULT"};
    record.settings.push_back(std::make_unique<Quoril::Proc::SettingsEffectBlurGaussian>());
    auto const * const settings = record.settings[0].get();

    EffectSettings moved(std::move(record));
    EXPECT_EQ(moved.stageCode, 18);
    EXPECT_EQ(moved.implementation, "DEFAULT");
    ASSERT_EQ(moved.settings.size(), 1U);
    EXPECT_EQ(moved.settings[0].get(), settings);

    EffectSettings assigned{{}, 1, "SPEEX"};
    assigned = std::move(moved);
    EXPECT_EQ(assigned.stageCode, 18);
    EXPECT_EQ(assigned.implementation, "DEFAULT");
    ASSERT_EQ(assigned.settings.size(), 1U);
    EXPECT_EQ(assigned.settings[0].get(), settings);
}

} // namespace
