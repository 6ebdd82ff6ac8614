#include <inspect/Differences.h>

#include <limits>

#include <gmock/gmock.h>

namespace {

using namespace Effect::Inspect;
using nlohmann::json;
using testing::IsEmpty;

EffectFile fileOf(json const & document)
{
    return EffectFile::parse("any.json", document.dump());
}

json enhance(json const & own = json::object())
{
    json document{{"$meta", {{"class", "Effect::ManualEnhance"}}}};
    document.update(own);
    return document;
}

json holder(std::vector<double> const & opacities)
{
    json effects = json::array();
    for (double const opacity : opacities)
        effects.push_back({{"$meta", {{"class", "Effect::Opacity"}}}, {"opacity", opacity}});
    return {{"$meta", {{"class", "Effect::EffectsHolder"}}}, {"effects", effects}};
}

TEST(Differences, NumbersAreComparedAsTheLibraryComparesThem)
{
    EXPECT_TRUE(isSame(0.5, 0.50000000000000011));
    EXPECT_FALSE(isSame(0.5, 0.5000001));
    EXPECT_TRUE(isSame(0.0, 1e-13));
    EXPECT_FALSE(isSame(0.0, 1e-11));
    EXPECT_TRUE(isSame(1.0, 1));
    EXPECT_FALSE(isSame(1, 2));
    EXPECT_TRUE(isSame("NaN", "NaN"));
    EXPECT_FALSE(isSame(1.0, "1.0"));
    EXPECT_TRUE(isSame({{"a", {1.0, 0.5}}}, {{"a", {1.0, 0.50000000000000011}}}));
    EXPECT_FALSE(isSame({{"a", 1}}, {{"b", 1}}));
    EXPECT_FALSE(isSame(json::array({1}), json::array({1, 1})));
    EXPECT_FALSE(isSame(nullptr, 0));
}

TEST(Differences, APatchMakesOneDocumentOfTheOther)
{
    std::vector<json> const documents{enhance(), enhance({{"gamma", 0.5}}), enhance({{"new", {{"x", 1}}}}), holder({}),
        holder({0.1, 0.2, 0.3}), holder({0.1, 0.3}), holder({0.2, 0.1, 0.2, 0.3, 0.4}),
        {{"categories", {"category_looks"}}, {"effect", enhance({{"gamma", 1.0}})}},
        {{"categories", json::array()}, {"effect", enhance()}}};
    for (json const & left : documents)
        for (json const & right : documents) {
            EffectFile const from = fileOf(left);
            EffectFile const to = fileOf(right);
            if (from.isItem() != to.isItem())
                continue;
            json const patch = patchFrom(from, to);
            EXPECT_EQ(patch.empty(), left == right) << left << right;
            EXPECT_EQ(from.document().patch(patch), to.document()) << patch;
        }
}

TEST(Differences, OnlyWhatDiffersIsReplaced)
{
    EXPECT_EQ(patchFrom(fileOf(holder({0.1, 0.2, 0.3})), fileOf(holder({0.1, 0.25, 0.3}))),
        json::parse(R"([{"op": "replace", "path": "/effects/1/opacity", "value": 0.25}])"));
    EXPECT_EQ(patchFrom(fileOf(holder({0.1, 0.2, 0.3})), fileOf(holder({0.1, 0.3}))),
        json::parse(R"([{"op": "remove", "path": "/effects/1"}])"));
}

TEST(Differences, ADefaultThatIsWrittenOutIsNone)
{
    EXPECT_THAT(patchFrom(fileOf(enhance()), fileOf(enhance({{"gamma", 0}, {"hue", 1e-14}}))), IsEmpty());
}

TEST(Differences, AnItemAndAnArchiveDifferByTheirEffects)
{
    EffectFile const archive = fileOf(enhance({{"gamma", 0.5}}));
    EffectFile const item = fileOf({{"categories", {"a"}}, {"effect", enhance({{"gamma", 0.25}})}});
    EXPECT_EQ(patchFrom(archive, item), json::parse(R"([{"op": "replace", "path": "/gamma", "value": 0.25}])"));
    EXPECT_EQ(patchFrom(item, archive), json::parse(R"([{"op": "replace", "path": "/effect/gamma", "value": 0.5}])"));
    for (auto const & [left, right, a, b] :
        {std::tuple(&archive, &item, "0.5", "0.25"), std::tuple(&item, &archive, "0.25", "0.5")}) {
        auto const differences = differencesOf(*left, *right);
        ASSERT_EQ(differences.size(), 1U);
        EXPECT_EQ(differences[0].key, "gamma");
        EXPECT_EQ(differences[0].left, a);
        EXPECT_EQ(differences[0].right, b);
    }
}

TEST(Differences, AParameterIsShownOnceByKeyAndLabel)
{
    json const moved{{"$meta", {{"class", "Effect::Crop"}}}, {"transform", {{"m", {2, 0, 0, 0, 3, 0, 0, 0, 1}}}}};
    auto const differences = differencesOf(fileOf({{"$meta", {{"class", "Effect::Crop"}}}}), fileOf(moved));
    ASSERT_EQ(differences.size(), 1U);
    EXPECT_EQ(differences[0].key, "transform");
    EXPECT_NE(differences[0].label, "");
    EXPECT_EQ(differences[0].left, "1 0 0 0 1 0 0 0 1");
    EXPECT_EQ(differences[0].right, "2 0 0 0 3 0 0 0 1");
}

TEST(Differences, WhatIsNoParameterIsShownByItsPlace)
{
    auto const added = differencesOf(fileOf(holder({0.1})), fileOf(holder({0.1, 0.2})));
    ASSERT_EQ(added.size(), 1U);
    EXPECT_EQ(added[0].key, "/effects/1");
    EXPECT_EQ(added[0].left, "");
    EXPECT_EQ(added[0].right, "Effect::Opacity");
    auto const inside = differencesOf(fileOf(holder({0.1})), fileOf(holder({0.2})));
    ASSERT_EQ(inside.size(), 1U);
    EXPECT_EQ(inside[0].key, "/effects/0/opacity");
    auto const unknown = differencesOf(fileOf(enhance()), fileOf(enhance({{"new", 7}})));
    ASSERT_EQ(unknown.size(), 1U);
    EXPECT_EQ(unknown[0].key, "/new");
    EXPECT_EQ(unknown[0].right, "7");
    auto const other = differencesOf(fileOf(enhance()), fileOf(holder({})));
    ASSERT_EQ(other.size(), 1U);
    EXPECT_EQ(other[0].key, "class");
    EXPECT_EQ(other[0].left, "Effect::ManualEnhance");
    EXPECT_EQ(other[0].right, "Effect::EffectsHolder");
}

} // namespace
