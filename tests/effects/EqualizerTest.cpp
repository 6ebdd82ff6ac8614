#include <array>
#include <limits>

#include <effects/Equalizer.h>
#include <effects/Identity.h>
#include <support/Documents.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect;
using Preset = AudioEqualizer::Preset;
using Testing::expectKeys;
using testing::IsEmpty;

TEST(AudioEqualizer, Defaults)
{
    AudioEqualizer const effect;
    EXPECT_EQ(effect.id, Id::AudioEqualizer);
    EXPECT_EQ(effect.groupId, Id::AudioEqualizer);
    EXPECT_EQ(effect.tag, "effect_audioequalizer");
    EXPECT_EQ(effect.defaultTag(), "");
    EXPECT_EQ(effect.type(), Type::Audio);
    EXPECT_EQ(effect.impl(), Impl::Filter);
    EXPECT_FALSE(effect.hasIntensity());
    EXPECT_EQ(effect.preset, Preset{1});
    EXPECT_EQ(effect.presetName, "");
    EXPECT_FALSE(effect.presetName.isNull());
    EXPECT_THAT(effect.multiband, IsEmpty());
}

// In hundredths of a decibel, a column per band: every digit is written out, no row is derived from another.
constexpr std::array<std::array<int, 10>, 24> hundredths{{
    // 31   63  125  250  500 1000 2000 4000 8000 16000
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0},                        // 0
    {0, 0, 0, 0, 0, 0, 0, 0, 0, 0},                        // 1
    {0, 0, 0, 350, 0, 0, 500, 0, 0, 0},                    // 2
    {75, 375, 700, 450, 375, 250, 500, 700, 850, 550},     // 3
    {600, 400, 0, 0, -200, 0, -100, -500, 500, 100},       // 4
    {-2000, -740, -450, 0, -120, 0, 0, -100, -50, -500},   // 5
    {500, 400, 300, 200, 100, 0, 0, 0, 0, 0},              // 6
    {-500, -400, -300, -200, -100, 0, 0, 0, 0, 0},         // 7
    {0, 0, 0, 0, 0, 100, 200, 300, 400, 500},              // 8
    {0, 0, 0, 0, 0, -100, -200, -300, -400, -500},         // 9
    {500, 400, 350, 100, 200, 200, 350, 400, 350, 200},    // 10
    {450, 350, 300, 250, -150, -150, 0, 250, 300, 400},    // 11
    {350, 650, 475, 0, 150, 400, 475, 450, 400, 0},        // 12
    {450, 350, 150, 50, 300, 275, 150, -200, -400, -450},  // 13
    {400, 350, 125, 0, -200, 275, 100, 125, 400, 475},     // 14
    {475, 400, 150, 300, -120, -120, 150, -100, 175, 300}, // 15
    {400, 300, 150, 175, -150, -150, 0, 150, 300, 400},    // 16
    {450, 300, 0, 0, -150, -150, -150, 0, 300, 450},       // 17
    {-300, -150, -100, 150, 400, 200, 0, -150, 175, 100},  // 18
    {300, 175, 0, 200, 300, 150, 325, 450, 275, 325},      // 19
    {-150, -120, 0, 175, 400, 400, 175, 0, -120, -150},    // 20
    {275, 700, 520, 150, -200, -150, 175, 225, 250, 400},  // 21
    {475, 400, 300, 150, -50, -200, 50, 200, 350, 450},    // 22
    {500, 425, 350, 275, 125, 0, -150, -270, -350, -450},  // 23
}};

TEST(AudioEqualizerPreset, EachHasItsTenBands)
{
    constexpr std::array<int, 10> frequencies{31, 63, 125, 250, 500, 1000, 2000, 4000, 8000, 16000};
    for (std::size_t number = 0; number < hundredths.size(); ++number) {
        SCOPED_TRACE(number);
        AudioEqualizer const effect = AudioEqualizer::makePreset(Preset(number));
        EXPECT_EQ(effect.preset, Preset(number));
        EXPECT_EQ(effect.presetName, "");
        EXPECT_EQ(effect.tag, Tags::tagAudioEqualizer);
        ASSERT_EQ(effect.multiband.size(), 10U);
        for (std::size_t band = 0; band < 10; ++band) {
            EXPECT_EQ(effect.multiband[band].centralFrequency, frequencies[band]);
            // The quotient is the double nearest to the decimal number, as its literal is.
            EXPECT_EQ(effect.multiband[band].gain, hundredths[number][band] / 100.0) << frequencies[band] << " Hz";
        }
    }
}

TEST(AudioEqualizerPreset, ANumberThatIsNoneIsKeptAndGivesNoBands)
{
    for (int const number : {24, -1, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        AudioEqualizer const effect = AudioEqualizer::makePreset(Preset{number});
        EXPECT_EQ(effect.preset, Preset{number});
        EXPECT_THAT(effect.multiband, IsEmpty());
    }
}

AudioEqualizer oneBand(int frequency, double gain)
{
    AudioEqualizer effect;
    effect.multiband.emplace_back(frequency, gain);
    return effect;
}

TEST(AudioEqualizerComparison, BandsCountAndTheNumberDoes)
{
    // The default's number is 1, but it has no bands.
    EXPECT_FALSE(AudioEqualizer() == AudioEqualizer::makePreset(Preset{1}));
    EXPECT_TRUE(AudioEqualizer::makePreset(Preset{5}) == AudioEqualizer::makePreset(Preset{5}));
    // Alike in all but the number.
    EXPECT_TRUE(AudioEqualizer::makePreset(Preset{0}) != AudioEqualizer::makePreset(Preset{1}));
    EXPECT_TRUE(oneBand(100, 1) != oneBand(101, 1));

    AudioEqualizer swapped;
    swapped.multiband = {{2, 0}, {1, 0}};
    AudioEqualizer ordered;
    ordered.multiband = {{1, 0}, {2, 0}};
    EXPECT_TRUE(swapped != ordered);
}

TEST(AudioEqualizerComparison, GainsHaveATolerance)
{
    EXPECT_TRUE(oneBand(100, 0) == oneBand(100, 0.0005));
    EXPECT_TRUE(oneBand(100, 0.0005) == oneBand(100, 0));
    EXPECT_FALSE(oneBand(100, 0) == oneBand(100, 0.001));
    EXPECT_FALSE(oneBand(100, 0.001) == oneBand(100, 0));
}

TEST(AudioEqualizerComparison, AnObjectEqualsItself)
{
    AudioEqualizer const effect = oneBand(100, std::numeric_limits<double>::quiet_NaN());
    AudioEqualizer const copy = effect;
    EXPECT_TRUE(effect == effect);
    EXPECT_FALSE(effect == copy);
}

TEST(AudioEqualizerComparison, NeitherNameNorBaseCounts)
{
    AudioEqualizer named;
    named.presetName = "Concert hall";
    named.tag = "another";
    named.intensity = 0.25;
    EXPECT_TRUE(named == AudioEqualizer());
}

TEST(AudioEqualizer, DocumentsHoldBandsAsObjects)
{
    AudioEqualizer effect = AudioEqualizer::makePreset(Preset{24});
    effect.presetName = "Mine";
    effect.multiband = {{440, -3.5}, {880, 2}};
    expectKeys(effect, R"({"multiband": [
        {"$meta": {"class": "Effect::AudioEqualizer::BandEq"}, "centralFrequency": 440, "gain": -3.5},
        {"$meta": {"class": "Effect::AudioEqualizer::BandEq"}, "centralFrequency": 880, "gain": 2.0}],
        "preset": 24, "presetName": "Mine"})"_json);
}

} // namespace
