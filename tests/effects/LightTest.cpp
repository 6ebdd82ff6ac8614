#include <cstdint>
#include <limits>

#include <effects/Light.h>
#include <support/Documents.h>
#include <support/Filter.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::expectKeys;
using Testing::FilterForm;
using Testing::packed;
using Testing::readKeys;

using Integer = std::int32_t;
constexpr Integer lowest = std::numeric_limits<Integer>::min();
constexpr Integer highest = std::numeric_limits<Integer>::max();

TEST(Light, Forms)
{
    FilterForm const forms[] = {
        {std::make_shared<FlyingObjects>(), "Effect::FlyingObjects", "d3d9f297-74da-41d6-a955-8109cbed0020",
            "effect_flying_objects", R"({"preset": 0})", R"({"preset": 15})", packed(Integer(15))},
        {std::make_shared<LensFlare>(), "Effect::LensFlare", "e1cbf0ef-3d75-4626-aaaf-c41e47c9c9c4", "effect_lensFlare",
            R"({"Presets": 0})", R"({"Presets": 7})", packed(Integer(7))},
        {std::make_shared<LightLeaks>(), "Effect::LightLeaks", "f0c18b60-b891-453d-b80e-dedd20f349fb",
            "effect_lightLeaks", R"({"Presets": 0})", R"({"Presets": 15})", packed(Integer(15))},
        {std::make_shared<VignetteFilter>(), "Effect::VignetteFilter", "523d41e0-d692-4e08-817a-cc69788c6ab2",
            "effect_vignette", R"({"preset": 0})", R"({"preset": 8})", packed(Integer(8))},
    };
    for (FilterForm const & form : forms) {
        expectForm(form);
        EXPECT_TRUE(form.effect->hasIntensity()) << form.archiveName;
        EXPECT_FALSE(form.effect->isTwoInput()) << form.archiveName;
    }
}

template <class Filter> Filter preset(Integer number)
{
    Filter effect;
    effect.preset = static_cast<typename Filter::Preset>(number);
    return effect;
}

template <class Filter> Filter presets(Integer number)
{
    Filter effect;
    effect.Presets = static_cast<typename Filter::Preset>(number);
    return effect;
}

TEST(Light, PresetsWithoutAMeaningAreKept)
{
    for (Integer const number : {lowest, -1, 5, 16, highest}) {
        expectKeys(preset<FlyingObjects>(number), {{"preset", number}});
        expectKeys(presets<LensFlare>(number), {{"Presets", number}});
        expectKeys(presets<LightLeaks>(number), {{"Presets", number}});
        expectKeys(preset<VignetteFilter>(number), {{"preset", number}});
    }
}

TEST(Light, KeysTellPresetFromPresets)
{
    EXPECT_EQ(readKeys<LensFlare>({{"preset", 3}})->Presets, LensFlare::Preset{0});
    EXPECT_EQ(readKeys<VignetteFilter>({{"Presets", 3}})->preset, VignetteFilter::Preset{0});
}

} // namespace
