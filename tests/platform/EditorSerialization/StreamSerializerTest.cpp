#include <limits>
#include <sstream>
#include <string>

#include "Host.h"

#include <EditorSerialization/StreamSerializer.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace Serialize;
using namespace std::string_literals;
using testing::HasSubstr;
using testing::StartsWith;

/// The bytes of a stream, magic and version left out.
template <class Write> std::string written(Write const & write)
{
    std::stringbuf buffer;
    StreamSerializer serializer(buffer);
    write(serializer);
    return buffer.str().substr(6);
}

std::string writtenObject(ISerializable const * object)
{
    return written([&](ISerializer & serializer) { serializer.write(object); });
}

/// A stream of these bytes behind magic and version.
class Stream
{
public:
    explicit Stream(std::string const & bytes)
        : m_buffer("EEST\x01\0"s + bytes)
        , m_deserializer(m_buffer)
    {}
    IDeserializer & reader() { return m_deserializer; }
    IValueReader & values() { return reader().values(); }
    std::unique_ptr<ISerializable> object()
    {
        std::unique_ptr<ISerializable> holder;
        reader().read(holder);
        return holder;
    }

private:
    std::stringbuf m_buffer;
    StreamDeserializer m_deserializer;
};

template <class Read> ArchiveError errorOf(Read const & read)
{
    try {
        read();
    } catch (ArchiveError const & error) {
        return error;
    }
    return ArchiveError(ArchiveError::no_exception, "no error");
}

Host::Leaf leaf()
{
    Host::Leaf leaf;
    leaf.text = QString::fromUtf8("Wärme");
    leaf.bytes = "a\0\xff"s;
    leaf.longNumber = std::numeric_limits<std::int64_t>::min();
    leaf.real = -0.1;
    leaf.color = 0xFF000001;
    leaf.number = -2;
    leaf.flag = true;
    return leaf;
}

TEST(StreamSerializer, BeginsWithMagicAndVersion)
{
    std::stringbuf buffer;
    StreamSerializer const serializer(buffer);
    EXPECT_EQ(buffer.str(), "EEST\x01\0"s);
}

TEST(StreamSerializer, MarksEveryForm)
{
    EXPECT_EQ(written([](ISerializer & serializer) {
        IValueWriter & values = serializer.values();
        values.name("key");
        values.beginArray(2);
        values.beginItem(1);
        values.endItem();
        values.endArray();
        values.value(QString("q"));
        values.value(QString());
        values.value(std::string("st"));
        values.value(std::int64_t(-1));
        values.value(1.0);
        values.value(std::uint32_t(3));
        values.value(std::int32_t(-2));
        values.value(true);
        values.value(false);
        addBaseName(serializer);
        serializer.write(nullptr);
    }),
        "n\x03\0\0\0\0\0\0\0key"
        "A\x02\0\0\0"
        "I\x01\0\0\0"
        "i"
        "a"
        "q\x01\0\0\0q\0"
        "q\xff\xff\xff\xff"
        "s\x02\0\0\0\0\0\0\0st"
        "l\xff\xff\xff\xff\xff\xff\xff\xff"
        "d\0\0\0\0\0\0\xf0\x3f"
        "u\x03\0\0\0"
        "j\xfe\xff\xff\xff"
        "b\x01"
        "b\0"
        "n\x05\0\0\0\0\0\0\0$base"
        "0"s);
}

TEST(StreamSerializer, ObjectsStandBetweenTheirMarks)
{
    Host::Node node;
    node.children.emplace_back();
    std::string const content = "n\x08\0\0\0\0\0\0\0children"
                                "A\x01\0\0\0"
                                "I\x01\0\0\0"
                                "n\x04\0\0\0\0\0\0\0Data"
                                "0"
                                "i"
                                "a"
                                "o"s;
    EXPECT_EQ(writtenObject(&node), "P\x0a\0\0\0\0\0\0\0Host::Node"s + content);
    EXPECT_EQ(written([&](ISerializer & serializer) { serializer.write(node); }), "O" + content);
}

TEST(StreamSerializer, EveryFormComesBack)
{
    Host::Leaf const before = leaf();
    auto const read = Stream(writtenObject(&before)).object();
    auto const & found = dynamic_cast<Host::Leaf const &>(*read);
    EXPECT_EQ(found.text, before.text);
    EXPECT_EQ(found.bytes, before.bytes);
    EXPECT_EQ(found.longNumber, before.longNumber);
    EXPECT_EQ(found.real, before.real);
    EXPECT_EQ(found.color, before.color);
    EXPECT_EQ(found.number, before.number);
    EXPECT_EQ(found.flag, before.flag);
}

