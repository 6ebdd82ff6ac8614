#include <effects/PrivateIdentity.h>
#include <effects/Voice.h>
#include <support/Documents.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect;
using Testing::expectKeys;

TEST(Voice, Identity)
{
    struct Row
    {
        Object const & effect;
        QString id;
        char const * tag;
    };
    AudioPhone const phone;
    AudioMuffle const muffle;
    AudioRadio const radio;
    AudioEcho const echo;
    AudioPitch const pitch;
    AudioRobot const robot;
    Row const rows[] = {
        {phone, Id::AudioPhone, "effect_phone"},
        {muffle, Id::AudioMuffle, "effect_muffle"},
        {radio, Id::AudioRadio, "effect_radio"},
        {echo, Id::AudioEcho, "effect_echo"},
        {pitch, Id::AudioPitch, "effect_pitch"},
        {robot, Id::AudioRobot, "effect_robot"},
    };
    for (Row const & row : rows) {
        SCOPED_TRACE(row.tag);
        EXPECT_EQ(row.effect.id, row.id);
        EXPECT_EQ(row.effect.groupId, row.id);
        EXPECT_EQ(row.effect.tag, row.tag);
        EXPECT_EQ(row.effect.defaultTag(), row.tag);
        EXPECT_EQ(row.effect.type(), Type::Audio);
        EXPECT_EQ(row.effect.impl(), Impl::Filter);
        EXPECT_TRUE(row.effect.hasIntensity());
        EXPECT_EQ(row.effect.intensity, 1);
    }
}

TEST(Voice, Defaults)
{
    AudioPhone const phone;
    EXPECT_EQ(phone.gainUp, 10);
    EXPECT_EQ(phone.gainDown, 50);
    EXPECT_EQ(phone.lBound, 100);
    EXPECT_EQ(phone.rBound, 1500);
    AudioMuffle const muffle;
    EXPECT_EQ(muffle.gainUp, 10);
    EXPECT_EQ(muffle.gainDown, 50);
    EXPECT_EQ(muffle.mean, 1000);
    EXPECT_EQ(muffle.dispersion, 1);
    AudioRadio const radio;
    EXPECT_EQ(radio.gainUp, 0);
    EXPECT_EQ(radio.gainDown, 0);
    EXPECT_EQ(radio.lBound, 20);
    EXPECT_EQ(radio.rBound, 20000);
    EXPECT_EQ(radio.cracklePrecision, 8);
    EXPECT_EQ(radio.noiseLevel, 0.05);
    AudioEcho const echo;
    EXPECT_EQ(echo.gainIn, 1);
    EXPECT_EQ(echo.gainOut, 1);
    EXPECT_TRUE(echo.echos.empty());
    EXPECT_EQ(AudioPitch().pitch, 1);
    EXPECT_EQ(AudioRobot().level, 1);
    EXPECT_EQ(AudioRobot().pitch, 1);
}

TEST(Voice, Archives)
{
    AudioPhone phone;
    phone.gainUp = 1;
    phone.gainDown = 2;
    phone.lBound = 3;
    phone.rBound = 4;
    expectKeys(phone, R"({"gainDown": 2, "gainUp": 1, "lBound": 3, "rBound": 4})"_json);

    AudioMuffle muffle;
    muffle.gainUp = 1;
    muffle.gainDown = 2;
    muffle.mean = 3;
    muffle.dispersion = 4.5;
    expectKeys(muffle, R"({"dispersion": 4.5, "gainDown": 2, "gainUp": 1, "mean": 3})"_json);

    // The short keys are those of saved effects.
    AudioRadio radio;
    radio.cracklePrecision = 5;
    radio.noiseLevel = 0.5;
    expectKeys(radio, R"({"crackleP": 5, "gainDown": 0, "gainUp": 0, "lBound": 20, "noise": 0.5,
        "rBound": 20000})"_json);

    AudioPitch pitch;
    pitch.pitch = 1.5;
    expectKeys(pitch, R"({"pitch": 1.5})"_json);

    AudioRobot robot;
    robot.level = 0.5;
    robot.pitch = 0.75;
    expectKeys(robot, R"({"level": 0.5, "pitch": 0.75})"_json);
}

TEST(Voice, EchosKeepTheirOrder)
{
    AudioEcho echo;
    echo.gainIn = 0.5;
    echo.gainOut = 0.25;
    echo.echos = {{300, 0.75}, {100, 0.5}, {200, 0.25}};
    expectKeys(echo, R"({"echos": [{"$meta": {"class": "Effect::AudioEcho::Echo"}, "decay": 0.75, "delay": 300},
        {"$meta": {"class": "Effect::AudioEcho::Echo"}, "decay": 0.5, "delay": 100},
        {"$meta": {"class": "Effect::AudioEcho::Echo"}, "decay": 0.25, "delay": 200}],
        "gainIn": 0.5, "gainOut": 0.25})"_json);
}

} // namespace
