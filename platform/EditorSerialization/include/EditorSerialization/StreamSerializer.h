/// @file
/// The polymorphic interfaces over a byte stream: each value is preceded by a mark of its type, so that a reader that
/// expects another type reports an error.
#pragma once

#include <streambuf>

#include <EditorSerialization/Bytes.h>
#include <EditorSerialization/Interfaces.h>

namespace Serialize {

/// Writes objects to a stream. Throws an `ArchiveError` when the stream takes too little (code 13) and when objects
/// are nested deeper than `maxObjectDepth`.
class EDITORSERIALIZATION_EXPORT StreamSerializer final : public ISerializer, private IValueWriter
{
public:
    /// Writes the head of the stream, which must outlive the serializer.
    explicit StreamSerializer(std::streambuf & stream);
    ~StreamSerializer() override;

    void write(ISerializable const * object) override;
    void write(ISerializable const & object) override;
    IValueWriter & values() override { return *this; }

private:
    void endItem() override;
    void beginItem(std::int32_t number) override;
    void endArray() override;
    void beginArray(std::int32_t count) override;
    void name(char const * name) override;
    void value(QString const & value) override;
    void value(std::string const & value) override;
    void value(std::int64_t value) override;
    void value(double value) override;
    void value(std::uint32_t value) override;
    void value(std::int32_t value) override;
    void value(bool value) override;

    template <class T> void record(char mark, T const & value);
    void content(ISerializable const & object);

    ByteWriter m_bytes;
    int m_depth = 0;
};

/// Reads objects from a stream that a `StreamSerializer` wrote, or that pretends to be one. Throws an `ArchiveError`
/// that says what was expected and at which byte: code 8 when the stream ends too early, 2 for an unknown class.
class EDITORSERIALIZATION_EXPORT StreamDeserializer final : public IDeserializer, private IValueReader
{
public:
    /// Reads the head of the stream, which must outlive the deserializer.
    explicit StreamDeserializer(std::streambuf & stream);
    ~StreamDeserializer() override;

    void read(std::unique_ptr<ISerializable> & holder) override;
    void read(ISerializable & object) override;
    IValueReader & values() override { return *this; }

private:
    void endItem() override;
    void beginItem(std::int32_t number) override;
    void endArray() override;
    void beginArray(std::int32_t & count) override;
    void name(char const * name) override;
    void value(QString & value) override;
    void value(std::string & value) override;
    void value(std::int64_t & value) override;
    void value(double & value) override;
    void value(std::uint32_t & value) override;
    void value(std::int32_t & value) override;
    void value(bool & value) override;

    void expect(char mark, char const * what);
    template <class T> void record(char mark, char const * what, T & value);
    void content(ISerializable & object);

    ByteReader m_bytes;
    int m_depth = 0;
};

} // namespace Serialize
