#include <EditorModel/Transform.h>

#include <array>
#include <sstream>

#include <EditorSerialization/BinaryArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSerialization/StreamSerializer.h>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

namespace {

using nlohmann::json;
using Types::Range;
using Types::Transform;

using Entries = std::array<double, 9>;

/// Row by row: 1 to 9.
Transform const counted(1, 2, 4, 5, 3, 6, 7, 8, 9);

TEST(Transform, DefaultIsTheIdentity)
{
    EXPECT_EQ(Transform().toMatrix3x3().entries(), (Entries{1, 0, 0, 0, 1, 0, 0, 0, 1}));
    EXPECT_TRUE(Transform().toQTransform().isIdentity());
}

TEST(Transform, TakesTheAffineEntriesFirst)
{
    for (std::size_t i = 0; i < 9; ++i)
        EXPECT_EQ(counted[i], static_cast<double>(i + 1));
    EXPECT_EQ(counted.toMatrix3x3().entries(), (Entries{1, 2, 3, 4, 5, 6, 7, 8, 9}));

    Transform const leftHalf(0.5, 0, 0, 1, 0, 0, -0.25, 0, 1);
    EXPECT_EQ(leftHalf.toMatrix3x3().entries(), (Entries{0.5, 0, 0, 0, 1, 0, -0.25, 0, 1}));
}

TEST(Transform, QTransformHasTheSameEntries)
{
    QTransform const converted = counted.toQTransform();
    EXPECT_EQ((Entries{converted.m11(), converted.m12(), converted.m13(), converted.m21(), converted.m22(),
                  converted.m23(), converted.m31(), converted.m32(), converted.m33()}),
        (Entries{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    // (x, y) to (x / 2 - 1/4, y).
    Transform const leftHalf(0.5, 0, 0, 1, 0, 0, -0.25, 0, 1);
    EXPECT_EQ(leftHalf.toQTransform().map(QPointF(0.5, 0.5)), QPointF(0, 0.5));
}

TEST(Transform, EntriesCanBeSet)
{
    Transform transform;
    transform[6] = 0.5;
    EXPECT_EQ(transform.toMatrix3x3().entries(), (Entries{1, 0, 0, 0, 1, 0, 0.5, 0, 1}));
}

TEST(Transform, ComparesEveryEntryWithATolerance)
{
    EXPECT_TRUE(Transform() == Transform());
    EXPECT_FALSE(Transform() != Transform());
    for (std::size_t i = 0; i < 9; ++i) {
        SCOPED_TRACE(i);
        Transform changed;
        changed[i] += 5e-13;
        EXPECT_TRUE(changed == Transform());
        changed[i] += 2e-12;
        EXPECT_FALSE(changed == Transform());
        EXPECT_TRUE(changed != Transform());
    }
}

TEST(Range, HoldsStartAndLength)
{
    EXPECT_EQ(Range().start(), MTime());
    EXPECT_EQ(Range().length(), MTime());
    Range const range(MTime(-5), MTime(7));
    EXPECT_EQ(range.start(), MTime(-5));
    EXPECT_EQ(range.length(), MTime(7));
    EXPECT_TRUE(range == Range(MTime(-5), MTime(7)));
    EXPECT_TRUE(range != Range(MTime(-5), MTime(8)));
    EXPECT_TRUE(range != Range(MTime(-4), MTime(7)));
}

template <class Value> json toJson(Value const & value)
{
    json document;
    Serialize::Json::oarchive archive(document);
    archive << value;
    return document;
}

template <class Value> Value fromJson(json const & document, Value value)
{
    Serialize::Json::iarchive archive(document);
    archive >> value;
    return value;
}

TEST(Transform, IsAnObjectWithItsEntries)
{
    EXPECT_EQ(toJson(counted), json::parse(R"({"m": [1, 2, 3, 4, 5, 6, 7, 8, 9]})"));
    EXPECT_TRUE(fromJson(toJson(counted), Transform()) == counted);
    EXPECT_TRUE(fromJson(json::object(), counted) == counted);
    for (char const * const text : {R"({"m": [1, 2, 3, 4, 5, 6, 7, 8]})", R"({"m": [1, 2, 3, 4, 5, 6, 7, 8, 9, 10]})",
             R"({"m": {}})", R"({"m": [1, 2, 3, 4, "x", 6, 7, 8, 9]})"})
        EXPECT_THROW(fromJson(json::parse(text), Transform()), Serialize::ArchiveError) << text;
}

TEST(Range, IsAnObjectOfUnits)
{
    Range const range(MTime(-5), MTime(9007199254740993));
    EXPECT_EQ(toJson(range), json::parse(R"({"start": -5, "length": 9007199254740993})"));
    EXPECT_TRUE(fromJson(toJson(range), Range()) == range);
}

TEST(Transform, IsItsEntriesInABinaryArchive)
{
    std::stringbuf stream;
    {
        Serialize::BinaryOArchive archive(stream, boost::archive::no_header);
        archive << counted;
    }
    // A plain value: nine doubles and nothing else.
    EXPECT_EQ(stream.str().size(), 9 * sizeof(double));
    Serialize::BinaryIArchive archive(stream, boost::archive::no_header);
    Transform read;
    archive >> read;
    EXPECT_TRUE(read == counted);
}

TEST(Transform, GoesThroughTheInterfaces)
{
    std::stringbuf stream;
    Serialize::StreamSerializer writer(stream);
    writer.write(static_cast<Serialize::ISerializable const &>(counted));
    Serialize::StreamDeserializer reader(stream);
    Transform read;
    reader.read(read);
    EXPECT_TRUE(read == counted);
}

} // namespace
