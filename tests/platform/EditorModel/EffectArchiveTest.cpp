#include <EditorModel/EffectArchive.h>

#include <cmath>
#include <exception>
#include <limits>
#include <stdexcept>
#include <string>

#include <EditorSerialization/Error.h>

#include "TestEffect.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using namespace Effect::Archive;
using boost::archive::archive_exception;
using nlohmann::json;
using Serialize::ArchiveError;
using testing::HasSubstr;

/// An effect none of whose fields is at its default.
Sample::Effect fullEffect()
{
    Sample::Effect effect;
    effect.level = -7;
    effect.tag = QString::fromUtf8("Wärme \U0001F600");
    effect.id = "another-id";
    effect.groupId = "another-group";
    effect.intensity = 0.1;
    effect.resource = Resource::ID("paper", Resource::Type::Image);
    effect.resourcePath = "/paper.png";
    effect.range = Types::Range(MTime(-1), MTime(9007199254740993));
    return effect;
}

void expectFullEffect(Effect::Object const & read)
{
    auto const & effect = dynamic_cast<Sample::Effect const &>(read);
    Sample::Effect const expected = fullEffect();
    EXPECT_EQ(effect.level, expected.level);
    EXPECT_EQ(effect.tag, expected.tag);
    EXPECT_EQ(effect.id, expected.id);
    EXPECT_EQ(effect.groupId, expected.groupId);
    EXPECT_EQ(effect.intensity, expected.intensity);
    EXPECT_EQ(effect.resource, expected.resource);
    EXPECT_EQ(effect.resourcePath, expected.resourcePath);
    EXPECT_EQ(effect.range, expected.range);
}

TEST(EffectArchiveJson, Document)
{
    EXPECT_EQ(json::parse(toJson(Sample::Effect())), json::parse(R"({
        "$meta": {"class": "Sample::Effect"},
        "Effect::Object": {
            "$meta": {"class": "Effect::Object"},
            "tag": "", "id": "the-id", "groupId": "the-group", "intensity": 1,
            "resource": {"name": "", "type": 0}, "resourcePath": ""},
        "level": 3})"));
    EXPECT_EQ(json::parse(toJson(fullEffect()))["Effect::Object"], json::parse(R"({
        "$meta": {"class": "Effect::Object"},
        "tag": "Wärme \ud83d\ude00", "id": "another-id", "groupId": "another-group", "intensity": 0.1,
        "resource": {"name": "paper", "type": 3}, "resourcePath": "/paper.png",
        "range": {"start": -1, "length": 9007199254740993}})"));
}

TEST(EffectArchiveJson, ReadsBack)
{
    expectFullEffect(*fromJson(toJson(fullEffect())));
}

TEST(EffectArchiveJson, NumbersThatAreNotFiniteReadBack)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    Sample::Effect effect;
    effect.intensity = -infinity;
    EXPECT_EQ(json::parse(toJson(effect))["Effect::Object"]["intensity"], "-Infinity");
    EXPECT_EQ(fromJson(toJson(effect))->intensity, -infinity);
    effect.intensity = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(std::isnan(fromJson(toJson(effect))->intensity));
    EXPECT_TRUE(std::isnan(fromBinary(toBinary(effect))->intensity));
}

TEST(EffectArchiveJson, AbsentKeysLeaveTheDefaultsAndUnknownOnesAreIgnored)
{
    auto const effect =
        fromJson(R"({"$meta": {"class": "Sample::Effect"}, "Effect::Object": {"tag": "x"}, "new": [{}]})");
    EXPECT_EQ(effect->tag, "x");
    EXPECT_EQ(effect->id, "the-id");
    EXPECT_EQ(effect->intensity, 1.0);
    EXPECT_EQ(dynamic_cast<Sample::Effect const &>(*effect).level, 3);
}