TEST(StreamSerializer, NullAndEmptyTextsComeBackAsWhatTheyWere)
{
    for (QString const & text : {QString(), QString("")}) {
        Host::Leaf before;
        before.text = text;
        auto const read = Stream(writtenObject(&before)).object();
        EXPECT_EQ(dynamic_cast<Host::Leaf const &>(*read).text.isNull(), text.isNull());
    }
}

TEST(StreamSerializer, NullTakesTheObjectOutOfTheHolder)
{
    std::unique_ptr<ISerializable> holder = std::make_unique<Host::Leaf>();
    Stream(writtenObject(nullptr)).reader().read(holder);
    EXPECT_EQ(holder, nullptr);
}

TEST(StreamSerializer, ReferencesAreReadIntoPlace)
{
    Host::Leaf const before = leaf();
    Host::Leaf after;
    Stream stream(written([&](ISerializer & serializer) { serializer.write(before); }));
    stream.reader().read(after);
    EXPECT_EQ(after.text, before.text);
    EXPECT_TRUE(after.flag);
}

TEST(StreamSerializer, RecordsTakeThePlaceOfOldOnesAndObjectsAreAppended)
{
    Host::Branch branch;
    branch.leaves.resize(2);
    branch.leaves[0].number = 1;
    branch.leaves[1].number = 2;
    Host::Branch otherBranch;
    otherBranch.leaves.resize(5);
    Stream(written([&](ISerializer & serializer) { serializer.write(branch); })).reader().read(otherBranch);
    ASSERT_EQ(otherBranch.leaves.size(), 2U);
    EXPECT_EQ(otherBranch.leaves[1].number, 2);

    auto const node = Host::nested(2);
    auto const otherNode = Host::nested(2);
    Stream(written([&](ISerializer & serializer) { serializer.write(*node); })).reader().read(*otherNode);
    EXPECT_EQ(otherNode->children.size(), 2U);
}

TEST(StreamSerializer, NestingHasALimit)
{
    auto const deepest = Host::nested(maxObjectDepth);
    std::string const bytes = writtenObject(deepest.get());
    EXPECT_NE(Stream(bytes).object(), nullptr);

    auto const tooDeep = Host::nested(maxObjectDepth + 1);
    EXPECT_STREQ(errorOf([&] { writtenObject(tooDeep.get()); }).what(), "objects are nested more than 64 deep");

    // The same bytes as a writer without the limit would write them: one more node around the others.
    std::string const open = "P\x0a\0\0\0\0\0\0\0Host::Noden\x08\0\0\0\0\0\0\0childrenA\x01\0\0\0I\x01\0\0\0"
                             "n\x04\0\0\0\0\0\0\0Data"s;
    EXPECT_THAT(errorOf([&] { Stream(open + bytes + "iao").object(); }).what(),
        StartsWith("objects are nested more than 64 deep, "));
    EXPECT_TRUE(Host::Counted::instances.size() == std::size_t(2 * maxObjectDepth + 1)) << "what was read is gone";
}

TEST(StreamSerializer, RecordsInTheDeepestObjectAreNoLevel)
{
    auto node = Host::nested(maxObjectDepth - 1);
    Host::Node * innermost = node.get();
    while (!innermost->children.empty())
        innermost = &dynamic_cast<Host::Node &>(*innermost->children[0]);
    auto branch = std::make_unique<Host::Branch>();
    branch->leaves.resize(1);
    innermost->children.push_back(std::move(branch));
    EXPECT_NE(Stream(writtenObject(node.get())).object(), nullptr);
}

TEST(StreamSerializer, AFullStreamIsAnError)
{
    // Takes the head, and no more.
    class Full : public std::streambuf
    {
        std::streamsize xsputn(char const *, std::streamsize count) override
        {
            m_left -= count;
            return m_left < 0 ? 0 : count;
        }
        std::streamsize m_left = 6;
    };
    Full full;
    StreamSerializer serializer(full);
    EXPECT_EQ(errorOf([&] { serializer.values().value(true); }).code, ArchiveError::output_stream_error);
}

