#include <EditorSerialization/BinaryArchive.h>

#include <limits>
#include <sstream>

#include "Host.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using boost::archive::archive_exception;
using Host::Branch;
using Host::Leaf;
using Host::Node;
using Serialize::BinaryIArchive;
using Serialize::BinaryOArchive;
using Serialize::ISerializable;
using testing::HasSubstr;

template <class... Values> std::string written(Values const &... values)
{
    std::stringstream stream;
    BinaryOArchive archive(stream);
    (archive << ... << values);
    return stream.str();
}

/// Bytes, in the machine's order.
template <class... Values> std::string bytes(Values const &... values)
{
    std::string bytes;
    (bytes.append(reinterpret_cast<char const *>(&values), sizeof values), ...);
    return bytes;
}

std::uint16_t libraryVersion()
{
    boost::serialization::library_version_type const version = boost::archive::BOOST_ARCHIVE_VERSION();
    return version;
}

std::string const header = "EEAR" + bytes(libraryVersion());

/// What is thrown when an object is read from the bytes that follow a good header.
template <class Read> std::string errorOf(std::string const & content, int code, Read const & read)
{
    std::stringstream stream(header + content);
    try {
        BinaryIArchive archive(stream);
        read(archive);
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, code) << error.what();
        return error.what();
    }
    return "nothing was thrown";
}

std::string pointerError(std::string const & content, int code = archive_exception::other_exception)
{
    return errorOf(content, code, [](BinaryIArchive & archive) {
        std::unique_ptr<ISerializable> object;
        archive >> object;
    });
}

TEST(BinaryArchive, KeepsEveryValueWhole)
{
    Leaf leaf;
    leaf.text = QString::fromUtf8("\xF0\x9D\x84\x9E") + QChar(0xD800); // outside the basic plane, then half a pair
    leaf.bytes = std::string("\xFF\x00\xC0", 3);
    leaf.longNumber = (std::int64_t(1) << 53) + 1;
    leaf.real = -0.0;
    leaf.color = 0xFFFFFFFF;
    leaf.number = std::numeric_limits<std::int32_t>::min();
    leaf.flag = true;
    std::stringstream stream(written(leaf));
    BinaryIArchive archive(stream);
    Leaf read;
    archive >> read;
    EXPECT_EQ(read.text, leaf.text);
    EXPECT_EQ(read.bytes, leaf.bytes);
    EXPECT_EQ(read.longNumber, leaf.longNumber);
    EXPECT_TRUE(read.real == 0 && std::signbit(read.real));
    EXPECT_EQ(read.color, leaf.color);
    EXPECT_EQ(read.number, leaf.number);
    EXPECT_TRUE(read.flag);
}

TEST(BinaryArchive, KeepsWhatIsNoNumberAndWhatIsNoText)
{
    double const nan = std::numeric_limits<double>::quiet_NaN();
    double const infinity = std::numeric_limits<double>::infinity();
    QString const null;
    QString const empty("");
    std::stringstream stream(written(nan, infinity, -infinity, null, empty));
    BinaryIArchive archive(stream);
    double a = 0;
    double b = 0;
    double c = 0;
    QString d("x");
    QString e;
    archive >> a >> b >> c >> d >> e;
    EXPECT_TRUE(std::isnan(a));
    EXPECT_EQ(b, infinity);
    EXPECT_EQ(c, -infinity);
    EXPECT_TRUE(d.isNull());
    EXPECT_TRUE(e.isEmpty() && !e.isNull());
}

TEST(BinaryArchive, ATextThatIsThereAlreadyKeepsItsStorage)
{
    QString const constant = "0045796c-a028-46e4-b060-602365be311a";
    std::stringstream stream(written(constant));
    BinaryIArchive archive(stream);
    QString text = constant;
    archive >> text;
    EXPECT_EQ(text.constData(), constant.constData());
}