TEST(EffectArchiveJson, SaysWhatIsWrongAndWhere)
{
    struct
    {
        std::string document;
        char const * message;
        char const * place;
    } const rows[] = {
        {"", "no JSON", "line 1, column 1"},
        {"{", "no JSON", "line 1, column 2"},
        {"{}\n x", "no JSON", "line 2, column 2"},
        {std::string("{}\0", 3), "no JSON", "byte 3"},
        {"{\"a\": \"\xFF\"}", "no JSON", "line 1"},
        {u8"{\"class\": é}", "no JSON", "at /class"},
        {"{\"a\": [1e999]}", "1e999", "line 1, column 8, at /a/0"},
        {std::string(100'000, '['), "nested more than 256 deep", ""},
        {"null", "the archive holds no effect", ""},
        {"7", "an object or null is expected", ""},
        {"[]", "an object or null is expected", ""},
        {"{}", "does not say its class", ""},
        {R"({"$meta": {"class": 7}})", "does not say its class", ""},
        {R"({"$meta": {"class": "Sample::Nothing"}})", "Sample::Nothing", ""},
        {R"({"$meta": {"class": "Effect::Object"}})", "Effect::Object", ""},
        {R"({"$meta": {"class": "Sample::Record"}})", "class Sample::Record does not belong here", ""},
        {R"({"$meta": {"class": "Sample::Effect"}, "level": "high"})", "integer", "/level"},
        {R"({"$meta": {"class": "Sample::Effect"}, "level": 2147483648})", "2147483648", "/level"},
        {R"({"$meta": {"class": "Sample::Effect"}, "Effect::Object": 3})", "an object is expected", "/Effect::Object"},
        {R"({"$meta": {"class": "Sample::Effect"}, "Effect::Object": {"intensity": true}})", "number",
            "/Effect::Object/intensity"},
        {R"({"$meta": {"class": "Sample::Effect"}, "Effect::Object": {"resource": {"name": 3}}})", "",
            "/Effect::Object/resource/name"},
        {R"({"$meta": {"class": "Sample::Effect"}, "Effect::Object": {"$meta": {"class": "Sample::Effect"}}})",
            "class Effect::Object is expected", "/Effect::Object"},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(row.document.substr(0, 120));
        try {
            fromJson(row.document);
            ADD_FAILURE() << "was read";
        } catch (ArchiveError const & error) {
            EXPECT_THAT(error.what(), HasSubstr(row.message));
            EXPECT_THAT(error.what(), HasSubstr(row.place));
            EXPECT_NO_THROW(json(error.what()).dump()) << "no UTF-8";
        }
    }
    EXPECT_THROW(fromJson(R"({"$meta": {"ref": 5}})"), std::out_of_range);
}

TEST(EffectArchive, ClassesThatAreNotRegisteredAreRefused)
{
    for (auto const write : {toJson, toBinary}) {
        try {
            write(Sample::Stranger());
            ADD_FAILURE() << "was written";
        } catch (archive_exception const & error) {
            EXPECT_EQ(error.code, archive_exception::unregistered_class);
        }
    }
    try {
        fromJson(R"({"$meta": {"class": "Sample::Stranger"}})");
        ADD_FAILURE() << "was read";
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, archive_exception::unregistered_class);
    }
}

TEST(EffectArchiveBinary, ReadsBack)
{
    expectFullEffect(*fromBinary(toBinary(fullEffect())));
    EXPECT_EQ(fromBinary(toBinary(Sample::Effect()))->id, "the-id");
}

std::string binaryError(std::string const & bytes)
{
    try {
        fromBinary(bytes);
        ADD_FAILURE() << "was read";
    } catch (ArchiveError const & error) {
        return error.what();
    }
    return {};
}

TEST(EffectArchiveBinary, WhatIsCutOffIsAShortRead)
{
    std::string const bytes = toBinary(fullEffect());
    for (std::size_t length = 0; length < bytes.size(); ++length) {
        SCOPED_TRACE(length);
        try {
            fromBinary({bytes.data(), length});
            ADD_FAILURE() << "was read";
        } catch (archive_exception const & error) {
            EXPECT_EQ(error.code, archive_exception::input_stream_error);
        }
    }
}

TEST(EffectArchiveBinary, SaysWhatIsWrong)
{
    std::string const bytes = toBinary(Sample::Effect());
    EXPECT_THAT(
        binaryError(bytes + '\0'), HasSubstr("goes on after the effect, at byte " + std::to_string(bytes.size())));
    EXPECT_THAT(binaryError(bytes + bytes), HasSubstr("goes on after the effect"));
    EXPECT_THAT(binaryError("JSON" + bytes), HasSubstr("does not begin with EEAR"));

    // Without the header, whose checksum would be wrong.
    std::string other = bytes.substr(20);
    other.replace(other.find("Sample::Effect"), 14, "Sample::Nobody");
    EXPECT_THAT(binaryError(other), HasSubstr("Sample::Nobody"));
    other = bytes.substr(20);
    other.replace(other.find("Sample::Effect"), 14, "Sample::Record");
    EXPECT_FALSE(binaryError(other).empty());
}

TEST(EffectArchiveBinary, NoChangedByteDoesMoreThanFail)
{
    std::string const bytes = toBinary(fullEffect());
    int refused = 0;
    for (std::size_t place = 0; place < bytes.size(); ++place) {
        for (int const change : {0x01, 0x80, 0xFF}) {
            std::string changed = bytes;
            changed[place] = static_cast<char>(changed[place] ^ change);
            try {
                EXPECT_TRUE(fromBinary(changed));
            } catch (std::exception const & error) {
                ++refused;
                EXPECT_NO_THROW(json(error.what()).dump()) << "no UTF-8, byte " << place;
            }
        }
    }
    EXPECT_GT(refused, 0);
}

} // namespace
