#include <algorithm>
#include <limits>

#include <EditorSerialization/Bytes.h>

namespace Serialize {

namespace {

// Allocated as the bytes arrive, so that a forged count costs no more memory than the stream has bytes.
constexpr std::size_t chunkSize = 64 * 1024;

constexpr std::int32_t nullText = -1;

} // namespace

void ByteWriter::write(std::string const & text)
{
    write(static_cast<std::uint64_t>(text.size()));
    write(text.data(), text.size());
}

void ByteWriter::write(QString const & text)
{
    write(text.isNull() ? nullText : static_cast<std::int32_t>(text.size()));
    write(text.constData(), static_cast<std::size_t>(text.size()) * sizeof(QChar));
}

void ByteWriter::fail()
{
    throw ArchiveError(
        ArchiveError::output_stream_error, "output stream error: the stream took fewer bytes than given");
}

void ByteReader::read(bool & value)
{
    unsigned char byte = 0;
    read(&byte, 1);
    if (byte > 1)
        fail("a boolean has the value " + std::to_string(byte));
    value = byte == 1;
}

void ByteReader::read(std::string & text)
{
    readShort(text, std::numeric_limits<std::size_t>::max());
}

void ByteReader::readShort(std::string & text, std::size_t longest)
{
    std::uint64_t left = 0;
    read(left);
    if (left > longest)
        fail("a name has the length " + std::to_string(left));
    std::string bytes;
    while (left > 0) {
        std::size_t const chunk = static_cast<std::size_t>(std::min<std::uint64_t>(left, chunkSize));
        std::size_t const start = bytes.size();
        bytes.resize(start + chunk);
        read(bytes.data() + start, chunk);
        left -= chunk;
    }
    text = std::move(bytes);
}

void ByteReader::read(QString & text)
{
    std::int32_t count = 0;
    read(count);
    if (count == nullText) {
        text = QString();
        return;
    }
    if (count < 0)
        fail("a text has the length " + std::to_string(count));

    // Identifiers, groups and tags mostly equal the constants that the constructor has put there.
    constexpr std::int32_t shortText = 64;
    if (count <= shortText) {
        QChar units[shortText];
        read(units, static_cast<std::size_t>(count) * sizeof(QChar));
        if (text.isNull() || text.size() != count || !std::equal(units, units + count, text.constData()))
            text = count == 0 ? QString(QLatin1String("")) : QString(units, count);
        return;
    }
    QString units;
    while (count > 0) {
        int const chunk = std::min(count, static_cast<std::int32_t>(chunkSize));
        int const start = units.size();
        units.resize(start + chunk);
        read(units.data() + start, static_cast<std::size_t>(chunk) * sizeof(QChar));
        count -= chunk;
    }
    text = units;
}

void ByteReader::fail(std::string const & problem, ArchiveError::exception_code code) const
{
    throw ArchiveError(code, problem + ", before byte " + std::to_string(m_offset));
}

void ByteReader::failShort(std::size_t missing) const
{
    throw ArchiveError(ArchiveError::input_stream_error, "input stream error: the data ends at byte " +
                                                             std::to_string(m_offset) + ", " + std::to_string(missing) +
                                                             (missing == 1 ? " byte" : " bytes") + " too early");
}

} // namespace Serialize
