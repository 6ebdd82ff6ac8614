#include <array>
#include <cmath>
#include <limits>

#include <collection/Effects/Conversions.h>
#include <effects/PrivateIdentity.h>
#include <effects/Voice.h>
#include <Settings/SettingsAudio.h>
#include <support/Conversion.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Factory::AudioParams;
using Quoril::Proc::SettingsAudioEqualizer;
using Quoril::Proc::SettingsAudioRadio;
using Testing::convert;
using testing::Each;
using testing::ElementsAre;
using testing::ElementsAreArray;
using Testing::settings;

std::vector<double> gains(SettingsAudioEqualizer const & equalizer)
{
    std::vector<double> gains;
    for (auto const & band : equalizer.GetMultiband())
        gains.push_back(band.gain);
    return gains;
}

template <class Settings> Settings settingsOf(Object const & effect)
{
    auto const record = Factory::audioEffectSettings(effect, {});
    return dynamic_cast<Settings const &>(*record.settings.at(0));
}

class VoiceConversion : public Testing::ConversionTest
{
protected:
    static std::vector<double> phoneGains(int low, int high)
    {
        AudioPhone effect;
        effect.lBound = low;
        effect.rBound = high;
        return gains(settingsOf<SettingsAudioEqualizer>(effect));
    }
};

TEST_F(VoiceConversion, Phone)
{
    AudioPhone effect;
    effect.intensity = 0.5;
    auto const converted = convert(effect, AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioEqualizer",
            R"(["SetMultiband", [[32, -50], [64, -50], [128, 0], [256, 10], [512, 10], [1024, 10], [2048, 0], )"
            R"([4096, -50], [8192, -50], [16384, -50]]], ["SetIntensity", 0.5])")));
}

TEST_F(VoiceConversion, PhonesBounds)
{
    struct Row
    {
        int low, high;
        std::array<int, 10> gains; // of 32, 64, ... 16384 Hz
    };
    constexpr Row rows[] = {
        // Half-way between two bands on the scale of octaves are 45.25 and 90.51 Hz.
        {45, 90, {0, 0, -50, -50, -50, -50, -50, -50, -50, -50}},
        {46, 91, {-50, 0, 0, -50, -50, -50, -50, -50, -50, -50}},
        {32, 16384, {0, 10, 10, 10, 10, 10, 10, 10, 10, 0}},
        // Both at one band, or the wrong way round.
        {1000, 1000, {-50, -50, -50, -50, -50, 0, -50, -50, -50, -50}},
        {900, 1400, {-50, -50, -50, -50, -50, 0, -50, -50, -50, -50}},
        {1500, 100, {-50, -50, 0, -50, -50, -50, 0, -50, -50, -50}},
        // Beyond the bands.
        {1, 100000, {10, 10, 10, 10, 10, 10, 10, 10, 10, 10}},
        {1, std::numeric_limits<int>::max(), {10, 10, 10, 10, 10, 10, 10, 10, 10, 10}},
        {50000, 100000, {-50, -50, -50, -50, -50, -50, -50, -50, -50, -50}},
        // Without a logarithm a bound lies below every band.
        {0, 128, {10, 10, 0, -50, -50, -50, -50, -50, -50, -50}},
        {-1, 128, {10, 10, 0, -50, -50, -50, -50, -50, -50, -50}},
        {128, 0, {-50, -50, 0, -50, -50, -50, -50, -50, -50, -50}},
        {128, std::numeric_limits<int>::min(), {-50, -50, 0, -50, -50, -50, -50, -50, -50, -50}},
        {0, 0, {-50, -50, -50, -50, -50, -50, -50, -50, -50, -50}},
        {-5, 0, {-50, -50, -50, -50, -50, -50, -50, -50, -50, -50}},
    };
    for (Row const & row : rows)
        EXPECT_THAT(phoneGains(row.low, row.high), ElementsAreArray(row.gains)) << row.low << " to " << row.high;
}

TEST_F(VoiceConversion, PhonesGainsAtTheEndsOfTheirRange)
{
    AudioPhone effect;
    effect.gainUp = std::numeric_limits<int>::min();
    effect.gainDown = std::numeric_limits<int>::min();
    EXPECT_THAT(gains(settingsOf<SettingsAudioEqualizer>(effect)),
        ElementsAre(2147483648.0, 2147483648.0, 0, -2147483648.0, -2147483648.0, -2147483648.0, 0, 2147483648.0,
            2147483648.0, 2147483648.0));
}

