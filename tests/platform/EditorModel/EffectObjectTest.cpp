#include "TestEffect.h"

#include <optional>
#include <sstream>
#include <utility>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/Error.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/StreamSerializer.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using EditorCollection::Payload;

TEST(EffectObject, Defaults)
{
    Sample::Effect const effect;
    EXPECT_EQ(effect.id, "the-id");
    EXPECT_EQ(effect.groupId, "the-group");
    EXPECT_EQ(effect.tag, "");
    EXPECT_FALSE(effect.tag.isNull());
    EXPECT_EQ(effect.intensity, 1.0);
    EXPECT_EQ(effect.resource, Resource::ID());
    EXPECT_EQ(effect.resourcePath, "");
    EXPECT_FALSE(effect.resourcePath.isNull());
    EXPECT_FALSE(effect.range);
}

TEST(EffectObject, AnswersOfTheBase)
{
    Sample::Effect effect;
    effect.tag = "the-tag";
    EXPECT_FALSE(effect.hasIntensity());
    EXPECT_FALSE(effect.isTwoInput());
    EXPECT_EQ(effect.defaultTag(), "");
    EXPECT_EQ(effect.processingSettingsId(), "the-id");
    EXPECT_EQ(effect.downloadResourceType(), Payload::DownloadResourceType::None);
    EXPECT_EQ(effect.mimeType(), "application/x-editor-effect");
    EXPECT_EQ(&effect.mimeType(), &Sample::Effect().mimeType());
}

TEST(EffectObject, IsFoundByItsKindAndWhatSetsItApart)
{
    Sample::Effect effect;
    effect.tag = "the-tag";
    EXPECT_EQ(effect.generateItemFindingId(), "the-id:the-tag");
    EXPECT_EQ(effect.generateLegacyItemFindingId(), "the-tag");
    effect.resource = Resource::ID("paper", Resource::Type::Image);
    EXPECT_EQ(effect.generateItemFindingId(), "the-id:paper");
    EXPECT_EQ(effect.generateLegacyItemFindingId(), "the-tag");
}

TEST(EffectObject, IsAValue)
{
    Sample::Effect effect;
    effect.tag = "the-tag";
    effect.intensity = 0.5;
    effect.resource = Resource::ID("paper", Resource::Type::Image);
    effect.resourcePath = "/paper.png";
    effect.range = Types::Range(MTime(1), MTime(2));

    Sample::Effect copy = effect;
    EXPECT_EQ(copy.id, "the-id");
    EXPECT_EQ(copy.groupId, "the-group");
    EXPECT_EQ(copy.tag, "the-tag");
    EXPECT_EQ(copy.intensity, 0.5);
    EXPECT_EQ(copy.resource, effect.resource);
    EXPECT_EQ(copy.resourcePath, "/paper.png");
    EXPECT_EQ(copy.range, effect.range);

    Sample::Effect moved;
    moved = std::move(copy);
    EXPECT_EQ(moved.tag, "the-tag");
    EXPECT_EQ(moved.range, effect.range);
}

using nlohmann::json;
using Types::Range;

json documentOf(Effect::Object const & effect)
{
    return json::parse(Effect::Archive::toJson(effect));
}

TEST(EffectObjectRange, IsNullInADocumentWhereTheConstructorSetsOne)
{
    Sample::Ranged effect;
    EXPECT_EQ(documentOf(effect)["Effect::Object"]["range"], (json{{"start", 1}, {"length", 2}}));
    effect.range.reset();
    json const document = documentOf(effect);
    ASSERT_TRUE(document["Effect::Object"].contains("range"));
    EXPECT_EQ(document["Effect::Object"]["range"], nullptr);
    EXPECT_FALSE(Effect::Archive::fromJson(document.dump())->range);
    EXPECT_FALSE(Effect::Archive::fromBinary(Effect::Archive::toBinary(effect))->range);

    // Elsewhere there is no key, as there never was.
    EXPECT_FALSE(documentOf(Sample::Effect())["Effect::Object"].contains("range"));
    // A document without the key leaves the constructor's range.
    json without = document;
    without["Effect::Object"].erase("range");
    EXPECT_EQ(Effect::Archive::fromJson(without.dump())->range, Range(MTime(1), MTime(2)));
}

