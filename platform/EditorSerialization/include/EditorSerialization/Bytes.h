/// @file
/// Plain values to and from a byte stream, in the machine's byte order. The reader trusts no value that it reads.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <streambuf>
#include <string>

#include <EditorSerialization/Error.h>
#include <EditorSerialization/Export.h>

#include <QString>

namespace Serialize {

/// Writes bytes; throws an `ArchiveError` with the framework's output stream error when the stream takes fewer.
class EDITORSERIALIZATION_EXPORT ByteWriter
{
public:
    /// @param stream  must outlive the writer
    explicit ByteWriter(std::streambuf & stream)
        : m_stream(stream)
    {}

    /// Writes all of the bytes.
    void write(void const * bytes, std::size_t count)
    {
        if (m_stream.sputn(static_cast<char const *>(bytes), static_cast<std::streamsize>(count)) !=
            static_cast<std::streamsize>(count))
            fail();
    }
    /// Writes the bytes that the value has in memory.
    template <class T> void write(T const & value) { write(&value, sizeof value); }
    void write(std::string const & text); ///< 64-bit count of bytes, then the bytes
    void write(QString const & text);     ///< 32-bit count of UTF-16 units, or -1 for a null string, then the units

private:
    [[noreturn]] static void fail();

    std::streambuf & m_stream;
};

/// Reads bytes; throws an `ArchiveError` with the framework's input stream error when the stream gives fewer.
class EDITORSERIALIZATION_EXPORT ByteReader
{
public:
    /// @param stream  must outlive the reader
    explicit ByteReader(std::streambuf & stream)
        : m_stream(stream)
    {}

    /// Reads that many bytes.
    void read(void * bytes, std::size_t count)
    {
        std::streamsize const got = m_stream.sgetn(static_cast<char *>(bytes), static_cast<std::streamsize>(count));
        m_offset += static_cast<std::uint64_t>(got);
        if (got != static_cast<std::streamsize>(count))
            failShort(count - static_cast<std::size_t>(got));
    }
    /// An incomplete value changes nothing.
    template <class T> void read(T & value)
    {
        unsigned char whole[sizeof value];
        read(whole, sizeof whole);
        std::memcpy(static_cast<void *>(&value), whole, sizeof value);
    }
    void read(bool & value);                                 ///< one byte, 0 or 1
    void read(std::string & text);                           ///< allocates as the bytes arrive
    void readShort(std::string & text, std::size_t longest); ///< refuses a text of more than `longest` bytes
    /// If the text is equal to the old one, the old one keeps its storage.
    void read(QString & text);

    /// Bytes read so far.
    std::uint64_t offset() const { return m_offset; }
    /// Throws an `ArchiveError` that says `problem` and where in the stream it is.
    [[noreturn]] void fail(
        std::string const & problem, ArchiveError::exception_code code = ArchiveError::other_exception) const;

private:
    [[noreturn]] void failShort(std::size_t missing) const;

    std::streambuf & m_stream;
    std::uint64_t m_offset = 0;
};

} // namespace Serialize
