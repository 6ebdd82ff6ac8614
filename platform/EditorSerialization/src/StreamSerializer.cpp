#include <EditorSerialization/StreamSerializer.h>

#include <array>

#include <EditorSerialization/Error.h>
#include <EditorSerialization/Registry.h>

namespace Serialize {

namespace {

// Used in streams: never change.
constexpr std::array<char, 4> magic{'E', 'E', 'S', 'T'};
constexpr std::uint16_t formatVersion = 1;
constexpr std::size_t longestName = 255;
constexpr char const * baseName = "$base";

namespace Mark {
constexpr char Null = '0';
constexpr char Pointer = 'P';
constexpr char Object = 'O';
constexpr char EndObject = 'o';
constexpr char Array = 'A';
constexpr char EndArray = 'a';
constexpr char Item = 'I';
constexpr char EndItem = 'i';
constexpr char Name = 'n';
constexpr char Text = 'q';
constexpr char Bytes = 's';
constexpr char Integer64 = 'l';
constexpr char Double = 'd';
constexpr char Unsigned32 = 'u';
constexpr char Integer32 = 'j';
constexpr char Boolean = 'b';
} // namespace Mark

} // namespace

IValueWriter::~IValueWriter() = default;
IValueReader::~IValueReader() = default;
ISerializer::~ISerializer() = default;
IDeserializer::~IDeserializer() = default;

void addBaseName(ISerializer & serializer)
{
    serializer.values().name(baseName);
}

void addBaseName(IDeserializer & deserializer)
{
    deserializer.values().name(baseName);
}

StreamSerializer::StreamSerializer(std::streambuf & stream)
    : m_bytes(stream)
{
    m_bytes.write(magic);
    m_bytes.write(formatVersion);
}

StreamSerializer::~StreamSerializer() = default;

template <class T> void StreamSerializer::record(char mark, T const & value)
{
    m_bytes.write(mark);
    m_bytes.write(value);
}

void StreamSerializer::content(ISerializable const & object)
{
    object.Serialize(*this);
    m_bytes.write(Mark::EndObject);
}

void StreamSerializer::write(ISerializable const * object)
{
    if (!object)
        return m_bytes.write(Mark::Null);
    // Only pointers are counted, as in the archives: objects by value nest no deeper than classes do.
    DepthGuard const guard(m_depth);
    record(Mark::Pointer, object->GetNameInArchive());
    content(*object);
}

void StreamSerializer::write(ISerializable const & object)
{
    m_bytes.write(Mark::Object);
    content(object);
}

void StreamSerializer::endItem()
{
    m_bytes.write(Mark::EndItem);
}

void StreamSerializer::beginItem(std::int32_t number)
{
    record(Mark::Item, number);
}

void StreamSerializer::endArray()
{
    m_bytes.write(Mark::EndArray);
}

void StreamSerializer::beginArray(std::int32_t count)
{
    record(Mark::Array, count);
}

void StreamSerializer::name(char const * name)
{
    record(Mark::Name, std::string(name));
}

void StreamSerializer::value(QString const & value)
{
    record(Mark::Text, value);
}

void StreamSerializer::value(std::string const & value)
{
    record(Mark::Bytes, value);
}

void StreamSerializer::value(std::int64_t value)
{
    record(Mark::Integer64, value);
}

void StreamSerializer::value(double value)
{
    record(Mark::Double, value);
}

void StreamSerializer::value(std::uint32_t value)
{
    record(Mark::Unsigned32, value);
}

void StreamSerializer::value(std::int32_t value)
{
    record(Mark::Integer32, value);
}

void StreamSerializer::value(bool value)
{
    record(Mark::Boolean, value);
}

StreamDeserializer::StreamDeserializer(std::streambuf & stream)
    : m_bytes(stream)
{
    std::array<char, 4> start{};
    m_bytes.read(start);
    std::uint16_t version = 0;
    m_bytes.read(version);
    if (start != magic || version != formatVersion)
        m_bytes.fail("this is no object stream: it does not begin with EEST and version 1");
}

StreamDeserializer::~StreamDeserializer() = default;

void StreamDeserializer::expect(char mark, char const * what)
{
    char found = 0;
    m_bytes.read(found);
    if (found != mark)
        m_bytes.fail(std::string(what) + " is expected");
}

template <class T> void StreamDeserializer::record(char mark, char const * what, T & value)
{
    expect(mark, what);
    m_bytes.read(value);
}

void StreamDeserializer::content(ISerializable & object)
{
    object.Deserialize(*this);
    expect(Mark::EndObject, "the end of the object");
}

void StreamDeserializer::read(std::unique_ptr<ISerializable> & holder)
{
    char mark = 0;
    m_bytes.read(mark);
    if (mark == Mark::Null)
        return holder.reset();
    if (mark != Mark::Pointer)
        m_bytes.fail("an object or null is expected");
    std::string name;
    m_bytes.readShort(name, longestName);
    auto object = Registry::create(name);
    if (!object)
        m_bytes.fail("unregistered class - \"" + name + '"', ArchiveError::unregistered_class);
    DepthGuard const guard(m_depth, [this](std::string const & problem) { m_bytes.fail(problem); });
    content(*object);
    holder = std::move(object);
}

void StreamDeserializer::read(ISerializable & object)
{
    expect(Mark::Object, "an object");
    content(object);
}

void StreamDeserializer::endItem()
{
    expect(Mark::EndItem, "the end of the item");
}

void StreamDeserializer::beginItem(std::int32_t number)
{
    std::int32_t found = 0;
    record(Mark::Item, "an item", found);
    if (found != number)
        m_bytes.fail("item " + std::to_string(number) + " is expected, found item " + std::to_string(found));
}

void StreamDeserializer::endArray()
{
    expect(Mark::EndArray, "the end of the array");
}

void StreamDeserializer::beginArray(std::int32_t & count)
{
    record(Mark::Array, "an array", count);
}

void StreamDeserializer::name(char const * name)
{
    expect(Mark::Name, name);
    std::string found;
    m_bytes.readShort(found, longestName);
    if (found != name)
        m_bytes.fail("\"" + std::string(name) + "\" is expected, found \"" + found + "\"");
}

void StreamDeserializer::value(QString & value)
{
    record(Mark::Text, "a text", value);
}

void StreamDeserializer::value(std::string & value)
{
    record(Mark::Bytes, "a string of bytes", value);
}

void StreamDeserializer::value(std::int64_t & value)
{
    record(Mark::Integer64, "a 64-bit integer", value);
}

void StreamDeserializer::value(double & value)
{
    record(Mark::Double, "a double", value);
}

void StreamDeserializer::value(std::uint32_t & value)
{
    record(Mark::Unsigned32, "an unsigned integer", value);
}

void StreamDeserializer::value(std::int32_t & value)
{
    record(Mark::Integer32, "an integer", value);
}

void StreamDeserializer::value(bool & value)
{
    record(Mark::Boolean, "a boolean", value);
}

} // namespace Serialize