TEST(EffectObjectRange, NullInADocumentTakesItAway)
{
    Sample::Effect effect;
    effect.range = Range(MTime(3), MTime(4));
    json const document{{"Effect::Object", {{"range", nullptr}}}};
    Serialize::Json::iarchive archive(document);
    archive >> effect;
    EXPECT_FALSE(effect.range);
}

TEST(EffectObjectRange, IsGoneFromADocumentThatIsSavedAgain)
{
    Sample::Effect effect;
    effect.range = Range(MTime(3), MTime(4));
    json document;
    Serialize::Json::oarchive archive(document);
    archive << effect;
    ASSERT_TRUE(document["Effect::Object"].contains("range"));
    effect.range.reset();
    archive << effect;
    EXPECT_FALSE(document["Effect::Object"].contains("range"));
}

TEST(EffectObjectRange, IsReadOverTheOneThatIsThere)
{
    Sample::Effect effect;
    effect.range = Range(MTime(3), MTime(4));
    json const document{{"Effect::Object", {{"range", {{"length", 9}}}}}};
    Serialize::Json::iarchive archive(document);
    archive >> effect;
    EXPECT_EQ(effect.range, Range(MTime(3), MTime(9)));
    effect.range.reset();
    archive >> effect;
    EXPECT_EQ(effect.range, Range(MTime(0), MTime(9)));
}

TEST(EffectObjectRange, StaysWhenItsNewValueIsBroken)
{
    Sample::Effect effect;
    effect.range = Range(MTime(3), MTime(4));
    // The start is read before the length.
    json const document{{"Effect::Object", {{"range", {{"start", 8}, {"length", "long"}}}}}};
    Serialize::Json::iarchive archive(document);
    EXPECT_THROW(archive >> effect, Serialize::ArchiveError);
    EXPECT_EQ(effect.range, Range(MTime(3), MTime(4)));
    effect.range.reset();
    EXPECT_THROW(archive >> effect, Serialize::ArchiveError);
    EXPECT_FALSE(effect.range);
}

/// Reads the effect from every proper part of the bytes that starts where they do, and expects the range to be either
/// the old one or, `behind` bytes before the end and later, the new one.
template <class Read>
void expectWholeRange(
    std::string const & bytes, std::size_t behind, Read const & read, std::optional<Range> const & old)
{
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        SCOPED_TRACE(size);
        Sample::Effect effect;
        effect.range = old;
        std::stringbuf stream(bytes.substr(0, size));
        EXPECT_THROW(read(stream, effect), Serialize::ArchiveError);
        EXPECT_EQ(effect.range, size + behind < bytes.size() ? old : Range(MTime(8), MTime(9)));
    }
}

TEST(EffectObjectRange, StaysWhenAStreamEndsWithinIt)
{
    Sample::Effect effect;
    effect.range = Range(MTime(8), MTime(9));
    std::stringbuf binary;
    Serialize::BinaryOArchive(binary) << effect;
    std::stringbuf stream;
    Serialize::StreamSerializer(stream).write(static_cast<Serialize::ISerializable const &>(effect));
    for (std::optional<Range> const & old : {std::optional(Range(MTime(3), MTime(4))), std::optional<Range>()}) {
        SCOPED_TRACE(old.has_value());
        // Behind the range comes the level: a number of four bytes,
        expectWholeRange(
            binary.str(), 4,
            [](std::streambuf & from, Sample::Effect & read) {
                Serialize::BinaryIArchive archive(from);
                archive >> read;
            },
            old);
        // which has its mark and its name of five letters in a stream, and the object's end behind it.
        expectWholeRange(
            stream.str(), (1 + 8 + 5) + (1 + 4) + 1,
            [](std::streambuf & from, Sample::Effect & read) {
                Serialize::StreamDeserializer(from).read(static_cast<Serialize::ISerializable &>(read));
            },
            old);
    }
}

} // namespace
