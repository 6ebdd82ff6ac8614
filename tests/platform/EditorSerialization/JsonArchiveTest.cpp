#include <EditorSerialization/JsonArchive.h>

#include <array>
#include <limits>
#include <stdexcept>

#include <EditorSerialization/Error.h>

#include "Host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using boost::archive::archive_exception;
using Host::Branch;
using Host::Leaf;
using Host::Node;
using nlohmann::json;
using Serialize::ISerializable;
using testing::HasSubstr;

template <class Value> json saved(Value const & value)
{
    json document;
    Serialize::Json::oarchive archive(document);
    archive << value;
    return document;
}

template <class Value> void load(json const & document, Value & value)
{
    Serialize::Json::iarchive archive(document);
    archive >> value;
}

/// What is thrown when the value is read from the document.
template <class Value> std::string errorOf(json const & document, int code = archive_exception::other_exception)
{
    Value value{};
    try {
        load(document, value);
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, code) << error.what();
        return error.what();
    }
    return "nothing was thrown";
}

/// Through a document and its text, and back.
template <class Value> Value roundTrip(Value const & value)
{
    json const document = Serialize::Json::parse(saved(value).dump());
    Value read{};
    load(document, read);
    return read;
}

json const leafMeta{{"class", "Host::Leaf"}};

TEST(JsonArchive, AnObjectHasItsClassAndItsFields)
{
    Leaf leaf;
    leaf.text = "t";
    leaf.bytes = "b";
    leaf.longNumber = 1;
    leaf.real = 0.5;
    leaf.color = 2;
    leaf.number = -3;
    leaf.flag = true;
    json const expected{{"$meta", leafMeta}, {"text", "t"}, {"bytes", "b"}, {"longNumber", 1}, {"real", 0.5},
        {"color", 2}, {"number", -3}, {"flag", true}};
    EXPECT_EQ(saved(leaf), expected);
    Branch branch;
    branch.leaves.push_back(leaf);
    EXPECT_EQ(saved(branch), (json{{"$meta", {{"class", "Host::Branch"}}}, {"leaves", json::array({expected})}}));
}

TEST(JsonArchive, ListsAreArraysEvenWhenEmpty)
{
    EXPECT_EQ(saved(Branch())["leaves"], json::array());
}

TEST(JsonArchive, KeepsEveryNumberWhole)
{
    double const infinity = std::numeric_limits<double>::infinity();
    for (double const number : {0.1, 1e308, 5e-324, infinity, -infinity})
        EXPECT_EQ(roundTrip(number), number);
    EXPECT_TRUE(std::isnan(roundTrip(std::numeric_limits<double>::quiet_NaN())));
    double const minusZero = roundTrip(-0.0);
    EXPECT_TRUE(minusZero == 0 && std::signbit(minusZero));
    for (std::int64_t const number : {(std::int64_t(1) << 53) + 1, std::numeric_limits<std::int64_t>::min(),
             std::numeric_limits<std::int64_t>::max()})
        EXPECT_EQ(roundTrip(number), number);
    EXPECT_EQ(roundTrip(0xFFFFFFFFU), 0xFFFFFFFFU);
}

TEST(JsonArchive, NumbersThatAreNoneAreSpelt)
{
    EXPECT_EQ(saved(std::numeric_limits<double>::infinity()), "Infinity");
    EXPECT_EQ(saved(-std::numeric_limits<double>::infinity()), "-Infinity");
    EXPECT_EQ(saved(std::numeric_limits<double>::quiet_NaN()), "NaN");
}

TEST(JsonArchive, KeepsEveryTextWhole)
{
    QString const clef = QString::fromUtf8("a\xF0\x9D\x84\x9E");
    EXPECT_EQ(saved(clef), u8"a\U0001D11E");
    for (QString const & text :
        {QString("plain"), clef, QString(QChar(0xD834)), QString("x") + QChar(0xDD1E) + "y", QString(QChar(0)),
            QString(QChar(0xFEFF)) + "marked", QString(2, QChar(0xFEFF)), QString("x") + QChar(0xFEFF)})
        EXPECT_EQ(roundTrip(text), text);
    EXPECT_EQ(saved(QString("x") + QChar(0xD834)), (json{{"$utf16", {0x78, 0xD834}}}));
    EXPECT_TRUE(roundTrip(QString()).isNull());
    EXPECT_EQ(saved(QString()), json());
    QString const empty = roundTrip(QString(""));
    EXPECT_TRUE(empty.isEmpty() && !empty.isNull());
}

