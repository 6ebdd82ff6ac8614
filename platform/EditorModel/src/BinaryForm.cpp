#include "BinaryForm.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <streambuf>
#include <utility>

#include <EditorSerialization/BinaryArchive.h>

#define XXH_INLINE_ALL
#include <xxhash.h>

namespace Effect::Archive {

namespace {

using Serialize::ArchiveError;

constexpr std::string_view archiveMagic = "EEAR";
constexpr std::string_view magic = "EEFX";
constexpr std::size_t checksumOffset = 4;
constexpr std::size_t lengthOffset = 12;
constexpr std::size_t headerSize = 20;

/// Reads from memory that stays where it is.
class MemoryReader : public std::streambuf
{
public:
    explicit MemoryReader(std::string_view bytes)
    {
        char * const start = const_cast<char *>(bytes.data());
        setg(start, start, start + bytes.size());
    }
    std::size_t offset() const { return static_cast<std::size_t>(gptr() - eback()); }
};

/// Appends to a string.
class StringWriter : public std::streambuf
{
public:
    std::string bytes;

private:
    std::streamsize xsputn(char const * data, std::streamsize count) override
    {
        bytes.append(data, static_cast<std::size_t>(count));
        return count;
    }
    int_type overflow(int_type unit) override
    {
        if (!traits_type::eq_int_type(unit, traits_type::eof()))
            bytes.push_back(traits_type::to_char_type(unit));
        return traits_type::not_eof(unit);
    }
};

std::uint64_t checksumOf(std::string_view file)
{
    std::string_view const covered = file.substr(lengthOffset);
    return XXH3_64bits(covered.data(), covered.size());
}

std::uint64_t numberAt(std::string_view file, std::size_t offset)
{
    std::uint64_t number = 0;
    std::memcpy(&number, file.data() + offset, sizeof number);
    return number;
}

bool startsWith(std::string_view bytes, std::string_view start)
{
    return bytes.substr(0, start.size()) == start;
}

/// What the header says is wrong with the file.
std::optional<ArchiveError> problemOf(std::string_view file)
{
    if (file.size() < headerSize)
        return ArchiveError(ArchiveError::input_stream_error,
            "input stream error: the data ends at byte " + std::to_string(file.size()) + ", within the header");
    std::uint64_t const length = numberAt(file, lengthOffset);
    std::size_t const available = file.size() - headerSize;
    if (available < length)
        return ArchiveError(ArchiveError::input_stream_error,
            "input stream error: the data ends at byte " + std::to_string(file.size()) + ", " +
                std::to_string(length - available) + " bytes too early");
    if (available > length)
        return ArchiveError(ArchiveError::other_exception,
            "the archive goes on after the effect, at byte " + std::to_string(headerSize + length));
    if (numberAt(file, checksumOffset) != checksumOf(file))
        return ArchiveError(ArchiveError::other_exception, "the archive is damaged: its checksum is another one");
    return std::nullopt;
}

} // namespace

bool isBinaryForm(std::string_view bytes)
{
    return startsWith(bytes, archiveMagic) || startsWith(bytes, magic);
}

BinaryRead readBinaryForm(std::string_view bytes, bool keepsWhatIsRead)
{
    BinaryRead read;
    std::size_t start = 0;
    if (startsWith(bytes, magic)) {
        read.error = problemOf(bytes);
        read.offset = bytes.size();
        start = std::min(headerSize, bytes.size());
        if (read.error && (!keepsWhatIsRead || start == bytes.size()))
            return read;
    }
    MemoryReader reader(bytes.substr(start));
    try {
        Serialize::BinaryIArchive archive(reader);
        if (keepsWhatIsRead)
            archive.keepWhatIsRead();
        archive >> read.effect;
        if (archive.failure())
            throw *archive.failure();
        if (!read.effect)
            throw ArchiveError(ArchiveError::other_exception, "the archive holds no effect");
        if (start + reader.offset() != bytes.size())
            throw ArchiveError(ArchiveError::other_exception,
                "the archive goes on after the effect, at byte " + std::to_string(start + reader.offset()));
    } catch (boost::archive::archive_exception const & error) {
        // What the archive stumbled over is nearer to the damage than what the header says.
        read.error.emplace(error.code, error.what());
        read.offset = start + reader.offset();
        if (!keepsWhatIsRead)
            read.effect.reset();
    }
    return read;
}

std::string writeBinaryForm(Object const & effect)
{
    StringWriter writer;
    writer.bytes.assign(headerSize, '\0');
    {
        Serialize::BinaryOArchive archive(writer);
        Object const * const pointer = &effect;
        archive << pointer;
    }
    std::string & file = writer.bytes;
    magic.copy(file.data(), magic.size());
    std::uint64_t const length = file.size() - headerSize;
    std::memcpy(file.data() + lengthOffset, &length, sizeof length);
    std::uint64_t const checksum = checksumOf(file);
    std::memcpy(file.data() + checksumOffset, &checksum, sizeof checksum);
    return std::move(file);
}

} // namespace Effect::Archive
