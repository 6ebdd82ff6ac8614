#include <effects/CleanUp.h>
#include <effects/Identity.h>
#include <support/Documents.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect;
using Testing::expectKeys;

TEST(CleanUp, Identity)
{
    struct Row
    {
        Object const & effect;
        QString id;
        QString group;
        char const * tag;
        char const * defaultTag;
        Type type;
        Impl impl;
        std::optional<Types::Range> range;
    };
    AudioNoiseSuppress const suppress;
    AudioMonoChannel const mono;
    AudioAiDenoise const denoise;
    AudioNormalize const normalize;
    BackgroundRemove const remove;
    Row const rows[] = {
        {suppress, Id::NoiseSuppress, Group::GroupAudioNoiseReduction, "effect_noisesuppress", "", Type::Audio,
            Impl::Filter, {}},
        {mono, Id::AudioMonoChannel, Id::AudioMonoChannel, "effect_audio_mono_channel", "", Type::Audio, Impl::Filter,
            {}},
        {denoise, Id::AiDenoise, Group::GroupAudioNoiseReduction, "effect_aidenoise", "", Type::Audio, Impl::Descriptor,
            Types::Range()},
        {normalize, Id::Normalize, Id::Normalize, "effect_audio_normalize", "effect_audio_normalize", Type::Audio,
            Impl::Descriptor, {}},
        {remove, Id::BackgroundRemove, Id::BackgroundRemove, "effect_background_remove", "", Type::Video,
            Impl::Descriptor, Types::Range()},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.tag);
        EXPECT_EQ(row.effect.id, row.id);
        EXPECT_EQ(row.effect.groupId, row.group);
        EXPECT_EQ(row.effect.tag, row.tag);
        EXPECT_EQ(row.effect.defaultTag(), row.defaultTag);
        EXPECT_EQ(row.effect.type(), row.type);
        EXPECT_EQ(row.effect.impl(), row.impl);
        EXPECT_FALSE(row.effect.hasIntensity());
        EXPECT_EQ(row.effect.range, row.range);
    }
}

TEST(CleanUp, Defaults)
{
    EXPECT_EQ(AudioNoiseSuppress().levelPercent, 50);
    EXPECT_EQ(AudioAiDenoise().aiModelPath, "");
    EXPECT_FALSE(AudioAiDenoise().aiModelPath.isNull());
    EXPECT_EQ(BackgroundRemove().downscalingFrameSize, 256);
    EXPECT_EQ(BackgroundRemove().aiModelPath, "");
    EXPECT_FALSE(BackgroundRemove().aiModelPath.isNull());
}

TEST(CleanUp, NoiseReductionIsOneGroupOfTwoEffects)
{
    EXPECT_NE(AudioNoiseSuppress().id, AudioAiDenoise().id);
    EXPECT_EQ(AudioNoiseSuppress().groupId, AudioAiDenoise().groupId);
}

TEST(ProcessingSettingsId, OfAudioAiDenoiseIsTheModel)
{
    AudioAiDenoise effect;
    EXPECT_EQ(effect.processingSettingsId(), "");
    effect.aiModelPath = "models/voice.onnx";
    EXPECT_EQ(effect.processingSettingsId(), "models/voice.onnx");
}

TEST(ProcessingSettingsId, OfBackgroundRemoveIsModelAndSize)
{
    BackgroundRemove effect;
    EXPECT_EQ(effect.processingSettingsId(), ":256");
    effect.aiModelPath = "models/people.onnx";
    effect.downscalingFrameSize = -1;
    EXPECT_EQ(effect.processingSettingsId(), "models/people.onnx:-1");
    // What looks like a place to fill in is a part of the path.
    effect.aiModelPath = "at 100%1/%2";
    effect.downscalingFrameSize = 1000000;
    EXPECT_EQ(effect.processingSettingsId(), "at 100%1/%2:1000000");
}

TEST(ProcessingSettingsId, OfTheOthersIsTheirIdentifier)
{
    EXPECT_EQ(AudioNoiseSuppress().processingSettingsId(), Id::NoiseSuppress);
    EXPECT_EQ(AudioMonoChannel().processingSettingsId(), Id::AudioMonoChannel);
    EXPECT_EQ(AudioNormalize().processingSettingsId(), Id::Normalize);
}

TEST(CleanUp, Archives)
{
    AudioNoiseSuppress suppress;
    suppress.levelPercent = -3;
    expectKeys(suppress, R"({"levelPercent": -3})"_json);

    AudioAiDenoise denoise;
    denoise.aiModelPath = QString::fromUtf8("Modelle/Geräusch.onnx");
    denoise.range = Types::Range(MTime(5), MTime(7));
    expectKeys(denoise, R"({"aiModelPath": "Modelle/Geräusch.onnx"})"_json);

    BackgroundRemove remove;
    remove.downscalingFrameSize = 512;
    remove.aiModelPath = "people";
    expectKeys(remove, R"({"aiModelPath": "people", "downscalingFrameSize": 512})"_json);

    // Without fields of their own: what is behind the base is the end.
    expectKeys(AudioMonoChannel(), R"({})"_json);
    expectKeys(AudioNormalize(), R"({})"_json);
}

} // namespace