TEST(JsonArchive, KeepsBytesThatAreNoUtf8)
{
    // Overlong, cut, a surrogate, past the last character, and a lone byte of each kind.
    for (std::string const & bytes : {std::string("\xC0\x80"), std::string("\xE2\x82"), std::string("\xED\xA0\x80"),
             std::string("\xF4\x90\x80\x80"), std::string("\x80"), std::string("\xFF"), std::string("\x00\xFE", 2)}) {
        EXPECT_TRUE(saved(bytes).contains("$bytes")) << testing::PrintToString(bytes);
        EXPECT_EQ(roundTrip(bytes), bytes);
    }
    // FF FE in base64.
    EXPECT_EQ(saved(std::string("\xFF\xFE")), (json{{"$bytes", "//4="}}));
    std::string const text = u8"Grüße \U0001D11E \uFFFF";
    EXPECT_EQ(saved(text), text);
    EXPECT_EQ(roundTrip(text), text);
}

TEST(JsonArchive, ATextThatIsThereAlreadyKeepsItsStorage)
{
    QString const constant = "effect_crop";
    QString text = constant;
    load(json("effect_crop"), text);
    EXPECT_EQ(text.constData(), constant.constData());
}

TEST(JsonArchive, AbsentKeysLeaveTheirFields)
{
    Leaf leaf;
    leaf.number = 5;
    leaf.text = "old";
    load(json{{"$meta", leafMeta}, {"number", 6}, {"unknown", {1, 2, 3}}}, leaf);
    EXPECT_EQ(leaf.number, 6);
    EXPECT_EQ(leaf.text, "old");
    // The meta object may be missing where the class is known.
    load(json{{"number", 7}}, leaf);
    EXPECT_EQ(leaf.number, 7);
}

TEST(JsonArchive, AbsentKeysOfAValueInAnOptionalLeaveTheirFields)
{
    Host::Parcel parcel;
    parcel.leaf.emplace().text = "old";
    parcel.leaf->number = 4;
    load(json{{"leaf", {{"number", 5}}}}, parcel);
    ASSERT_TRUE(parcel.leaf);
    EXPECT_EQ(parcel.leaf->text, "old");
    EXPECT_EQ(parcel.leaf->number, 5);
    load(json{{"leaf", nullptr}}, parcel);
    EXPECT_FALSE(parcel.leaf);
    load(json{{"leaf", {{"number", 6}}}}, parcel);
    ASSERT_TRUE(parcel.leaf);
    EXPECT_EQ(parcel.leaf->text, "");
    EXPECT_EQ(parcel.leaf->number, 6);
}

TEST(JsonArchive, AValueInAnOptionalOrAnArrayIsReplacedAsAWhole)
{
    Host::Parcel parcel;
    EXPECT_THROW(load(json{{"leaf", {{"text", "new"}, {"flag", 7}}}}, parcel), archive_exception);
    EXPECT_FALSE(parcel.leaf);
    parcel.leaf.emplace().text = "old";
    EXPECT_THROW(load(json{{"leaf", {{"text", "new"}, {"flag", 7}}}}, parcel), archive_exception);
    ASSERT_TRUE(parcel.leaf);
    EXPECT_EQ(parcel.leaf->text, "old");
    EXPECT_THROW(load(json{{"leaf", 7}}, parcel), archive_exception);
    ASSERT_TRUE(parcel.leaf);
    EXPECT_EQ(parcel.leaf->text, "old");

    parcel.numbers = {7, 8, 9};
    EXPECT_THROW(load(json{{"numbers", {1, 2, "three"}}}, parcel), archive_exception);
    EXPECT_EQ(parcel.numbers, (std::array<double, 3>{7, 8, 9}));
    load(json{{"numbers", {1, 2, 3}}}, parcel);
    EXPECT_EQ(parcel.numbers, (std::array<double, 3>{1, 2, 3}));
}

template <class Value> void saveInto(json & document, Value const & value)
{
    Serialize::Json::oarchive archive(document);
    archive << value;
}

