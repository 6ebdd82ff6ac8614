// Every class of the library through every reader and writer.

#include <algorithm>
#include <optional>
#include <sstream>
#include <type_traits>

#include <boost/serialization/extended_type_info.hpp>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/ObjectTracker.h>
#include <EditorSerialization/Registry.h>
#include <EditorSerialization/StreamSerializer.h>
#include <support/Variations.h>

#include "AllClasses.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Serialize::ISerializable;
using Testing::created;
using Testing::documentOf;
using Testing::objectOf;
using Testing::varied;

/// Holders own what they hold; every other class is a plain value.
template <class Class> constexpr bool isHolder = std::is_base_of_v<Effect::EffectsHolder, Class>;

template <class Class> class AllClassesTest : public testing::Test
{
protected:
    /// A default object, and two that differ from it and from each other in every field.
    std::unique_ptr<Class> plain = as(created(Class::NameInArchive()));
    std::unique_ptr<Class> first = as(objectOf(varied(documentOf(*plain))));
    std::unique_ptr<Class> second = as(objectOf(varied(varied(documentOf(*plain)))));

    static std::unique_ptr<Class> as(std::unique_ptr<ISerializable> object)
    {
        auto * const cast = dynamic_cast<Class *>(object.get());
        EXPECT_NE(cast, nullptr);
        object.release();
        return std::unique_ptr<Class>(cast);
    }
};

/// What of a document goes over the interfaces: all of it, but for the type of a descriptor's subclass, which its
/// constructor fixes and which stays as it was `before`.
template <class Class> json onTheInterfaces(json document, json const & before)
{
    if constexpr (std::is_base_of_v<Effect::EffectDescriptor, Class> &&
                  !std::is_same_v<Effect::EffectDescriptor, Class>) {
        bool const hasHolderBetween = document.contains("Effect::EffectsHolder");
        json & level = hasHolderBetween ? document["Effect::EffectsHolder"] : document;
        json const & levelBefore = hasHolderBetween ? before["Effect::EffectsHolder"] : before;
        level["Effect::EffectDescriptor"]["type"] = levelBefore["Effect::EffectDescriptor"]["type"];
    }
    return document;
}

TYPED_TEST_SUITE(AllClassesTest, Testing::AllClasses, Testing::ClassName);

TYPED_TEST(AllClassesTest, IsKnownByOneNameEverywhere)
{
    char const * const name = TypeParam::NameInArchive();
    EXPECT_EQ(this->plain->GetNameInArchive(), name);
    EXPECT_EQ(typeid(*this->plain), typeid(TypeParam));
    auto const * const type = boost::serialization::extended_type_info::find(name);
    ASSERT_NE(type, nullptr);
    EXPECT_STREQ(type->get_key(), name);
    EXPECT_EQ(documentOf(*this->plain)["$meta"]["class"], name);
}

TYPED_TEST(AllClassesTest, VariationsDifferInEveryField)
{
    json const defaults = documentOf(*this->plain).flatten();
    json const others = documentOf(*this->first).flatten();
    for (auto const & [path, value] : defaults.items())
        if (path.find("$meta") == path.npos) {
            EXPECT_NE(others.value(path, json("absent")), value) << path;
        }
}

TYPED_TEST(AllClassesTest, ValueSemantics)
{
    static_assert(std::has_virtual_destructor_v<TypeParam>);
    static_assert(std::is_copy_constructible_v<TypeParam> == !isHolder<TypeParam>);
    static_assert(std::is_copy_assignable_v<TypeParam> == !isHolder<TypeParam>);
    static_assert(std::is_move_constructible_v<TypeParam> == !isHolder<TypeParam>);
    static_assert(std::is_move_assignable_v<TypeParam> == !isHolder<TypeParam>);
    if constexpr (!isHolder<TypeParam>) {
        json const expected = documentOf(*this->first);
        TypeParam copy(*this->first);
        EXPECT_EQ(documentOf(copy), expected);
        TypeParam assigned(*this->plain);
        assigned = copy;
        EXPECT_EQ(documentOf(assigned), expected);
        TypeParam const moved(std::move(copy));
        EXPECT_EQ(documentOf(moved), expected);
        *this->plain = std::move(assigned);
        EXPECT_EQ(documentOf(*this->plain), expected);
    }
}