TEST(BinaryArchive, AnEmptyListIsTwelveBytesOfZero)
{
    Branch const branch;
    // No pointers to branches have been asked for by name here: tracked, class version, object number, then the list.
    std::string const content = written(branch).substr(header.size());
    EXPECT_EQ(content, bytes(true, std::uint32_t(0), std::uint32_t(0)) + std::string(8 + 4, '\0'));
}

TEST(BinaryArchive, LaysPointersOutAsTheFrameworkDoes)
{
    Leaf const leaf;
    ISerializable const * const pointer = &leaf;
    ISerializable const * const null = nullptr;
    std::string const name = "Host::Leaf";
    std::string const values =
        bytes(std::int32_t(0), std::uint64_t(0), std::int64_t(0), 0.0, std::uint32_t(0), std::int32_t(0), false);
    std::string const first = bytes(std::int16_t(0), std::uint64_t(name.size())) + name +
                              bytes(true, std::uint32_t(0), std::uint32_t(0)) + values;
    EXPECT_EQ(written(pointer), header + first);
    // A null pointer, then a reference to the first object.
    EXPECT_EQ(written(pointer, null, pointer),
        header + first + bytes(std::int16_t(-1)) + bytes(std::int16_t(0), std::uint32_t(0)));
}

TEST(BinaryArchive, AnObjectByValueIsWrittenWholeEveryTime)
{
    // Two temporaries that share an address, one after the other, are two objects.
    std::stringstream stream;
    BinaryOArchive out(stream);
    Leaf leaf;
    leaf.number = 1;
    out << leaf;
    leaf.number = 2;
    out << leaf;
    BinaryIArchive in(stream);
    Leaf first;
    Leaf second;
    in >> first >> second;
    EXPECT_EQ(first.number, 1);
    EXPECT_EQ(second.number, 2);
}

TEST(BinaryArchive, LibraryVersionThreeHasNoItemVersion)
{
    Branch branch;
    branch.leaves.resize(1);
    branch.leaves[0].number = 7;
    std::string content = written(branch).substr(header.size());
    // The item version follows tracked, class version, object number and count.
    content.erase(1 + 4 + 4 + 8, 4);
    std::stringstream stream("EEAR" + bytes(std::uint16_t(3)) + content);
    BinaryIArchive archive(stream);
    Branch read;
    read.leaves.resize(3);
    archive >> read;
    ASSERT_EQ(read.leaves.size(), 1U);
    EXPECT_EQ(read.leaves[0].number, 7);
}

TEST(BinaryArchive, CutInsideAFieldKeepsTheFieldsBefore)
{
    Leaf leaf;
    leaf.text = "whole";
    leaf.real = 0.5;
    leaf.number = 5;
    std::string const whole = written(leaf);
    // The last field is a byte, the one before it the number.
    std::stringstream stream(whole.substr(0, whole.size() - 3));
    BinaryIArchive archive(stream);
    Leaf read;
    read.number = 99;
    try {
        archive >> read;
        FAIL();
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, archive_exception::input_stream_error);
        EXPECT_THAT(error.what(), HasSubstr("input stream error"));
    }
    EXPECT_EQ(read.text, "whole");
    EXPECT_EQ(read.real, 0.5);
    EXPECT_EQ(read.number, 99);
}

/// Reads the object from the first `size` bytes, which do not hold all of it.
template <class Object> void readCut(std::string const & whole, std::size_t size, Object & object)
{
    std::stringstream stream(whole.substr(0, size));
    BinaryIArchive archive(stream);
    try {
        archive >> object;
        ADD_FAILURE() << "was read";
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, archive_exception::input_stream_error);
    }
}

TEST(BinaryArchive, CutBeforeTheElementsKeepsTheList)
{
    Branch branch;
    branch.leaves.resize(2);
    branch.leaves[0].number = 1;
    branch.leaves[1].number = 2;
    std::string const whole = written(branch);
    // Tracked, class version and object number; then the count and the item version.
    std::size_t const elements = header.size() + 1 + 4 + 4 + 8 + 4;
    for (std::size_t size = header.size(); size < elements; ++size) {
        SCOPED_TRACE(size);
        Branch read;
        read.leaves.resize(3);
        read.leaves[2].number = 9;
        readCut(whole, size, read);
        ASSERT_EQ(read.leaves.size(), 3U);
        EXPECT_EQ(read.leaves[2].number, 9);
    }
    // From there on the list is the new one, as far as it goes.
    Branch read;
    read.leaves.resize(3);
    readCut(whole, whole.size() - 1, read);
    ASSERT_EQ(read.leaves.size(), 2U);
    EXPECT_EQ(read.leaves[0].number, 1);
    EXPECT_EQ(read.leaves[1].number, 2);
}