TEST(JsonArchive, AValueTakesTheDocumentsPlace)
{
    Branch branch;
    branch.leaves.resize(1);
    Leaf const leaf;
    ISerializable const * const pointer = &branch;
    ISerializable const * const null = nullptr;
    std::unique_ptr<ISerializable> const owner;
    for (json const & used : {json(), json(7), json{{"old", 1}}, json::array({1, 2}), saved(branch), saved(leaf)}) {
        SCOPED_TRACE(used);
        json document = used;
        saveInto(document, branch);
        EXPECT_EQ(document, saved(branch));
        document = used;
        saveInto(document, leaf);
        EXPECT_EQ(document, saved(leaf));
        document = used;
        saveInto(document, pointer);
        EXPECT_EQ(document, saved(branch));
        document = used;
        saveInto(document, null);
        EXPECT_EQ(document, json());
        document = used;
        saveInto(document, owner);
        EXPECT_EQ(document, json());
        document = used;
        saveInto(document, std::array<double, 2>{0.5, 1.5});
        EXPECT_EQ(document, (json{0.5, 1.5}));
        document = used;
        saveInto(document, std::string("text"));
        EXPECT_EQ(document, "text");
    }
}

TEST(JsonArchive, AnArchiveCanSaveMoreThanOnce)
{
    Branch branch;
    branch.leaves.resize(1);
    Leaf const leaf;
    json document;
    Serialize::Json::oarchive archive(document);
    archive << branch << branch;
    EXPECT_EQ(document, saved(branch));
    EXPECT_EQ(&archive.head(), &document);
    archive << leaf;
    EXPECT_EQ(document, saved(leaf));
}

TEST(JsonArchive, AValueWithAKeyTakesThePlaceOfItsKeyAlone)
{
    using Serialize::field;
    Branch branch;
    branch.leaves.resize(1);
    Host::Parcel parcel;
    json document{{"kept", {1, 2}}, {"branch", {{"leaves", {7}}, {"old", 1}}}, {"leaf", {{"number", 9}}}};
    Serialize::Json::oarchive archive(document);
    archive << field("branch", branch) << field("branch", branch);
    EXPECT_EQ(document["branch"], saved(branch));
    EXPECT_EQ(document["leaf"], (json{{"number", 9}}));
    // A value that is absent has no key.
    archive << field("leaf", parcel.leaf);
    EXPECT_FALSE(document.contains("leaf"));
    EXPECT_EQ(document["kept"], (json{1, 2}));
    parcel.leaf.emplace();
    archive & field("leaf", parcel.leaf);
    EXPECT_EQ(document["leaf"], saved(*parcel.leaf));
    std::nullptr_t const none = nullptr;
    archive << field("kept", none);
    EXPECT_EQ(document["kept"], json());
    EXPECT_EQ(document.size(), 3U);

    json number = 5;
    Serialize::Json::oarchive(number) << field("branch", branch);
    EXPECT_EQ(number, (json{{"branch", saved(branch)}}));
}

TEST(JsonArchive, AFailedSaveLeavesTheDocument)
{
    Node node;
    node.children.push_back(std::make_unique<Leaf>());
    node.children.push_back(std::make_unique<Node>());
    dynamic_cast<Node &>(*node.children[1]).children.push_back(std::make_unique<Host::Unknown>());
    json const before{{"old", {1}}, {"node", 2}};
    json document = before;
    Serialize::Json::oarchive archive(document);
    EXPECT_THROW(archive << node, archive_exception);
    EXPECT_EQ(document, before);
    EXPECT_EQ(&archive.head(), &document);
    EXPECT_THROW(archive << Serialize::field("node", node), archive_exception);
    EXPECT_EQ(document, before);
    EXPECT_THROW(archive << Serialize::field("other", node), archive_exception);
    EXPECT_EQ(document, before);
    EXPECT_EQ(&archive.head(), &document);
    // And the archive can be used again, to its full depth.
    auto const deepest = Host::nested(Serialize::maxObjectDepth);
    ISerializable const * const pointer = deepest.get();
    archive << pointer;
    EXPECT_EQ(document, saved(pointer));
}

