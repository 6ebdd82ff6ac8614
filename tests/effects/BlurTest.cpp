#include <cstdint>
#include <limits>

#include <effects/Blur.h>
#include <support/Documents.h>
#include <support/Filter.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::expectKeys;
using Testing::FilterForm;
using Testing::packed;

using Integer = std::int32_t;
constexpr Integer lowest = std::numeric_limits<Integer>::min();
constexpr Integer highest = std::numeric_limits<Integer>::max();

TEST(BlurAndSharpness, Forms)
{
    FilterForm const forms[] = {
        {std::make_shared<Blur>(), "Effect::Blur", "5cd3b609-1357-4f98-86c7-1302c9dea530", "effect_blur", "{}", "{}",
            ""},
        {std::make_shared<BokehBlur>(), "Effect::BokehBlur", "103da8a8-713c-4618-b11e-52cf492e2061",
            "effect_bokeh_blur", R"({"preset": 2})", R"({"preset": 8})", packed(Integer(8))},
        {std::make_shared<MotionBlur>(), "Effect::MotionBlur", "95743761-e5fa-4bc7-9553-30450ad0bae7",
            "effect_motionBlur", "{}", "{}", ""},
        {std::make_shared<TiltShift>(), "Effect::TiltShift", "bea0efc7-dbab-44fd-ae07-6c4801ade623",
            "effect_tilt_shift", R"({"a1": 0.0, "b1": 1.0, "c1": 0.1, "a2": 0.0, "b2": 1.0, "c2": 0.9, "smns": 0.2})",
            R"({"a1": 1.5, "b1": 2.5, "c1": 3.5, "a2": 4.5, "b2": 5.5, "c2": 6.5, "smns": 7.5})",
            packed(1.5, 2.5, 3.5, 4.5, 5.5, 6.5, 7.5)},
        {std::make_shared<Sharpen>(), "Effect::Sharpen", "c60d4a11-b946-49db-ab9d-93898ce04e54", "effect_sharpen", "{}",
            "{}", ""},
    };
    for (FilterForm const & form : forms) {
        expectForm(form);
        EXPECT_TRUE(form.effect->hasIntensity()) << form.archiveName;
        EXPECT_FALSE(form.effect->isTwoInput()) << form.archiveName;
    }
}

TEST(BokehBlur, PresetsBeyondTheMasksAreKept)
{
    for (Integer const preset : {lowest, -1, 9, 1000, highest}) {
        BokehBlur effect;
        effect.preset = static_cast<BokehBlur::Preset>(preset);
        expectKeys(effect, {{"preset", preset}});
    }
}

} // namespace
