#include <cstdint>

#include <effects/Distortion.h>
#include <support/Filter.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::FilterForm;
using Testing::packed;

using Integer = std::int32_t;

TEST(Distortion, Forms)
{
    FilterForm const forms[] = {
        {std::make_shared<Twirl>(), "Effect::Twirl", "b6202955-dc7b-4592-9b42-d812d47d240c", "effect_twirl",
            R"({"startRotate": 0.0, "speedRotate": 0.1, "startTwirl": 0.0, "speedTwirl": 0.2})",
            R"({"startRotate": 1.5, "speedRotate": 2.5, "startTwirl": 3.5, "speedTwirl": 4.5})",
            packed(1.5, 2.5, 3.5, 4.5)},
        {std::make_shared<Vertigo>(), "Effect::Vertigo", "d01a98be-9a59-4217-95f5-06a955782b8a", "effect_vertigo",
            R"({"scale": 0.07, "speed": 0.05})", R"({"scale": 1.5, "speed": 2.5})", packed(1.5, 2.5)},
        {std::make_shared<FishEye>(), "Effect::FishEye", "7f10aa3a-79c9-4bdf-9a5c-7005690a961a", "effect_fishEye",
            R"({"deviation": -0.04})", R"({"deviation": 1.5})", packed(1.5)},
        {std::make_shared<LensDistortion>(), "Effect::LensDistortion", "6beb1769-1d5d-479e-aab8-85a55ecefe8c",
            "effect_lens_distortion", R"({"zoom": 0.4, "distortion": -0.2, "memberCount": 1})",
            R"({"zoom": 1.5, "distortion": 2.5, "memberCount": -3})", packed(1.5, 2.5, Integer(-3))},
        {std::make_shared<CameraShake>(), "Effect::CameraShake", "49faba34-ebef-42cd-a315-efb43d76cbb0",
            "effect_camera_shake",
            R"({"shuft_x": 0.0, "shuft_y": 0.0, "rotate": 0.0, "frequency": 0.0, "persistence": 0.0})",
            R"({"shuft_x": 1.5, "shuft_y": 2.5, "rotate": 3.5, "frequency": 4.5, "persistence": 5.5})",
            packed(1.5, 2.5, 3.5, 4.5, 5.5)},
        {std::make_shared<ChromaticAberration>(), "Effect::ChromaticAberration", "c48ed439-dc5b-4888-b7cc-ff9b0c1ab662",
            "effect_chromatic_aberration", "{}", "{}", ""},
    };
    for (FilterForm const & form : forms) {
        expectForm(form);
        EXPECT_TRUE(form.effect->hasIntensity()) << form.archiveName;
        EXPECT_FALSE(form.effect->isTwoInput()) << form.archiveName;
    }
}

} // namespace