TEST(JsonArchive, WrongValuesAreToldWithTheirPlace)
{
    EXPECT_EQ(errorOf<Leaf>({{"real", "much"}}), "a number is expected, found string, at /real");
    EXPECT_EQ(errorOf<Leaf>({{"flag", 1}}), "true or false is expected, found number, at /flag");
    EXPECT_EQ(errorOf<Leaf>({{"text", 1}}), "a string is expected, found number, at /text");
    EXPECT_EQ(errorOf<Leaf>({{"number", 1.5}}), "an integer is expected, found number, at /number");
    EXPECT_EQ(errorOf<Leaf>({{"number", 2147483648}}), "the number 2147483648 is out of range, at /number");
    EXPECT_EQ(errorOf<Leaf>({{"number", -2147483649}}), "the number -2147483649 is out of range, at /number");
    EXPECT_EQ(errorOf<Leaf>({{"color", -1}}), "the number -1 is out of range, at /color");
    EXPECT_EQ(errorOf<Leaf>({{"color", 4294967296}}), "the number 4294967296 is out of range, at /color");
    EXPECT_EQ(errorOf<Leaf>({{"bytes", {{"$bytes", "?"}}}}), "the string is no base64, at /bytes");
    EXPECT_EQ(errorOf<Leaf>({{"text", {{"$utf16", {65536}}}}}), "the number 65536 is out of range, at /text");
    EXPECT_EQ(errorOf<Branch>({{"leaves", {{{"number", 0}}, {{"number", true}}}}}),
        "an integer is expected, found boolean, at /leaves/1/number");
    EXPECT_EQ(errorOf<Branch>({{"leaves", 5}}), "an array is expected, found number, at /leaves");
    EXPECT_EQ(errorOf<Leaf>(5), "an object is expected, found number, at /");
    EXPECT_EQ(errorOf<Leaf>({{"$meta", {{"class", "Host::Node"}}}}),
        "an object of the class Host::Leaf is expected, found \"Host::Node\", at /");
}

using Owner = std::unique_ptr<ISerializable>;

TEST(JsonArchive, PointersKnowTheirClass)
{
    Node node;
    node.children.push_back(std::make_unique<Leaf>());
    node.children.push_back(nullptr);
    ISerializable const * const pointer = &node;
    json const document = saved(pointer);
    EXPECT_EQ(document["children"][1], json());
    Owner read;
    load(document, read);
    auto const & children = dynamic_cast<Node &>(*read).children;
    ASSERT_EQ(children.size(), 2U);
    EXPECT_NE(dynamic_cast<Leaf *>(children[0].get()), nullptr);
    EXPECT_EQ(children[1], nullptr);
}

TEST(JsonArchive, PointersToNothingKnownAreRefused)
{
    EXPECT_EQ(errorOf<Owner>({{"$meta", {{"class", "None"}}}}, archive_exception::unregistered_class),
        "unregistered class - \"None\", at /");
    EXPECT_EQ(errorOf<Owner>(json::object()), "the object does not say its class, at /");
    EXPECT_EQ(errorOf<Owner>(1), "an object or null is expected, found number, at /");
    EXPECT_EQ(
        errorOf<Node>({{"children", {nullptr, {{"$meta", {{"class", "X"}}}}}}}, archive_exception::unregistered_class),
        "unregistered class - \"X\", at /children/1");
    EXPECT_EQ(errorOf<std::unique_ptr<Node>>({{"$meta", leafMeta}}),
        "an object of the class Host::Leaf does not belong here, at /");
}

TEST(JsonArchive, UnregisteredClassesAreRefused)
{
    Host::Unknown const unknown;
    ISerializable const * const pointer = &unknown;
    try {
        saved(pointer);
        FAIL();
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, archive_exception::unregistered_class);
        EXPECT_THAT(error.what(), HasSubstr("derived class not registered or exported"));
    }
}

/// Known to the framework through the tests below, but under no archive name and as no object.
struct Nameless : Host::Counted
{
    HOST_CLASS(Nameless)

private:
    template <class Archive> void serialize(Archive &) {}
};

TEST(JsonArchive, AClassWithoutAnArchiveNameIsRefused)
{
    Nameless const nameless;
    try {
        saved(nameless);
        FAIL();
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, archive_exception::unregistered_class);
    }
}

TEST(JsonArchive, AnUnregisteredCastIsRefused)
{
    Nameless const nameless;
    ISerializable const * const pointer = &nameless;
    try {
        saved(pointer);
        FAIL();
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, archive_exception::unregistered_cast);
    }
}

json reference(int id)
{
    return {{"$meta", {{"ref", id}}}};
}

json numbered(int id, json object)
{
    object["$meta"]["id"] = id;
    return object;
}

