// The binary file of one effect: an archive behind a header with its length and its checksum, or, as it was written
// before there was a header, the archive alone.
//
//   45 45 46 58   "EEFX"
//   ...           XXH3 checksum of what follows, 64 bits
//   ...           length of the archive in bytes, 64 bits
//   45 45 41 52   "EEAR", the archive
//
// The archive checks whatever it reads, but a damaged number is as good a number as any.
#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include <EditorModel/EffectObject.h>
#include <EditorSerialization/Error.h>

namespace Effect::Archive {

/// What came of reading a binary file.
struct BinaryRead
{
    std::unique_ptr<Object> effect;
    std::optional<Serialize::ArchiveError> error;
    std::size_t offset = 0; ///< where the error was noticed, in bytes from the start of the file
};

/// Whether the bytes begin like a binary file, in either way.
bool isBinaryForm(std::string_view bytes);

/// @param keepsWhatIsRead  whether an effect that cannot be read whole is kept as far as it was read
BinaryRead readBinaryForm(std::string_view bytes, bool keepsWhatIsRead);

std::string writeBinaryForm(Object const & effect);

} // namespace Effect::Archive
