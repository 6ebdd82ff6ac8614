#include <EditorModel/EffectFactory.h>
#include <effects/CleanUp.h>
#include <effects/Holder.h>
#include <effects/Identity.h>
#include <effects/Modulation.h>
#include <Settings/SettingsAudio.h>
#include <support/Conversion.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Factory::AudioParams;
using Testing::convert;
using testing::ElementsAre;
using testing::IsEmpty;
using Testing::settings;

class CleanUpConversion : public Testing::ConversionTest
{
protected:
    static int level(int percent)
    {
        AudioNoiseSuppress effect;
        effect.levelPercent = percent;
        auto const record = Factory::audioEffectSettings(effect, {});
        return dynamic_cast<Quoril::Proc::SettingsAudioNoiseSuppress const &>(*record.settings.at(0)).GetLevel();
    }
};

TEST_F(CleanUpConversion, NoiseSuppress)
{
    AudioNoiseSuppress effect;
    effect.intensity = 0.5; // stays behind
    auto const converted = convert(effect, AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "SPEEX");
    EXPECT_THAT(converted.settings, ElementsAre(settings("SettingsAudioNoiseSuppress", R"(["SetLevel", -29])")));
}

TEST_F(CleanUpConversion, NoiseSuppressTruncatesItsLevel)
{
    EXPECT_EQ(level(0), 0);
    EXPECT_EQ(level(1), 0);
    EXPECT_EQ(level(2), 0);
    EXPECT_EQ(level(3), -1);
    EXPECT_EQ(level(100), -59);
    EXPECT_EQ(level(-1), 1);
    // The same in tenths: integer division truncates as well.
    for (int percent = -100; percent <= 200; ++percent)
        EXPECT_EQ(level(percent), (5 - 6 * percent) / 10) << percent;
    EXPECT_EQ(level(INT32_MAX), -1288490187); // of -1288490187.7
    EXPECT_EQ(level(INT32_MIN), 1288490189);  // of 1288490189.3
}

TEST_F(CleanUpConversion, MonoChannel)
{
    auto const converted = convert(AudioMonoChannel(), AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings, ElementsAre(settings("SettingsFilterResample", "", R"("channelCount": 1)")));
}

TEST_F(CleanUpConversion, DescriptorsAreRefused)
{
    struct Row
    {
        Object const & effect;
        char const * id;
    };
    AudioAiDenoise const denoise;
    AudioNormalize const normalize;
    BackgroundRemove const remove;
    AudioEnhance enhance;
    enhance.addEffect(std::make_unique<AudioVibrato>());
    EffectsHolder const holder(Id::Vibrato, Id::Vibrato, Type::Audio);
    Row const rows[] = {
        {denoise, "8451e4e1-2e63-5796-3529-3d21fc8a5b2e"},
        {normalize, "6c7a85ac-2a34-44a0-bd07-504f95370354"},
        {remove, "fba3cf32-25de-4284-8b40-404d2be8e667"},
        {enhance, "ufcj22tb-5tjx-v4xm-gtd4-m6n53eceqxfu"},
        // Whatever its identifier says.
        {holder, "5hv7ahhu-kmfe-rbyp-5sy2-v6rvzgb6pvg8"},
    };
    for (Row const & row : rows) {
        for (auto const & converted : {convert(row.effect), convert(row.effect, AudioParams())}) {
            EXPECT_THAT(converted.settings, IsEmpty());
            EXPECT_EQ(converted.stageCode, 0);
            EXPECT_EQ(converted.implementation, "");
            EXPECT_THAT(
                converted.log, ElementsAre(std::string("Settings requested for descriptor. Effect ID is ") + row.id));
        }
    }
}

TEST_F(CleanUpConversion, WhatAnEnhanceHoldsConvertsOnItsOwn)
{
    AudioEnhance enhance;
    enhance.addEffect(std::make_unique<AudioMonoChannel>())->addEffect(std::make_unique<AudioVibrato>());
    for (auto const & effect : enhance.effects)
        EXPECT_EQ(Factory::audioEffectSettings(*effect, {}).settings.size(), 1U);
}

} // namespace