TEST(JsonArchive, ReferencesStandForTheirObjects)
{
    json const leaf = numbered(4, {{"$meta", leafMeta}, {"number", 9}});
    Branch branch;
    load(json{{"leaves", {reference(4), leaf, reference(4)}}}, branch);
    ASSERT_EQ(branch.leaves.size(), 3U);
    for (Leaf const & read : branch.leaves)
        EXPECT_EQ(read.number, 9);
    // Through pointers, each becomes an object of its own.
    Node node;
    load(json{{"children", {leaf, reference(4)}}}, node);
    ASSERT_EQ(node.children.size(), 2U);
    EXPECT_NE(node.children[0], node.children[1]);
    EXPECT_EQ(dynamic_cast<Leaf &>(*node.children[1]).number, 9);
}

TEST(JsonArchive, ReferencesToNothingAreOutOfRange)
{
    for (json const & document : {json{{"leaves", {reference(1)}}}, json{{"leaves", reference(1)}}, reference(1)}) {
        Branch branch;
        try {
            load(document, branch);
            FAIL() << document;
        } catch (std::out_of_range const & error) {
            EXPECT_STREQ(error.what(), "invalid map<K, T> key");
        }
    }
}

TEST(JsonArchive, ReferencesThatFormACircleAreRefused)
{
    json const circle{{"leaves", {numbered(1, reference(2)), numbered(2, reference(1))}}};
    EXPECT_EQ(errorOf<Branch>(circle), "the references form a circle, at /leaves/0");
    // The reference that leads into a circle is no part of it.
    json const behind{{"leaves", {json::object(), reference(1)}}, {"a", numbered(1, reference(2))},
        {"b", {{"c", numbered(2, reference(1))}}}};
    EXPECT_EQ(errorOf<Branch>(behind), "the references form a circle, at /leaves/1");
    EXPECT_EQ(errorOf<Leaf>(numbered(1, reference(1))), "the references form a circle, at /");
    json const inside = numbered(1, {{"$meta", {{"class", "Host::Node"}}}, {"children", {reference(1)}}});
    EXPECT_EQ(errorOf<Node>(inside), "references are nested more than 64 deep, at /children/0");
}

TEST(JsonArchive, AnErrorBehindAReferenceHasItsOwnPlace)
{
    // Slashes and tildes in keys are spelt out in a pointer.
    json const leaf = numbered(4, {{"$meta", leafMeta}, {"number", "nine"}});
    EXPECT_EQ(errorOf<Branch>({{"leaves", {reference(4)}}, {"a/b", {{"c~d", {1, leaf}}}}}),
        "an integer is expected, found string, at /a~1b/c~0d/1/number");
    // Two references on, by way of a number that is looked up before.
    json const way{{"leaves", {reference(1)}}, {"x", numbered(1, reference(4))}, {"y", leaf}};
    EXPECT_EQ(errorOf<Branch>(way), "an integer is expected, found string, at /y/number");
    // Of two references in each other, the inner one counts.
    json const branch = numbered(2, {{"$meta", {{"class", "Host::Branch"}}}, {"leaves", {reference(4)}}});
    EXPECT_EQ(errorOf<Node>({{"children", {reference(2)}}, {"x", branch}, {"y", leaf}}),
        "an integer is expected, found string, at /y/number");
    json const children = json::array({numbered(4, {{"$meta", {{"class", "X"}}}}), reference(4)});
    EXPECT_EQ(errorOf<Node>(
                  {{"children", {nullptr, reference(4)}}, {"others", children}}, archive_exception::unregistered_class),
        "unregistered class - \"X\", at /others/0");
}

TEST(JsonArchive, BrokenReferencesNameTheirPlace)
{
    auto const with = [](json const & number) { return json{{"$meta", {{"ref", number}}}}; };
    EXPECT_EQ(errorOf<Leaf>(with("4")), "an integer is expected, found string, at /$meta/ref");
    EXPECT_EQ(errorOf<Leaf>(with(nullptr)), "an integer is expected, found null, at /$meta/ref");
    EXPECT_EQ(errorOf<Branch>({{"leaves", {json::object(), with(1.0)}}}),
        "an integer is expected, found number, at /leaves/1/$meta/ref");
    EXPECT_EQ(errorOf<Branch>({{"leaves", with(9223372036854775808U)}}),
        "the number 9223372036854775808 is out of range, at /leaves/$meta/ref");
    // The second one on the way.
    json const way{{"leaves", {reference(1)}}, {"x", numbered(1, with(true))}};
    EXPECT_EQ(errorOf<Branch>(way), "an integer is expected, found boolean, at /x/$meta/ref");
}

