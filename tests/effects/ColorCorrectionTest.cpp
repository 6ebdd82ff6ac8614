#include <effects/ColorCorrection.h>
#include <effects/Identity.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;

TEST(WhiteBalance, DefaultIsOpaqueBlack)
{
    EXPECT_EQ(WhiteBalance().color, 0xFF000000U);
}

TEST(ManualEnhance, SettersStoreAndChain)
{
    ManualEnhance effect;
    EXPECT_EQ(effect.setGamma(1)->setHighlights(2)->setShadows(3)->setBrightness(4)->setContrast(5), &effect);
    EXPECT_EQ(effect.setSaturation(6)->setHue(7)->setTemperature(8)->setTint(-9), &effect);
    EXPECT_EQ(effect.gamma, 1);
    EXPECT_EQ(effect.highlights, 2);
    EXPECT_EQ(effect.shadows, 3);
    EXPECT_EQ(effect.brightness, 4);
    EXPECT_EQ(effect.contrast, 5);
    EXPECT_EQ(effect.saturation, 6);
    EXPECT_EQ(effect.hue, 7);
    EXPECT_EQ(effect.temperature, 8);
    EXPECT_EQ(effect.tint, -9);
}

TEST(ManualEnhance, ComparesItsSlidersWithATolerance)
{
    ManualEnhance a;
    ManualEnhance b;
    a.setHue(0.5);
    b.setHue(0.5 + 1e-14);
    EXPECT_TRUE(a == b);
    b.setHue(0.50001);
    EXPECT_FALSE(a == b);
}

TEST(ManualEnhance, ComparesEverySlider)
{
    double ManualEnhance::*const sliders[] = {&ManualEnhance::gamma, &ManualEnhance::highlights,
        &ManualEnhance::shadows, &ManualEnhance::brightness, &ManualEnhance::contrast, &ManualEnhance::saturation,
        &ManualEnhance::hue, &ManualEnhance::temperature, &ManualEnhance::tint};
    for (auto const slider : sliders) {
        ManualEnhance moved;
        moved.*slider = 0.1;
        EXPECT_TRUE(moved != ManualEnhance());
    }
}

TEST(ManualEnhance, ComparesNothingOfTheBase)
{
    ManualEnhance a;
    ManualEnhance b;
    b.tag = Tags::tagAutoContrast;
    b.intensity = 0.25;
    EXPECT_TRUE(a == b);
}

TEST(ManualEnhance, DefaultTag)
{
    ManualEnhance effect;
    effect.tag = "another";
    EXPECT_EQ(effect.defaultTag(), "effect_manual_enhance");
    EXPECT_EQ(AutoContrast().defaultTag(), "");
}

} // namespace
