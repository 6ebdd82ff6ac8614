#include <inspect/Redaction.h>

#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectDocument.h>
#include <effects/Geometry.h>
#include <effects/Mask.h>
#include <effects/Shaders.h>

#include <tests/support/Folder.h>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect::Inspect;
using Effect::Archive::fromBinary;
using Effect::Archive::toBinary;
using Effect::Archive::toJson;
using nlohmann::json;
using Testing::failureOf;
using testing::HasSubstr;

/// None of the texts may be in the output, neither in UTF-8 nor in UTF-16, in which binary archives keep texts.
void expectNone(std::string const & bytes, std::vector<std::string> const & secrets)
{
    for (std::string const & secret : secrets) {
        EXPECT_EQ(bytes.find(secret), std::string::npos) << secret;
        std::string wide;
        for (char const letter : secret)
            wide += {letter, '\0'};
        EXPECT_EQ(bytes.find(wide), std::string::npos) << secret;
    }
}

TEST(Redaction, ReplacesWhatIsNotTheLibrarys)
{
    Effect::Lut lut("anna_wedding.cube");
    lut.resourcePath = "/home/anna/Secret Film/anna_wedding.cube";
    lut.tag = "anna's look";
    lut.intensity = 0.25;
    lut.range = Types::Range{MTime(40), MTime(2000)};
    std::string const text = redacted(toJson(lut));
    expectNone(text, {"anna", "wedding", "Secret", "/home"});
    auto const effect = Effect::Archive::fromJson(text);
    EXPECT_EQ(effect->GetNameInArchive(), "Effect::Lut");
    EXPECT_EQ(effect->id, lut.id);
    EXPECT_EQ(effect->intensity, 0.25);
    EXPECT_EQ(effect->range->start(), MTime(40));
    // The same text has the same replacement, and its suffix says what kind of file it is.
    EXPECT_EQ(effect->resource.name(), effect->groupId);
    EXPECT_TRUE(effect->resource.name().endsWith(".cube"));
    EXPECT_TRUE(effect->resourcePath.endsWith(".cube"));
    EXPECT_NE(effect->resourcePath, effect->resource.name());
    EXPECT_NE(effect->tag, effect->resourcePath);
}

TEST(Redaction, KeepsTheBinaryForm)
{
    Effect::Lut lut("anna.cube");
    lut.resourcePath = "C:\\anna\\film.cube";
    lut.tag = "anna's";
    ASSERT_NE(toBinary(lut).find(std::string("a\0n\0n\0a\0", 8)), std::string::npos);
    std::string const bytes = redacted(toBinary(lut));
    ASSERT_TRUE(Effect::Archive::isBinary(bytes));
    expectNone(bytes, {"anna", "film"});
    EXPECT_EQ(fromBinary(bytes)->id, lut.id);
    // Its own effects say nothing about anybody, and are the same.
    EXPECT_EQ(redacted(toBinary(Effect::Crop())), toBinary(Effect::Crop()));
    EXPECT_EQ(json::parse(redacted(toJson(Effect::Mask()))), json::parse(toJson(Effect::Mask())));
}

TEST(Redaction, CoversWhatIsUnknownToo)
{
    std::string const text = redacted(R"({
        "author": "Anna", "categories": ["annas looks", "category_blur"],
        "effect": {
            "$meta": {"class": "Effect::EffectsHolder", "comment": "for Anna"},
            "Effect::EffectDescriptor": {"type": 0},
            "effects": [
                {"$meta": {"class": "Annas::Effect"}, "codes": [65, 110, 110, 97], "type": "anna", "on": true},
                {"$meta": {"class": "Effect::Crop"}, "anna key": {"name": "anna", "type": 4},
                 "Effect::VideoEffect": {"Effect::Object": {"tag": {"$utf16": [65, 110, 55296]}}}}
            ]
        }
    })");
    expectNone(text, {"nna", "look", "blur", "65", "110", "55296", "comment", "author", "codes"});
    json const document = json::parse(text);
    json const & effects = document["effect"]["effects"];
    EXPECT_EQ(document["categories"].size(), 2U);
    EXPECT_EQ(effects[1]["$meta"]["class"], "Effect::Crop");
    EXPECT_TRUE(effects[1]["Effect::VideoEffect"]["Effect::Object"]["tag"].is_string());
    EXPECT_EQ(effects[0].size(), 4U);
    EXPECT_NE(Effect::Archive::Document::read(text).effect(), nullptr);
}

TEST(Redaction, AReplacementIsNothingThatWasThere)
{
    json const document = json::parse(redacted(R"({"$meta": {"class": "Effect::Crop"}, "Effect::VideoEffect":
        {"Effect::Object": {"tag": "text-1", "resourcePath": "text-2", "groupId": "text-4", "text-3": "key-1"}}})"));
    expectNone(document.dump(), {"text-1", "text-2", "text-3", "text-4", "key-1"});
}

TEST(Redaction, TakesWrongValues)
{
    // A fault's report holds what is faulty.
    std::string const text = redacted(R"({"$meta": {"class": "Effect::Crop"}, "transform": "anna"})");
    EXPECT_EQ(json::parse(text), json::parse(R"({"$meta": {"class": "Effect::Crop"}, "transform": "text-1"})"));
}

TEST(Redaction, RefusesWhatItCannotReadWhole)
{
    EXPECT_THAT(failureOf([] { redacted(R"({"tag": "anna)"); }), HasSubstr("this is no JSON"));
    std::string bytes = toBinary(Effect::Crop());
    bytes.back() = static_cast<char>(bytes.back() + 1);
    EXPECT_NE(failureOf([&] { redacted(bytes); }), "");
}

} // namespace
