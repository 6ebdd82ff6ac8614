/// @file
/// Effects whose files were moved.
#pragma once

#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// The files below some folders.
class EFFECTS_INSPECT_API FileIndex
{
public:
    /// Lists the folders, and the folders in them. Throws a `Failure` for one that cannot be listed.
    explicit FileIndex(std::vector<std::string> const & folders);

    /// Those of that name, sorted.
    std::vector<std::string> const & named(std::string const & name) const;
    /// Those with that SHA-256, sorted; the first call reads all files.
    std::vector<std::string> withHash(std::string const & hash);
    /// SHA-256 of a file, which is read once. Empty when it cannot be read.
    std::string const & hashOf(std::string const & file);

private:
    std::map<std::string, std::vector<std::string>> m_byName;
    std::map<std::string, std::string> m_hashes;
};

/// By which SHA-256 files are recognised: the hashes that a name may have.
using KnownHashes = std::map<std::string, std::set<std::string>>;

/// Reads a list of hashes: the manifest of a pack, or what `sha256sum` prints. Throws a `Failure` that names the file.
EFFECTS_INSPECT_API KnownHashes readHashes(std::string const & file);

/// Those of the pack from which a file was unpacked, as the nearest manifest in its folder and those above it lists
/// them; none where there is no manifest.
EFFECTS_INSPECT_API KnownHashes hashesBeside(std::string const & file);

/// One path that leads to a file again.
struct Link
{
    std::string before;
    std::string after;
};

/// What came of a file.
struct Relinked
{
    std::string bytes;                 ///< in the form that was read, with everything else as it was
    std::vector<Link> links;           ///< paths that have changed
    std::vector<std::string> problems; ///< why others still lead nowhere
};

/// Looks for the files that the effects of an archive or an item refer to and that are not where their paths lead. A
/// file is found by its name. Where its SHA-256 is known, it must have that, and a file of another name with it is
/// found too; where it is not, files of that name that differ are not chosen from. Of several that are equal the first
/// counts.
///
/// In an item, the path of a file below its folder is relative; other paths are absolute. Throws a `Failure`, without
/// the file's name, for what is no readable archive.
/// @param file   where the bytes are from
EFFECTS_INSPECT_API Relinked relinked(
    std::string_view bytes, std::string const & file, FileIndex & index, KnownHashes const & hashes);

} // namespace Effect::Inspect