TEST_F(VoiceConversion, Muffle)
{
    // 60 exp(-d^2 / 2) - 50 at 0 to 5 octaves from the peak.
    constexpr double atPeak = 10;
    constexpr double octave = -13.60816041724199458;
    constexpr double twoOctaves = -41.87988300580323849;
    constexpr double threeOctaves = -49.33346020770546161;
    constexpr double fourOctaves = -49.97987224232584929;
    constexpr double fiveOctaves = -49.99977640080967528;
    AudioMuffle effect;
    effect.mean = 1024;
    effect.intensity = 0.25;
    auto const settings = settingsOf<SettingsAudioEqualizer>(effect);
    EXPECT_EQ(settings.GetIntensity(), 0.25F);
    auto const found = gains(settings);
    std::array<double, 10> const expected{fiveOctaves, fourOctaves, threeOctaves, twoOctaves, octave, atPeak, octave,
        twoOctaves, threeOctaves, fourOctaves};
    ASSERT_EQ(found.size(), expected.size());
    for (std::size_t band = 0; band < found.size(); ++band) {
        EXPECT_EQ(settings.GetMultiband()[band].centralFrequency, 32 << band);
        EXPECT_NEAR(found[band], expected[band], 1e-12);
    }
}

TEST_F(VoiceConversion, MuffleIsCalledBandsFirst)
{
    // A curve so wide that it is flat: the exponent is 0 in all that a double can hold.
    AudioMuffle effect;
    effect.dispersion = std::numeric_limits<double>::max();
    auto const converted = convert(effect, AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioEqualizer",
            R"(["SetMultiband", [[32, 10], [64, 10], [128, 10], [256, 10], [512, 10], [1024, 10], [2048, 10], )"
            R"([4096, 10], [8192, 10], [16384, 10]]], ["SetIntensity", 1])")));
}

TEST_F(VoiceConversion, MufflesMeanIsNotRounded)
{
    // 1000 Hz are 9.9658 octaves: the peak lies just below 1024 Hz.
    double const gain = gains(settingsOf<SettingsAudioEqualizer>(AudioMuffle())).at(5);
    EXPECT_NEAR(gain, 10, 0.05);
    EXPECT_LT(gain, 9.97);
}

TEST_F(VoiceConversion, MuffleWhereTheCurveIsNone)
{
    AudioMuffle effect;
    effect.dispersion = 0;
    // Nothing divided by nothing at a band that is the peak, infinitely far from it elsewhere.
    effect.mean = 1024;
    auto found = gains(settingsOf<SettingsAudioEqualizer>(effect));
    EXPECT_TRUE(std::isnan(found.at(5)));
    found.erase(found.begin() + 5);
    EXPECT_THAT(found, Each(-50));

    effect.mean = 1000;
    EXPECT_THAT(gains(settingsOf<SettingsAudioEqualizer>(effect)), Each(-50));

    // 0 Hz lie infinitely far below every band, and a frequency below has no place at all.
    effect.dispersion = 1;
    effect.mean = 0;
    EXPECT_THAT(gains(settingsOf<SettingsAudioEqualizer>(effect)), Each(-50));
    effect.mean = -1;
    for (double const gain : gains(settingsOf<SettingsAudioEqualizer>(effect)))
        EXPECT_TRUE(std::isnan(gain));
}

TEST_F(VoiceConversion, MufflesSumIsOfIntegers)
{
    AudioMuffle effect;
    effect.mean = 1024;
    effect.gainUp = std::numeric_limits<int>::max();
    effect.gainDown = 1;
    // The sum goes around to -2^31.
    EXPECT_EQ(gains(settingsOf<SettingsAudioEqualizer>(effect)).at(5), -2147483649.0);
}

TEST_F(VoiceConversion, Radio)
{
    AudioRadio effect;
    effect.intensity = 0.5;
    auto const converted = convert(effect, AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    // All gains are 0, and none of them -0.
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioRadio",
            R"(["SetEqSettings", {"class": "SettingsAudioEqualizer", "calls": [["SetMultiband", [[32, 0], [64, 0], )"
            R"([128, 0], [256, 0], [512, 0], [1024, 0], [2048, 0], [4096, 0], [8192, 0], [16384, 0]]]], "fields": {}}], )"
            R"(["SetCracklePrecision", 8], ["SetNoiseLevel", 0.05], ["SetIntensity", 0.5])")));
}

