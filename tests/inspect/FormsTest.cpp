#include <inspect/Forms.h>

#include <EditorModel/EffectArchive.h>
#include <effects/Composition.h>
#include <effects/Geometry.h>

#include <tests/support/Folder.h>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect::Inspect;
using Effect::Archive::toBinary;
using Effect::Archive::toJson;
using nlohmann::json;
using Testing::failureOf;
using testing::HasSubstr;

std::string const anItem = "{\"note\": 1.50, \"categories\": [\"b\", \"a\"],\n"
                           " \"effect\": {\"$meta\": {\"class\": \"Effect::Crop\"}}}\n";

TEST(Forms, AnItemHoldsAnEffectAndNamesNoClass)
{
    EXPECT_TRUE(isItem(anItem));
    EXPECT_TRUE(isItem("\xEF\xBB\xBF" + anItem));
    EXPECT_FALSE(isItem(R"({"effect": {}, "$meta": {"class": "Effect::Crop"}})"));
    EXPECT_FALSE(isItem(R"({"categories": []})"));
    EXPECT_FALSE(isItem("[]"));
    EXPECT_FALSE(isItem("\"effect\""));
    EXPECT_FALSE(isItem(""));
}

TEST(Forms, AnArchiveHasBoth)
{
    Effect::ChromaKey effect;
    effect.harshness = 7;
    EXPECT_EQ(inForm(toJson(effect), Form::Binary), toBinary(effect));
    EXPECT_EQ(inForm(toBinary(effect), Form::Binary), toBinary(effect));
    std::string const text = inForm(toBinary(effect), Form::Json);
    EXPECT_EQ(json::parse(text), json::parse(toJson(effect)));
    EXPECT_EQ(text.substr(0, 4), "{\n  ");
    EXPECT_EQ(text.back(), '\n');
}

TEST(Forms, JsonStaysTheTextThatItIs)
{
    std::string const text = R"({"$meta": {"class": "Effect::Crop"}, "newer": 1.50, "transform": {"m": [)"
                             R"(1,0,0, 0,1,0, 0,0,1.0]}})";
    EXPECT_EQ(inForm(text, Form::Json), text);
    EXPECT_EQ(inForm(anItem, Form::Json), anItem);
}

TEST(Forms, NothingIsLostInTheBinaryForm)
{
    EXPECT_EQ(failureOf([] { inForm(R"({"$meta": {"class": "Effect::Crop"}, "newer": 1})", Form::Binary); }),
        "the binary form cannot keep what is unknown: Effect::Crop has no key \"newer\", at /newer");
    EXPECT_EQ(failureOf([] { inForm(anItem, Form::Binary); }),
        "an item cannot be written in the binary form, which has no place for its categories");
}

TEST(Forms, WhatCannotBeReadIsRefused)
{
    for (Form const form : {Form::Json, Form::Binary}) {
        EXPECT_EQ(failureOf([form] { inForm(R"({"$meta": {"class": "Effect::Crop"}, "transform": 5})", form); }),
            "an object is expected, found number, at /transform");
        EXPECT_EQ(failureOf([form] { inForm(R"({"$meta": {"class": "Effect::Croq"}})", form); }),
            "the class \"Effect::Croq\" is unknown, at /$meta/class");
        EXPECT_THAT(failureOf([form] { inForm("{", form); }), HasSubstr("this is no JSON: parse error at line 1"));
        std::string cut = toBinary(Effect::Crop());
        cut.pop_back();
        EXPECT_NE(failureOf([&] { inForm(cut, form); }), "");
    }
    // What the catalogue would not take.
    EXPECT_EQ(
        failureOf([] { inForm(R"({"categories": 5, "effect": {"$meta": {"class": "Effect::Crop"}}})", Form::Json); }),
        "\"categories\" is no array");
}

} // namespace