TEST(JsonArchive, NumbersOfObjectsAreWhole)
{
    auto const document = [](json const & number) {
        json const leaf{{"$meta", {{"class", "Host::Leaf"}, {"id", number}}}, {"number", 9}};
        return json{{"leaves", {reference(-1)}}, {"x", {leaf}}};
    };
    Branch branch;
    load(document(-1), branch);
    ASSERT_EQ(branch.leaves.size(), 1U);
    EXPECT_EQ(branch.leaves[0].number, 9);
    // In 64 bits these would be -1 and the lowest number.
    EXPECT_EQ(errorOf<Branch>(document(18446744073709551615U)),
        "the number 18446744073709551615 is out of range, at /x/0/$meta/id");
    EXPECT_EQ(errorOf<Branch>(document(9223372036854775808U)),
        "the number 9223372036854775808 is out of range, at /x/0/$meta/id");
    // What is no whole number numbers nothing.
    EXPECT_THROW(load(document("-1"), branch), std::out_of_range);
    EXPECT_THROW(load(document(-1.0), branch), std::out_of_range);
    EXPECT_THROW(load(document(std::numeric_limits<std::int64_t>::max()), branch), std::out_of_range);
}

TEST(JsonArchive, AnArchiveCanBeReadFromAfterAnError)
{
    json const document{{"leaves", {numbered(1, reference(1))}}, {"good", {{"number", 9}}}};
    Serialize::Json::iarchive archive(document);
    Branch branch;
    Leaf leaf;
    EXPECT_THROW(archive >> branch, archive_exception);
    EXPECT_EQ(&archive.head(), &document);
    archive >> Serialize::field("good", leaf);
    EXPECT_EQ(leaf.number, 9);
}

TEST(JsonArchive, ReferencesDoNotMultiplyWithoutEnd)
{
    // Each object holds the next one twice: thirty of them expand to 2^30 leaves.
    json const leaf = numbered(30, {{"$meta", leafMeta}});
    json children = json::array({leaf});
    for (int id = 29; id >= 1; --id)
        children.push_back(
            numbered(id, {{"$meta", {{"class", "Host::Node"}}}, {"children", {reference(id + 1), reference(id + 1)}}}));
    json const document{{"$meta", {{"class", "Host::Node"}}}, {"children", children}};
    EXPECT_THAT(errorOf<Node>(document), HasSubstr("multiply beyond the limit"));
}

TEST(JsonArchive, TwoObjectsWithOneNumberAreRefused)
{
    json const leaf = numbered(1, {{"$meta", leafMeta}});
    std::string const error = errorOf<Branch>({{"leaves", {leaf, json::object(), leaf, reference(1)}}});
    EXPECT_THAT(error, testing::StartsWith("two objects of the document have the number 1, at /leaves/"));
    EXPECT_THAT(error, HasSubstr("/leaves/0"));
    EXPECT_THAT(error, HasSubstr("/leaves/2"));
    json const outer = numbered(1, {{"$meta", {{"class", "Host::Node"}}}, {"children", {leaf, reference(1)}}});
    EXPECT_THAT(errorOf<Node>(outer), HasSubstr("at /children/0 and at /"));
}

TEST(JsonArchive, MessagesAreUtf8WhateverTheyQuote)
{
    // From a document that a host built of bytes: a parsed one holds UTF-8 alone.
    std::string const bytes("A\xFF\n\0Z", 5);
    EXPECT_EQ(errorOf<Owner>({{"$meta", {{"class", bytes}}}}, archive_exception::unregistered_class),
        u8"unregistered class - \"A\uFFFD\uFFFD\uFFFDZ\", at /");
    EXPECT_EQ(errorOf<Leaf>({{"$meta", {{"class", bytes}}}}),
        u8"an object of the class Host::Leaf is expected, found \"A\uFFFD\uFFFD\uFFFDZ\", at /");
}

std::string parseError(std::string const & text)
{
    try {
        Serialize::Json::parse(text);
    } catch (archive_exception const & error) {
        return error.what();
    }
    return "nothing was thrown";
}

