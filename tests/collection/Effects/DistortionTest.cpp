#include <initializer_list>
#include <string>

#include <effects/Distortion.h>
#include <support/Conversion.h>
#include <support/Filter.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::convert;
using testing::ElementsAre;
using Testing::expectConversion;
using testing::IsEmpty;
using Testing::settings;

class DistortionConversion : public Testing::ConversionTest
{};

struct Row
{
    VideoEffect const & effect;
    std::string settings;
};

TEST_F(DistortionConversion, Defaults)
{
    Row const rows[] = {
        {Twirl(), settings("SettingsEffectTwirl", R"(["SetParams", 0, 0.1, 0, 0.2], ["SetIntensity", 1])")},
        {Vertigo(), settings("SettingsEffectVertigo", R"(["SetParams", 0.07, 0.05], ["SetIntensity", 1])")},
        {FishEye(), settings("SettingsEffectFishEye", R"(["SetDeviation", -0.04], ["SetIntensity", 1])")},
        {LensDistortion(), settings("SettingsEffectLensDistortion",
                               R"(["SetIntensity", 1], ["SetDistortion", -0.2], ["SetMemberCount", 1], )"
                               R"(["SetZoom", 0.4])")},
        {CameraShake(),
            settings("SettingsEffectCameraShake", R"(["SetSettings", 0, 0, 0, 0, 0], ["SetIntensity", 1])")},
        {ChromaticAberration(), settings("SettingsEffectChromaticAberration", R"(["SetIntensity", 1])")},
    };
    for (Row const & row : rows)
        expectConversion(row.effect, row.settings);
}

TEST_F(DistortionConversion, FieldsAndIntensity)
{
    Twirl twirl;
    twirl.startRotate = 1;
    twirl.speedRotate = 2;
    twirl.startTwirl = 3;
    twirl.speedTwirl = 4;
    Vertigo vertigo;
    vertigo.scale = 1;
    vertigo.speed = 2;
    FishEye eye;
    eye.deviation = 0.1;
    LensDistortion lens;
    lens.zoom = 1;
    lens.distortion = 2;
    lens.memberCount = -3;
    CameraShake shake;
    shake.shuft_x = 1;
    shake.shuft_y = 2;
    shake.rotate = 3;
    shake.frequency = 4;
    shake.persistence = 5;
    ChromaticAberration aberration;
    for (VideoEffect * effect :
        std::initializer_list<VideoEffect *>{&twirl, &vertigo, &eye, &lens, &shake, &aberration})
        effect->intensity = 0.1;

    // 0.1 is no single-precision number: it shows who takes the intensity as a double.
    Row const rows[] = {
        {twirl, settings("SettingsEffectTwirl", R"(["SetParams", 1, 2, 3, 4], ["SetIntensity", 0.10000000149011612])")},
        {vertigo, settings("SettingsEffectVertigo", R"(["SetParams", 1, 2], ["SetIntensity", 0.1])")},
        {eye, settings("SettingsEffectFishEye", R"(["SetDeviation", 0.1], ["SetIntensity", 0.10000000149011612])")},
        {lens, settings("SettingsEffectLensDistortion",
                   R"(["SetIntensity", 0.1], ["SetDistortion", 2], ["SetMemberCount", -3], ["SetZoom", 1])")},
        {shake, settings("SettingsEffectCameraShake",
                    R"(["SetSettings", 1, 2, 3, 4, 5], ["SetIntensity", 0.10000000149011612])")},
        {aberration, settings("SettingsEffectChromaticAberration", R"(["SetIntensity", 0.10000000149011612])")},
    };
    for (Row const & row : rows)
        expectConversion(row.effect, row.settings);
}

} // namespace
