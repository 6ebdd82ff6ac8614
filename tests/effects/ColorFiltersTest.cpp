#include <algorithm>
#include <cstdint>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/Registry.h>
#include <effects/ColorFilters.h>
#include <support/Filter.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::FilterForm;
using Testing::packed;

using Integer = std::int32_t;
using Colour = std::uint32_t;

TEST(ColorFilters, Forms)
{
    FilterForm const forms[] = {
        {std::make_shared<ColorBrush>(), "Effect::ColorBrush", "342d639d-1182-4b70-b071-1831d484cb85",
            "effect_colorBrush", R"({"pType": 0, "angle": 45, "size": 10, "rough": 10})",
            R"({"pType": 1, "angle": 2, "size": 3, "rough": 4})",
            packed(Integer(1), Integer(2), Integer(3), Integer(4))},
        {std::make_shared<ColorFilter>(), "Effect::ColorFilter", "5b9d1194-edb7-44fa-a01c-3f4ed2b160e8",
            "effect_colorFilter", R"({"preset": 0})", R"({"preset": 36})", packed(Integer(36))},
        {std::make_shared<ColorMixBurn>(), "Effect::ColorMixBurn", "e738de79-e6e1-4d25-9ae2-6bec3b427525",
            "effect_colorMixBurn", "{}", "{}", ""},
        // Opaque, no red, green 200, no blue.
        {std::make_shared<ColorSelect>(), "Effect::ColorSelect", "5899d84f-ec6c-4896-b9b9-8c2556468536",
            "effect_colorSelect",
            R"({"color": 4278241280, "hueTolerance": 80, "noiseLevel": 0, "harshness": 3, "transparency": 10})",
            R"({"color": 4294967295, "hueTolerance": 1, "noiseLevel": 2, "harshness": 4, "transparency": 5})",
            packed(Colour(4294967295), Integer(1), Integer(2), Integer(4), Integer(5))},
        {std::make_shared<ColorMixExchange>(), "Effect::ColorMixExchange", "72edac99-e300-45d8-8e57-0f7bfef3bf54",
            "effect_colorMixExchange", R"({"color": 0})", R"({"color": 4278190081})", packed(Colour(0xFF000001))},
        {std::make_shared<Invert>(), "Effect::Invert", "d20134d6-99d6-4b3f-b2b6-30e460012f51", "effect_invert", "{}",
            "{}", ""},
    };
    for (FilterForm const & form : forms) {
        expectForm(form);
        EXPECT_TRUE(form.effect->hasIntensity()) << form.archiveName;
    }
}

// Its class is a host's, so there is nothing to make or to read it with.
TEST(ColorMixField, IsNotRegistered)
{
    char const * const name = "Effect::ColorMixField";
    EXPECT_EQ(Serialize::Registry::create(name), nullptr);
    auto const names = Serialize::Registry::names();
    EXPECT_EQ(std::find(names.begin(), names.end(), name), names.end());
    EXPECT_THROW(Archive::fromJson(R"({"$meta": {"class": "Effect::ColorMixField"}})"), std::exception);
}

} // namespace
