/// @file
/// Presets that are passed on with all that they need, in one archive file.
///
/// A pack is a zip archive. Its first entry, `pack.json`, lists what is in it:
///
///     {"format": "effects", "formatVersion": 1, "licence": "CC0-1.0", "author": "...", "version": "1.2",
///      "files": [{"path": "warm.effect.json", "role": "preset", "size": 812, "sha256": "..."}, ...]}
///
/// The roles are `preset`, `resource` and `track`. Presets refer to their resources by paths relative to their own
/// folders.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// The suffix of packs.
inline constexpr char const * packSuffix = ".effects";

/// Name of the entry, and of the unpacked file, that lists the others.
inline constexpr char const * packManifest = "pack.json";

/// What is said of a pack as a whole; each may be empty.
struct PackInfo
{
    std::string licence; ///< an SPDX expression
    std::string author;
    std::string version;
};

/// Whether a text consists of what SPDX licence expressions do.
EFFECTS_INSPECT_API bool isLicence(std::string_view text);

/// A pack that has been put together.
struct Packed
{
    std::string bytes;                 ///< of the pack; empty when there are problems
    std::vector<std::string> files;    ///< what is in it besides the manifest, in its order
    std::vector<std::string> problems; ///< lines that say what is missing or cannot be read, with the file's name
};

/// Packs the archives and items that the arguments name, the pictures, tables and shaders to which their paths lead,
/// what the shaders import, and the user's motion tracks that they follow. The same input gives the same bytes.
/// @param arguments  files, folders and patterns; see `targets`
EFFECTS_INSPECT_API Packed pack(std::vector<std::string> const & arguments, PackInfo const & info);

/// Writes the files of a pack into a folder, which is made where it is missing, with the manifest: all of them or none.
/// Paths in archives, which are not relative to their files, become absolute.
/// @return the paths of the files, below the folder
///
/// Throws a `Failure` for what is no pack; for an entry that has another SHA-256 than the manifest says, is not in it,
/// or is no plain file; for a path that leads out of the folder; and where one of the files is in the folder already.
EFFECTS_INSPECT_API std::vector<std::string> unpack(std::string const & pack, std::string const & folder);

} // namespace Effect::Inspect