TEST_F(VoiceConversion, RadioHasTheBandsOfAPhone)
{
    AudioRadio radio;
    radio.gainUp = 10;
    radio.gainDown = 50;
    for (auto const & [low, high] : {std::pair(100, 1500), {1500, 100}, {0, 1500}, {100, -1}}) {
        radio.lBound = low;
        radio.rBound = high;
        EXPECT_EQ(gains(settingsOf<SettingsAudioRadio>(radio).GetEqSettings()), phoneGains(low, high));
    }
}

TEST_F(VoiceConversion, RadioWithoutGainsIsSilentWhateverItsBounds)
{
    AudioRadio radio;
    for (auto const & [low, high] : {std::pair(0, 0), {500, 400}, {-1, 40}, {100, 10000}}) {
        radio.lBound = low;
        radio.rBound = high;
        for (double const gain : gains(settingsOf<SettingsAudioRadio>(radio).GetEqSettings())) {
            EXPECT_EQ(gain, 0);
            EXPECT_FALSE(std::signbit(gain));
        }
    }
}

TEST_F(VoiceConversion, Echo)
{
    AudioEcho effect;
    auto const byDefault = convert(effect, AudioParams());
    EXPECT_EQ(byDefault.stageCode, 1);
    EXPECT_EQ(byDefault.implementation, "DEFAULT");
    EXPECT_THAT(byDefault.settings,
        ElementsAre(settings("SettingsAudioEcho", R"(["SetGainInOut", 1, 1], ["SetEchos", []], ["SetIntensity", 1])")));

    effect.gainIn = 0.25;
    effect.gainOut = 0.1;
    effect.echos = {{300, 0.1}, {-100, 0.5}};
    effect.intensity = 0.5;
    EXPECT_THAT(convert(effect, AudioParams()).settings,
        ElementsAre(settings("SettingsAudioEcho",
            R"(["SetGainInOut", 0.25, 0.1], ["SetEchos", [[300, 0.1], [-100, 0.5]]], ["SetIntensity", 0.5])")));
}

TEST_F(VoiceConversion, Pitch)
{
    AudioPitch effect;
    effect.pitch = 0.1;
    effect.intensity = 0.5;
    auto const converted = convert(effect, AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(
        converted.settings, ElementsAre(settings("SettingsAudioPitch", R"(["SetPitch", 0.1], ["SetIntensity", 0.5])")));
}

TEST_F(VoiceConversion, Robot)
{
    AudioRobot effect;
    effect.level = 0.1;
    effect.pitch = 1.5;
    effect.intensity = 0.5;
    auto const converted = convert(effect, AudioParams());
    EXPECT_EQ(converted.stageCode, 1);
    EXPECT_EQ(converted.implementation, "DEFAULT");
    EXPECT_THAT(converted.settings,
        ElementsAre(settings("SettingsAudioRobot",
            R"(["SetLevel", 0.1], )"
            R"(["SetPitchSettings", {"class": "SettingsAudioPitch", "calls": [["SetPitch", 1.5]], "fields": {}}], )"
            R"(["SetIntensity", 0.5])")));
}

TEST(SaturatedInt, TakesAnything)
{
    using Limits = std::numeric_limits<double>;
    EXPECT_EQ(Factory::saturatedInt(0), 0);
    EXPECT_EQ(Factory::saturatedInt(2.9), 2);
    EXPECT_EQ(Factory::saturatedInt(-2.9), -2);
    EXPECT_EQ(Factory::saturatedInt(2147483646.5), 2147483646);
    EXPECT_EQ(Factory::saturatedInt(2147483647), INT32_MAX);
    EXPECT_EQ(Factory::saturatedInt(2147483647.5), INT32_MAX);
    EXPECT_EQ(Factory::saturatedInt(2147483648), INT32_MAX);
    EXPECT_EQ(Factory::saturatedInt(-2147483647.5), -2147483647);
    EXPECT_EQ(Factory::saturatedInt(-2147483648), INT32_MIN);
    EXPECT_EQ(Factory::saturatedInt(-2147483649), INT32_MIN);
    EXPECT_EQ(Factory::saturatedInt(Limits::infinity()), INT32_MAX);
    EXPECT_EQ(Factory::saturatedInt(-Limits::infinity()), INT32_MIN);
    EXPECT_EQ(Factory::saturatedInt(Limits::quiet_NaN()), INT32_MIN);
}

} // namespace