TYPED_TEST(AllClassesTest, JsonByPointer)
{
    json const document = documentOf(*this->first);
    EXPECT_EQ(documentOf(*objectOf(document)), document);
    // As text as well: what is printed is read back the same.
    EXPECT_EQ(documentOf(*objectOf(Serialize::Json::parse(document.dump()))), document);
}

TYPED_TEST(AllClassesTest, JsonIntoAnObjectThatIsWrongBeforehand)
{
    json document;
    {
        Serialize::Json::oarchive archive(document);
        archive << *this->first;
    }
    Serialize::Json::iarchive archive(document);
    archive >> *this->second;
    EXPECT_EQ(documentOf(*this->second), documentOf(*this->first));
}

TYPED_TEST(AllClassesTest, JsonOfAnEmptyObjectChangesNothing)
{
    json const expected = documentOf(*this->first);
    json const document = json::object();
    Serialize::Json::iarchive archive(document);
    archive >> *this->first;
    EXPECT_EQ(documentOf(*this->first), expected);
}

TYPED_TEST(AllClassesTest, JsonLoadsEachKeyByItself)
{
    // A document with one of the class's own keys sets that field and leaves all others.
    json const defaults = documentOf(*this->plain);
    json const others = documentOf(*this->first);
    for (auto const & [key, value] : others.items()) {
        if (key == "$meta" || key.rfind("Effect::", 0) == 0)
            continue;
        json const document{{"$meta", defaults["$meta"]}, {key, value}};
        json expected = defaults;
        expected[key] = value;
        EXPECT_EQ(documentOf(*objectOf(document)), expected) << key;
    }
}

/// The range of an effect, whose class may hide it behind a name of its own.
std::optional<Types::Range> & rangeOf(Effect::Object & effect)
{
    return effect.range;
}

TYPED_TEST(AllClassesTest, ARangeThatWasRemovedStaysAway)
{
    if constexpr (std::is_base_of_v<Effect::Object, TypeParam>) {
        bool const isSetByTheConstructor = rangeOf(*this->plain).has_value();
        rangeOf(*this->first).reset();
        json const document = documentOf(*this->first);
        EXPECT_EQ(document.dump().find("\"range\":null") != std::string::npos, isSetByTheConstructor);

        auto const fromJson = this->as(objectOf(document));
        EXPECT_FALSE(rangeOf(*fromJson));
        EXPECT_EQ(documentOf(*fromJson), document);

        std::stringstream binary;
        Serialize::BinaryOArchive(binary) << *this->first;
        Serialize::BinaryIArchive archive(binary);
        rangeOf(*this->plain).emplace();
        archive >> *this->plain;
        EXPECT_FALSE(rangeOf(*this->plain));

        std::stringbuf stream;
        Serialize::StreamSerializer(stream).write(static_cast<ISerializable const &>(*this->first));
        Serialize::StreamDeserializer(stream).read(static_cast<ISerializable &>(*this->second));
        EXPECT_FALSE(rangeOf(*this->second));
    }
}

TYPED_TEST(AllClassesTest, BinaryByPointer)
{
    std::stringstream stream;
    {
        Serialize::BinaryOArchive archive(stream);
        ISerializable const * const pointer = this->first.get();
        ISerializable const * const null = nullptr;
        archive << pointer << null << pointer;
    }
    Serialize::BinaryIArchive archive(stream);
    std::unique_ptr<ISerializable> object;
    std::unique_ptr<ISerializable> null = created("Effect::VideoEffect");
    archive >> object >> null;
    ASSERT_NE(object, nullptr);
    ISerializable const & read = *object;
    EXPECT_EQ(typeid(read), typeid(TypeParam));
    EXPECT_EQ(documentOf(read), documentOf(*this->first));
    EXPECT_EQ(null, nullptr);
    // The second pointer leads to the same object.
    ISerializable * again = nullptr;
    archive >> again;
    EXPECT_EQ(again, object.get());
}