TEST(StreamDeserializer, WantsMagicAndVersion)
{
    for (std::string const & start : {"EEAR\x01\0"s, "EEST\x02\0"s}) {
        std::stringbuf buffer(start);
        EXPECT_THAT(errorOf([&] { StreamDeserializer{buffer}; }).what(), StartsWith("this is no object stream"));
    }
    std::stringbuf buffer("EEST\x01");
    EXPECT_EQ(errorOf([&] { StreamDeserializer{buffer}; }).code, ArchiveError::input_stream_error);
}

TEST(StreamDeserializer, AnyCutIsAnInputError)
{
    Host::Branch branch;
    branch.leaves.push_back(leaf());
    std::string const bytes = writtenObject(&branch);
    for (std::size_t length = 0; length < bytes.size(); ++length)
        EXPECT_EQ(errorOf([&] { Stream(bytes.substr(0, length)).object(); }).code, ArchiveError::input_stream_error)
            << length;
    EXPECT_EQ(Host::Counted::instances.size(), 2U) << "what was read in part is gone";
}

TEST(StreamDeserializer, WhatWasReadBeforeTheCutStays)
{
    Host::Leaf const before = leaf();
    std::string const bytes = written([&](ISerializer & serializer) { serializer.write(before); });
    Host::Leaf after;
    after.number = 7;
    // The last three of the fields are a colour (14 + 5 bytes), a number and a flag.
    std::size_t const cut = bytes.find("number", bytes.find("color"));
    EXPECT_EQ(
        errorOf([&] { Stream(bytes.substr(0, cut)).reader().read(after); }).code, ArchiveError::input_stream_error);
    EXPECT_EQ(after.text, before.text);
    EXPECT_EQ(after.color, before.color);
    EXPECT_EQ(after.number, 7);
    EXPECT_FALSE(after.flag);
}

/// Reads the object from the first `size` bytes, which do not hold all of it.
void readCut(std::string const & whole, std::size_t size, ISerializable & object)
{
    EXPECT_EQ(
        errorOf([&] { Stream(whole.substr(0, size)).reader().read(object); }).code, ArchiveError::input_stream_error);
}

TEST(StreamDeserializer, ACutBeforeTheElementsKeepsTheRecords)
{
    Host::Branch branch;
    branch.leaves.resize(2);
    std::string const bytes = written([&](ISerializer & serializer) { serializer.write(branch); });
    // Behind the count of two.
    std::size_t const elements = bytes.find("A\x02\0\0\0"s) + 5;
    for (std::size_t size = 0; size < elements; ++size) {
        SCOPED_TRACE(size);
        Host::Branch read;
        read.leaves.resize(3);
        read.leaves[2].number = 9;
        readCut(bytes, size, read);
        ASSERT_EQ(read.leaves.size(), 3U);
        EXPECT_EQ(read.leaves[2].number, 9);
    }
}

TEST(StreamDeserializer, AValueInAnOptionalOrAnArrayIsReplacedAsAWhole)
{
    Host::Parcel parcel;
    parcel.leaf = leaf();
    parcel.numbers = {1, 2, 3};
    std::string const bytes = written([&](ISerializer & serializer) { serializer.write(parcel); });
    int news = 0;
    for (std::size_t size = 0; size < bytes.size(); ++size) {
        SCOPED_TRACE(size);
        Host::Parcel read;
        read.leaf.emplace().text = "old";
        read.leaf->number = 4;
        read.numbers = {7, 8, 9};
        readCut(bytes, size, read);
        ASSERT_TRUE(read.leaf);
        bool const isNew = read.leaf->text != "old";
        news += isNew ? 1 : 0;
        EXPECT_EQ(read.leaf->number, isNew ? -2 : 4);

        Host::Parcel empty;
        readCut(bytes, size, empty);
        EXPECT_EQ(empty.leaf.has_value(), isNew);

        // The last three bytes end the last item, the array and the object.
        bool const areNumbersNew = size + 1 >= bytes.size();
        EXPECT_EQ(read.numbers[0], areNumbersNew || size + 2 == bytes.size() ? 1 : 7);
        EXPECT_EQ(read.numbers[2], areNumbersNew || size + 2 == bytes.size() ? 3 : 9);
    }
    // The name of the numbers takes 16 bytes, the array 6 with its end, each item 15, the object's end 1.
    EXPECT_EQ(news, 16 + 6 + 3 * 15 + 1);
}

