#include <inspect/NewItem.h>

#include <filesystem>

#include <EditorUtil/ItemFile.h>

#include <tests/support/Folder.h>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect::Inspect;
using nlohmann::json;
using Testing::failureOf;
using Testing::Folder;
using testing::HasSubstr;

json const & objectIn(json const & document)
{
    return document["effect"]["Effect::VideoEffect"]["Effect::Object"];
}

json made(NewItem const & item)
{
    std::string const text = newItem(item);
    EXPECT_NO_THROW(EditorCollection::parseItem(text, "/"));
    EXPECT_EQ(text.back(), '\n');
    return json::parse(text);
}

struct NewItemTest : testing::Test
{
    std::string const table = folder().write("luts/Warm Sun.cube", "LUT_1D_SIZE 2\n0 0 0\n1 1 1\n");
    std::string const file = folder().path("luts/warm.effect.json");

    static Folder const & folder()
    {
        static Folder const folder;
        return folder;
    }
};

TEST_F(NewItemTest, ATableIsNamedOnce)
{
    json const document = made({"Effect::Lut", table, file, {"category_b", "category_a", "category_b"}, {}});
    EXPECT_EQ(document["categories"], json({"category_a", "category_b"}));
    EXPECT_EQ(objectIn(document)["resource"], (json{{"name", "Warm Sun.cube"}, {"type", 4}}));
    EXPECT_EQ(objectIn(document)["resourcePath"], "Warm Sun.cube");
    EXPECT_EQ(objectIn(document)["groupId"], "Warm Sun.cube");
    EXPECT_EQ(objectIn(document)["tag"], "effect_lut_warm");
    EXPECT_EQ(objectIn(document)["id"], "296139e9-c085-4e73-aacd-df41093c132a");
}

TEST_F(NewItemTest, APathOutsideOfTheFolderIsWhole)
{
    NewItem item{"Effect::Lut", table, folder().path("other/warm.effect.json"), {}, {}};
    EXPECT_EQ(objectIn(made(item))["resourcePath"], table);
    item.file = folder().path("warm.effect.json");
    EXPECT_EQ(objectIn(made(item))["resourcePath"], "luts/Warm Sun.cube");
    item.file = "-";
    EXPECT_EQ(objectIn(made(item))["resourcePath"], table);
    EXPECT_EQ(objectIn(made(item))["tag"], "effect_lut");
}

TEST_F(NewItemTest, TagsAreTheClassesWithTheItemsName)
{
    for (auto const & [name, tag] : {std::pair("lut_cold", "effect_lut_cold"), std::pair("Lut Cold", "effect_lut_cold"),
             std::pair("lut", "effect_lut"), std::pair("effect_lut", "effect_lut"),
             std::pair("lute", "effect_lut_lute")})
        EXPECT_EQ(objectIn(made({"Effect::Lut", table, folder().path(name) + ".effect.json", {}, {}}))["tag"],
            std::string(tag));
}

TEST_F(NewItemTest, EachKindHasItsResource)
{
    std::string const isf = folder().write("a.fs", "/*{\"INPUTS\": []}*/\nvoid main() {}\n");
    std::string const picture = std::filesystem::path(STOCK_FOLDER) / "BlurMasks/heart.png";
    json document = made({"Effect::ShaderISF", isf, "-", {}, {}});
    EXPECT_EQ(objectIn(document)["groupId"], "a.fs");
    EXPECT_EQ(objectIn(document)["resource"]["type"], 4);
    document = made({"Effect::ExternalShader", isf, "-", {}, {}});
    EXPECT_EQ(document["effect"]["shaderResource"], "a.fs");
    EXPECT_EQ(objectIn(document)["groupId"], objectIn(document)["id"]);
    document = made({"Effect::Overlay", picture, "-", {}, {}});
    EXPECT_EQ(objectIn(document)["resource"], (json{{"name", "heart.png"}, {"type", 3}}));
    EXPECT_EQ(objectIn(document)["groupId"], "heart.png");
}

TEST_F(NewItemTest, ParametersAreSet)
{
    json const document =
        made({"Effect::Mask", "", "-", {}, {{"backgroundFill", "Blur"}, {"intensity", "0.5"}, {"tag", "mine"}}});
    EXPECT_EQ(objectIn(document)["intensity"], 0.5);
    EXPECT_EQ(objectIn(document)["tag"], "mine");
    EXPECT_EQ(document["effect"]["backgroundFill"], 1);
    EXPECT_THAT(failureOf([] { newItem({"Effect::Crop", "", "-", {}, {{"intensty", "1"}}}); }), HasSubstr("intensity"));
}

TEST_F(NewItemTest, WhatCannotWorkIsRefused)
{
    EXPECT_THAT(failureOf([] { newItem({"Effect::Luta", "", "-", {}, {}}); }), HasSubstr("did you mean"));
    EXPECT_EQ(failureOf([] {
        newItem({"Effect::Lut", "", "-", {}, {}});
    }),
        "Effect::Lut needs a lookup table: name its file behind the class");
    EXPECT_EQ(failureOf([&] {
        newItem({"Effect::Crop", table, "-", {}, {}});
    }),
        "Effect::Crop uses no file, so it cannot use " + table);
    std::string const gone = folder().path("gone.cube");
    EXPECT_EQ(failureOf([&] { newItem({"Effect::Lut", gone, "-", {}, {}}); }), gone + ": No such file or directory");
    std::string const broken = folder().write("broken.cube", "LUT_1D_SIZE 2\n0 0 0\n");
    for (char const * const name : {"Effect::Lut", "Effect::ShaderISF", "Effect::Overlay"})
        EXPECT_THAT(failureOf([&] { newItem({name, broken, "-", {}, {}}); }), HasSubstr(broken)) << name;
    std::string const empty = folder().write("empty.frag", "");
    EXPECT_EQ(failureOf([&] { newItem({"Effect::ExternalShader", empty, "-", {}, {}}); }), empty + ": is empty");
}

} // namespace
