#include <cstdint>

#include <effects/Artistic.h>
#include <support/Filter.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using Testing::FilterForm;
using Testing::packed;

using Integer = std::int32_t;
using Colour = std::uint32_t;

TEST(Artistic, Forms)
{
    FilterForm const forms[] = {
        {std::make_shared<OilPaint>(), "Effect::OilPaint", "1e308612-4ad6-4590-80a1-4cdc9dfa30e7", "effect_oil_paint",
            R"({"radius": 5})", R"({"radius": -6})", packed(Integer(-6))},
        {std::make_shared<PopArt>(), "Effect::PopArt", "2647e4b8-5689-4bf1-b45f-7f4b3b35e49b", "effect_pop_art",
            R"({"preset": 0})", R"({"preset": 77})", packed(Integer(77))},
        {std::make_shared<Posterize>(), "Effect::Posterize", "9218c5c2-64b4-4676-b4d3-f861cb80aae4", "effect_posterize",
            R"({"colorsNumber": 5})", R"({"colorsNumber": 2})", packed(Integer(2))},
        {std::make_shared<FindEdges>(), "Effect::FindEdges", "333ac8ef-3fba-4491-b936-de0c3e9d1b16",
            "effect_find_edges", R"({"sensibility": 1.0, "type": 0})", R"({"sensibility": 0.25, "type": 1})",
            packed(0.25, Integer(1))},
        {std::make_shared<HalfTone>(), "Effect::HalfTone", "6ebb17e3-db4e-4cd4-9948-a154a43f3282", "effect_halfTone",
            R"({"bkgnd": 0, "dtclr": 0, "scale": 0.001, "angle": 30})",
            R"({"bkgnd": 4294967295, "dtclr": 2147483648, "scale": 0.5, "angle": -45})",
            packed(Colour(0xFFFFFFFF), Colour(0x80000000), 0.5, Integer(-45))},
        {std::make_shared<Mosaic>(), "Effect::Mosaic", "7e31a057-3681-47b8-a842-337cb0200d84", "effect_mosaic",
            R"({"type": 0, "amountVer": 10, "amountHor": 10})", R"({"type": 1, "amountVer": 2, "amountHor": 3})",
            packed(Integer(1), Integer(2), Integer(3))},
        {std::make_shared<GlassMosaic>(), "Effect::GlassMosaic", "804fa74a-f079-4538-a588-6cfa4f20ea81",
            "effect_glass_mosaic", R"({"angle": 0.5, "curve": 0.1, "repeatsh": 0.25, "repeatsv": 0.25})",
            R"({"angle": 1.5, "curve": 2.5, "repeatsh": 3.5, "repeatsv": 4.5})", packed(1.5, 2.5, 3.5, 4.5)},
        {std::make_shared<Erosion>(), "Effect::Erosion", "0429bc71-f252-4a38-9ac2-57689f07ec46", "effect_errosion",
            R"({"type": 0})", R"({"type": -1})", packed(Integer(-1))},
        {std::make_shared<Diffuse>(), "Effect::Diffuse", "43ce922f-5666-492c-ad2d-b08da41e3b26", "effect_diffuse",
            R"({"level": 0.05, "prob": 0.25})", R"({"level": 1.5, "prob": 2.5})", packed(1.5, 2.5)},
        {std::make_shared<Stripes>(), "Effect::Stripes", "4ddc3604-027d-433b-9837-1c4870fb32e0", "effect_stripes",
            R"({"count": 32, "deep": 0.999})", R"({"count": 1, "deep": 0.5})", packed(Integer(1), 0.5)},
        {std::make_shared<AddNoize>(), "Effect::AddNoize", "87824c03-f25f-4043-9cb6-3a90eb27b699", "effect_add_noize",
            R"({"type": 0})", R"({"type": 1})", packed(Integer(1))},
    };
    for (FilterForm const & form : forms) {
        expectForm(form);
        EXPECT_TRUE(form.effect->hasIntensity()) << form.archiveName;
    }
}

} // namespace