TEST(JsonText, ErrorsNameTheirPlace)
{
    struct
    {
        std::string text;
        char const * problem;
        char const * place;
    } const rows[] = {
        {"{\"a\": 1,\n \"b\": }", ": parse error at line 2, column 7: ", ", at /b"},
        {"", "parse error at line 1, column 1", ", at /"},
        {"{} x", "parse error at line 1, column 4", ", at /"},
        {std::string("{\n}\0{", 5), "byte 4 is zero, line 2, column 2", ""},
        {"[{\"a\": {}, \"b\": [true, \"\xFF\"]}]", "parse error at line 1, column 25", ", at /0/b/1"},
        {"{\"a\": [1], }", "parse error at line 1, column 12", ", at /a"},
        {"[1, {", "parse error at line 1, column 6", ", at /1"},
        {"1e999", "the number 1e999 is out of range, line 1, column 1", ", at /"},
        {"{\"x\": [1, 2.5],\n \"a/~b\": [0, -1e999]}", "the number -1e999 is out of range, line 2, column 14",
            ", at /a~1~0b/1"},
        {"{\"x\": {\"y\": {\"deep\": 0}, \"z\": 1e999}}", "the number 1e999 is out of range, line 1, column 31",
            ", at /x/z"},
    };
    for (auto const & row : rows) {
        SCOPED_TRACE(row.text);
        std::string const error = parseError(row.text);
        EXPECT_THAT(error, testing::StartsWith("this is no JSON: "));
        EXPECT_THAT(error, HasSubstr(row.problem));
        EXPECT_THAT(error, testing::EndsWith(row.place));
    }
}

TEST(JsonText, ErrorsAreUtf8)
{
    // The library quotes what it read up to the first wrong byte: half a character here.
    for (std::string const & text : {std::string(u8"{\"class\": é}"), std::string("\xFF"), std::string("\"\xE2\x82\""),
             std::string("{\"\xC0\x80\": 1}"), std::string("\xEF\xBB"), std::string("[1, \xF0\x9D\x84\x9E]")}) {
        std::string const error = parseError(text);
        EXPECT_NO_THROW(json(error).dump()) << testing::PrintToString(text);
        EXPECT_THAT(error, HasSubstr(u8"\uFFFD")) << testing::PrintToString(text);
    }
}

TEST(JsonText, ErrorsAreOfBoundedLength)
{
    std::string const error = parseError("{\"a\": \"" + std::string(1'000'000, 'x'));
    EXPECT_THAT(error, testing::StartsWith("this is no JSON: "));
    EXPECT_THAT(error, testing::EndsWith(", at /a"));
    EXPECT_LT(error.size(), 3000U);
}

TEST(JsonText, DepthIsLimited)
{
    auto const nested = [](int depth) {
        return std::string(static_cast<std::size_t>(depth), '[') + std::string(static_cast<std::size_t>(depth), ']');
    };
    EXPECT_NO_THROW(Serialize::Json::parse(nested(256)));
    EXPECT_THAT(parseError(nested(257)),
        testing::StartsWith("the JSON text is nested more than 256 deep, line 1, column 257, at /0/0/0"));
    EXPECT_THAT(parseError(nested(100'000)), HasSubstr("line 1, column 257"));
    std::string objects;
    for (int depth = 0; depth < 100'000; ++depth)
        objects += "{\"a\":";
    EXPECT_THAT(parseError(objects), HasSubstr("column 1281, at /a/a/a")); // behind 256 times five characters

    // Brackets that are closed again or part of a text are no depth.
    std::string const start = "{\"[[\\\"[\": \"]]\", \"a\": [[], {}],\n\"b\": ";
    EXPECT_NO_THROW(Serialize::Json::parse(start + nested(255) + "}"));
    EXPECT_THAT(parseError(start + nested(256) + "}"), HasSubstr("deep, line 2, column 261, at /b/0/0"));
}

TEST(JsonText, IsParsedAsTheLibraryDoes)
{
    for (char const * const text : {"null", "[1, -2, 3.5, \"x\", true, {\"a\": {}, \"b\": []}]",
             "{\"k\": 1, \"k\": 2, \"n\": 18446744073709551615, \"m\": -0.0}"})
        EXPECT_EQ(Serialize::Json::parse(text), json::parse(text)) << text;
}

} // namespace