TEST(BinaryArchive, AValueInAnOptionalOrAnArrayIsReplacedAsAWhole)
{
    Host::Parcel parcel;
    parcel.leaf.emplace().text = "new";
    parcel.leaf->number = 5;
    parcel.numbers = {1, 2, 3};
    std::string const whole = written(parcel);
    using Numbers = std::array<double, 3>;
    int news = 0;
    for (std::size_t size = header.size(); size < whole.size(); ++size) {
        SCOPED_TRACE(size);
        Host::Parcel read;
        read.leaf.emplace().text = "old";
        read.leaf->number = 4;
        read.numbers = {7, 8, 9};
        readCut(whole, size, read);
        ASSERT_TRUE(read.leaf);
        bool const isNew = read.leaf->text == "new";
        news += isNew ? 1 : 0;
        EXPECT_EQ(read.leaf->text, isNew ? "new" : "old");
        EXPECT_EQ(read.leaf->number, isNew ? 5 : 4);
        EXPECT_EQ(read.numbers, (Numbers{7, 8, 9}));

        Host::Parcel empty;
        readCut(whole, size, empty);
        EXPECT_EQ(empty.leaf.has_value(), isNew);
    }
    // The leaf counts from its last byte on, with the 24 bytes of the numbers behind it.
    EXPECT_EQ(news, 24);
}

TEST(BinaryArchive, AFullStreamIsAnOutputStreamError)
{
    class Full : public std::streambuf
    {
    } full;
    try {
        BinaryOArchive archive(full);
        FAIL();
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, archive_exception::output_stream_error);
        EXPECT_THAT(error.what(), HasSubstr("output stream error"));
    }
}

TEST(BinaryArchive, ForeignBytesAreRefused)
{
    std::stringstream stream("22 serialization::archive");
    try {
        BinaryIArchive archive(stream);
        FAIL();
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, archive_exception::invalid_signature);
    }
    std::stringstream newer("EEAR" + bytes(std::uint16_t(9999)));
    try {
        BinaryIArchive archive(newer);
        FAIL();
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, archive_exception::unsupported_version);
        EXPECT_THAT(error.what(), HasSubstr("9999"));
    }
}

TEST(BinaryArchive, ForgedNumbersAreRefused)
{
    auto const leafHead = [](std::uint32_t version, std::uint32_t object) {
        return bytes(std::int16_t(0), std::uint64_t(10)) + "Host::Leaf" + bytes(true, version, object);
    };
    EXPECT_THAT(pointerError(bytes(std::int16_t(5))), HasSubstr("class number 5 is unknown, before byte 8"));
    EXPECT_THAT(pointerError(bytes(std::int16_t(-2))), HasSubstr("class number -2 is unknown"));
    EXPECT_THAT(pointerError(bytes(std::int16_t(0), std::uint64_t(1) << 60)), HasSubstr("a name has the length"));
    EXPECT_THAT(pointerError(bytes(std::int16_t(0), std::uint64_t(4)) + "None", archive_exception::unregistered_class),
        HasSubstr("unregistered class - \"None\""));
    EXPECT_THAT(pointerError(leafHead(1, 0), archive_exception::unsupported_class_version), HasSubstr("version 1"));
    EXPECT_THAT(pointerError(leafHead(0, 7)), HasSubstr("object number 7 is out of order"));
    EXPECT_THAT(pointerError(bytes(std::int16_t(0), std::uint64_t(10)) + "Host::Leaf" + "\x07"),
        HasSubstr("a boolean has the value 7"));
}

