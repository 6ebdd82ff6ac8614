#include <effects/Geometry.h>
#include <effects/Identity.h>
#include <support/Documents.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using nlohmann::json;
using Testing::ownKeys;
using Testing::readKeys;

TEST(Crop, DefaultIsTheWholePicture)
{
    Crop const effect;
    EXPECT_EQ(effect.id, Id::Crop);
    EXPECT_EQ(effect.groupId, Id::Crop);
    EXPECT_EQ(effect.tag, "effect_crop");
    EXPECT_TRUE(effect.transform == Types::Transform());
    EXPECT_EQ(effect.defaultTag(), "");
    EXPECT_FALSE(effect.hasIntensity());
    EXPECT_FALSE(effect.isTwoInput());
    EXPECT_EQ(effect.type(), Type::Video);
    EXPECT_EQ(effect.impl(), Impl::Effect);
}

TEST(Crop, SetterStoresAndChains)
{
    Crop effect;
    Types::Transform const half(0.5, 0, 0, 0.5, 0, 0, 0.25, -0.25, 1);
    EXPECT_EQ(effect.setTransform(Types::Transform())->setTransform(half), &effect);
    EXPECT_TRUE(effect.transform == half);
}

TEST(Crop, Keys)
{
    Crop effect;
    effect.setTransform({0.5, 0.1, 0.2, 2, 0.3, 0.4, -0.25, 0.75, 1.5});
    // Row by row, whereas the constructor takes the affine entries first.
    EXPECT_EQ(ownKeys(effect), json::parse(R"({"transform": {"m": [0.5, 0.1, 0.3, 0.2, 2, 0.4, -0.25, 0.75, 1.5]}})"));
    EXPECT_TRUE(readKeys<Crop>(ownKeys(effect))->transform == effect.transform);
    EXPECT_TRUE(readKeys<Crop>(json::object())->transform == Types::Transform());
}

TEST(Transpose, DefaultsAndSetter)
{
    Transpose effect;
    EXPECT_EQ(effect.id, Id::Transpose);
    EXPECT_EQ(effect.groupId, Id::Transpose);
    EXPECT_EQ(effect.tag, "effect_transpose");
    EXPECT_EQ(effect.angle, 0);
    EXPECT_EQ(effect.setAngle(3)->setAngle(-450), &effect);
    EXPECT_EQ(effect.angle, -450);
    EXPECT_EQ(effect.defaultTag(), "");
    EXPECT_FALSE(effect.hasIntensity());
}

TEST(Transpose, Keys)
{
    Transpose effect;
    effect.setAngle(450);
    EXPECT_EQ(ownKeys(effect), json::parse(R"({"angle": 450})"));
    EXPECT_EQ(readKeys<Transpose>({{"angle", -90}})->angle, -90);
}

TEST(FixVertVideo, HasNothingOfItsOwn)
{
    FixVertVideo const effect;
    EXPECT_EQ(effect.id, Id::FixVertVideo);
    EXPECT_EQ(effect.groupId, Id::FixVertVideo);
    EXPECT_EQ(effect.tag, "effect_fixVerticalVideo");
    EXPECT_EQ(effect.defaultTag(), "");
    EXPECT_EQ(ownKeys(effect), json::object());
    EXPECT_EQ(readKeys<FixVertVideo>(json::object())->id, Id::FixVertVideo);
}

} // namespace