TYPED_TEST(AllClassesTest, BinaryIntoAnObjectThatIsWrongBeforehand)
{
    std::stringstream stream;
    {
        Serialize::BinaryOArchive archive(stream);
        archive << *this->first << *this->plain;
    }
    Serialize::BinaryIArchive archive(stream);
    archive >> *this->second;
    EXPECT_EQ(documentOf(*this->second), documentOf(*this->first));
    // The default has no range, and the binary form says so.
    archive >> *this->second;
    EXPECT_EQ(documentOf(*this->second), documentOf(*this->plain));
}

TYPED_TEST(AllClassesTest, BinaryCutAnywhereIsAnInputStreamError)
{
    std::stringstream stream;
    {
        Serialize::BinaryOArchive archive(stream);
        ISerializable const * const pointer = this->first.get();
        archive << pointer;
    }
    std::string const whole = stream.str();
    for (std::size_t size = 0; size < whole.size(); ++size) {
        std::stringstream cut(whole.substr(0, size));
        try {
            Serialize::BinaryIArchive archive(cut);
            std::unique_ptr<ISerializable> object;
            archive >> object;
            FAIL() << "read from " << size << " bytes";
        } catch (boost::archive::archive_exception const & error) {
            EXPECT_EQ(error.code, boost::archive::archive_exception::input_stream_error) << size;
            EXPECT_THAT(error.what(), testing::HasSubstr("byte " + std::to_string(size))) << size;
        }
    }
}

TYPED_TEST(AllClassesTest, StreamByPointer)
{
    std::stringbuf buffer;
    {
        Serialize::StreamSerializer serializer(buffer);
        serializer.write(static_cast<ISerializable const *>(this->first.get()));
    }
    Serialize::StreamDeserializer deserializer(buffer);
    std::unique_ptr<ISerializable> object;
    deserializer.read(object);
    ASSERT_NE(object, nullptr);
    EXPECT_EQ(documentOf(*object), onTheInterfaces<TypeParam>(documentOf(*this->first), documentOf(*this->plain)));
}

TYPED_TEST(AllClassesTest, StreamIntoAnObjectThatIsWrongBeforehand)
{
    std::stringbuf buffer;
    {
        Serialize::StreamSerializer serializer(buffer);
        serializer.write(static_cast<ISerializable const &>(*this->first));
    }
    Serialize::StreamDeserializer deserializer(buffer);
    deserializer.read(static_cast<ISerializable &>(*this->second));
    json const loaded = documentOf(*this->second);
    if constexpr (isHolder<TypeParam>) {
        // What is read is appended to what is there, and the type is the constructor's affair.
        EXPECT_EQ(this->second->effects.size(), 4U);
        EXPECT_EQ(this->second->tag, this->first->tag);
    } else {
        EXPECT_EQ(loaded, onTheInterfaces<TypeParam>(documentOf(*this->first), loaded));
    }
}

TYPED_TEST(AllClassesTest, IsWalkedByTheTracker)
{
    Serialize::ObjectTracker byPointer;
    ISerializable const * const pointer = this->first.get();
    byPointer << pointer;
    auto const & entry = byPointer.entries().at(dynamic_cast<void const *>(pointer));
    EXPECT_EQ(entry.kind, Serialize::ObjectTracker::Kind::OwnedPointer);
    EXPECT_TRUE(entry.saved);

    Serialize::ObjectTracker byReference;
    byReference << *this->first;
    EXPECT_EQ(
        byReference.entries().at(dynamic_cast<void const *>(pointer)).kind, Serialize::ObjectTracker::Kind::Reference);
}

TEST(ClassList, NamesEveryRegisteredClass)
{
    std::vector<std::string> listed;
#define ROW_CLASS(Class, Base) listed.emplace_back("Effect::" #Class);
#define ROWS <support/AllFamilies.def>
#include <effects/Rows.h>
    std::sort(listed.begin(), listed.end());
    // The test program has classes of its own besides.
    std::vector<std::string> registered;
    for (std::string const & name : Serialize::Registry::names())
        if (name.rfind("Effect::", 0) == 0)
            registered.push_back(name);
    EXPECT_THAT(registered, testing::ElementsAreArray(listed));
    // Neither has an archive name.
    EXPECT_THAT(listed, testing::Not(testing::Contains("Effect::ColorBlendingBase")));
    EXPECT_EQ(Serialize::Registry::create("Effect::ColorMixField"), nullptr);
}

} // namespace