TEST(BinaryArchive, MessagesAreUtf8WhateverTheyQuote)
{
    // A byte that is no UTF-8, a line feed and a zero, which would end the text.
    std::string const name("A\xFF\n\0Z", 5);
    EXPECT_EQ(
        pointerError(bytes(std::int16_t(0), std::uint64_t(name.size())) + name, archive_exception::unregistered_class),
        u8"unregistered class - \"A\uFFFD\uFFFD\uFFFDZ\", before byte 21");
}

TEST(BinaryArchive, HugeLengthsCostNothing)
{
    // A text, bytes and a list that claim 2^60: each ends where the stream does.
    std::uint64_t const huge = std::uint64_t(1) << 60;
    int const code = archive_exception::input_stream_error;
    EXPECT_THAT(errorOf(bytes(huge), code,
                    [](BinaryIArchive & archive) {
                        std::string text;
                        archive >> text;
                    }),
        HasSubstr("input stream error"));
    EXPECT_THAT(errorOf(bytes(std::numeric_limits<std::int32_t>::max()), code,
                    [](BinaryIArchive & archive) {
                        QString text;
                        archive >> text;
                    }),
        HasSubstr("input stream error"));
    EXPECT_THAT(errorOf(bytes(true, std::uint32_t(0), std::uint32_t(0), huge, std::uint32_t(0)), code,
                    [](BinaryIArchive & archive) {
                        Branch branch;
                        archive >> branch;
                    }),
        HasSubstr("input stream error"));
    EXPECT_THAT(errorOf(bytes(std::int32_t(-2)), archive_exception::other_exception,
                    [](BinaryIArchive & archive) {
                        QString text;
                        archive >> text;
                    }),
        HasSubstr("a text has the length -2"));
}

TEST(BinaryArchive, WhatAReadCreatedIsReleasedWhenItFails)
{
    std::size_t const before = Host::Counted::instances.size();
    auto const node = Host::nested(5);
    node->children.push_back(std::make_unique<Leaf>());
    ISerializable const * const pointer = node.get();
    std::string const whole = written(pointer);
    std::size_t const alive = Host::Counted::instances.size();
    EXPECT_GT(alive, before);
    for (std::size_t size = header.size(); size < whole.size(); ++size) {
        std::stringstream stream(whole.substr(0, size));
        BinaryIArchive archive(stream);
        std::unique_ptr<ISerializable> object;
        EXPECT_THROW(archive >> object, archive_exception);
        EXPECT_EQ(Host::Counted::instances.size(), alive) << size;
    }
}

TEST(BinaryArchive, AnObjectOfAnotherClassDoesNotBelong)
{
    Leaf const leaf;
    ISerializable const * const pointer = &leaf;
    std::stringstream stream(written(pointer));
    BinaryIArchive archive(stream);
    std::unique_ptr<Node> node;
    try {
        archive >> node;
        FAIL();
    } catch (archive_exception const & error) {
        EXPECT_THAT(error.what(), HasSubstr("Host::Leaf does not belong here"));
    }
}

TEST(BinaryArchive, AnOwnedObjectCannotBeReferredTo)
{
    Leaf const leaf;
    ISerializable const * const pointer = &leaf;
    std::stringstream stream(written(pointer, pointer));
    BinaryIArchive archive(stream);
    std::unique_ptr<ISerializable> first;
    std::unique_ptr<ISerializable> second;
    archive >> first;
    EXPECT_THROW(archive >> second, archive_exception);
    EXPECT_EQ(second, nullptr);
}

TEST(BinaryArchive, UnregisteredClassesAreRefused)
{
    Host::Unknown const unknown;
    ISerializable const * const pointer = &unknown;
    std::stringstream stream;
    BinaryOArchive archive(stream);
    try {
        archive << pointer;
        FAIL();
    } catch (archive_exception const & error) {
        EXPECT_EQ(error.code, archive_exception::unregistered_class);
        EXPECT_THAT(error.what(), HasSubstr("derived class not registered or exported"));
    }
}

} // namespace
