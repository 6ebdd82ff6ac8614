#include <effects/Mirroring.h>
#include <effects/PrivateIdentity.h>
#include <support/Documents.h>

#include <gtest/gtest.h>

namespace {

using namespace Effect;
using nlohmann::json;
using Testing::ownKeys;
using Testing::readKeys;

TEST(Flip, Defaults)
{
    Flip effect;
    EXPECT_EQ(effect.id, Id::Flip);
    EXPECT_EQ(effect.groupId, Id::Flip);
    EXPECT_EQ(effect.tag, "effect_flip");
    EXPECT_FALSE(effect.vertical);
    EXPECT_FALSE(effect.horizontal);
    EXPECT_FALSE(effect.hasIntensity());
    effect.tag = "another";
    EXPECT_EQ(effect.defaultTag(), "effect_flip");
}

TEST(Flip, Keys)
{
    Flip effect;
    effect.vertical = true;
    EXPECT_EQ(ownKeys(effect), json::parse(R"({"vertical": true, "horizontal": false})"));
    auto const read = readKeys<Flip>({{"horizontal", true}});
    EXPECT_FALSE(read->vertical);
    EXPECT_TRUE(read->horizontal);
}

TEST(Mirror, Defaults)
{
    Mirror effect;
    EXPECT_EQ(effect.id, Id::Mirror);
    EXPECT_EQ(effect.groupId, Id::Mirror);
    EXPECT_EQ(effect.tag, "effect_mirror");
    EXPECT_EQ(effect.vertical, Mirror::Half{0});
    EXPECT_EQ(effect.horizontal, Mirror::Half{0});
    EXPECT_FALSE(effect.hasIntensity());
    effect.tag = "another";
    EXPECT_EQ(effect.defaultTag(), "effect_mirror");
}

TEST(Mirror, NumbersBeyondTheKnownOnesAreKept)
{
    auto const read = readKeys<Mirror>({{"vertical", 3}, {"horizontal", -7}});
    EXPECT_EQ(read->vertical, Mirror::Half{3});
    EXPECT_EQ(read->horizontal, Mirror::Half{-7});
    EXPECT_EQ(ownKeys(*read), json::parse(R"({"vertical": 3, "horizontal": -7})"));
}

} // namespace