TEST(StreamDeserializer, MessagesAreUtf8WhateverTheyQuote)
{
    EXPECT_STREQ(errorOf([] { Stream("P\x03\0\0\0\0\0\0\0\xe2\x82\0"s).object(); }).what(),
        u8"unregistered class - \"\uFFFD\uFFFD\uFFFD\", before byte 18");
    EXPECT_STREQ(errorOf([] { Stream("n\x02\0\0\0\0\0\0\0\x7f\xff"s).values().name("y"); }).what(),
        u8"\"y\" is expected, found \"\uFFFD\uFFFD\", before byte 17");
}

TEST(StreamDeserializer, SaysWhatItExpected)
{
    struct Row
    {
        void (*read)(IDeserializer &);
        char const * text;
    };
    constexpr Row rows[] = {
        {[](IDeserializer & d) { d.values().endItem(); }, "the end of the item is expected"},
        {[](IDeserializer & d) { d.values().beginItem(1); }, "an item is expected"},
        {[](IDeserializer & d) { d.values().endArray(); }, "the end of the array is expected"},
        {[](IDeserializer & d) {
             std::int32_t count = 0;
             d.values().beginArray(count);
         },
            "an array is expected"},
        {[](IDeserializer & d) { d.values().name("key"); }, "key is expected"},
        {[](IDeserializer & d) {
             QString value;
             d.values().value(value);
         },
            "a text is expected"},
        {[](IDeserializer & d) {
             std::string value;
             d.values().value(value);
         },
            "a string of bytes is expected"},
        {[](IDeserializer & d) {
             std::int64_t value = 0;
             d.values().value(value);
         },
            "a 64-bit integer is expected"},
        {[](IDeserializer & d) {
             double value = 0;
             d.values().value(value);
         },
            "a double is expected"},
        {[](IDeserializer & d) {
             std::uint32_t value = 0;
             d.values().value(value);
         },
            "an unsigned integer is expected"},
        {[](IDeserializer & d) {
             std::int32_t value = 0;
             d.values().value(value);
         },
            "an integer is expected"},
        {[](IDeserializer & d) {
             bool value = false;
             d.values().value(value);
         },
            "a boolean is expected"},
        {[](IDeserializer & d) {
             std::unique_ptr<ISerializable> holder;
             d.read(holder);
         },
            "an object or null is expected"},
        {[](IDeserializer & d) {
             Host::Leaf object;
             d.read(object);
         },
            "an object is expected"},
    };
    for (Row const & row : rows) {
        Stream stream("?");
        std::string const text = errorOf([&] { row.read(stream.reader()); }).what();
        EXPECT_THAT(text, StartsWith(row.text));
        EXPECT_THAT(text, HasSubstr("7")) << "the byte";
    }
}

TEST(StreamDeserializer, NamesAndNumbersMustBeTheRightOnes)
{
    EXPECT_THAT(errorOf([] { Stream("n\x01\0\0\0\0\0\0\0x"s).values().name("y"); }).what(),
        StartsWith(R"("y" is expected, found "x")"));
    EXPECT_THAT(errorOf([] { Stream("I\x02\0\0\0"s).values().beginItem(1); }).what(),
        StartsWith("item 1 is expected, found item 2"));
}

TEST(StreamDeserializer, AnUnknownClassIsNamed)
{
    auto const error = errorOf([] { Stream("P\x0d\0\0\0\0\0\0\0Host::Unknown"s).object(); });
    EXPECT_EQ(error.code, ArchiveError::unregistered_class);
    EXPECT_THAT(error.what(), StartsWith(R"(unregistered class - "Host::Unknown")"));
}

TEST(StreamDeserializer, LengthsAreNotBelieved)
{
    std::string const huge = "\0\0\0\0\0\0\0\x40"s;
    std::string text;
    EXPECT_NE(errorOf([&] { Stream("s" + huge + "abc").values().value(text); }).code, ArchiveError::no_exception);
    EXPECT_NE(errorOf([&] { Stream("P" + huge + "abc").object(); }).code, ArchiveError::no_exception);
    QString unicode;
    EXPECT_NE(errorOf([&] { Stream("q\xfe\xff\xff\xff"s).values().value(unicode); }).code, ArchiveError::no_exception);
    EXPECT_NE(errorOf([&] { Stream("q\xff\xff\xff\x7f"s).values().value(unicode); }).code, ArchiveError::no_exception);
    bool flag = false;
    EXPECT_NE(errorOf([&] { Stream("b\x07").values().value(flag); }).code, ArchiveError::no_exception);
}

} // namespace
