/// @file
/// Files, and effects in them.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <EditorModel/EffectObject.h>
#include <inspect/Export.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

/// @name One file
/// "-" is standard input or output. A `Failure` names the file and says why.
/// @{

/// The bytes of a file.
EFFECTS_INSPECT_API std::string readFile(std::string const & path);

/// Writes a file whole or not at all: a crash leaves the old one or the new one. What is no regular file, such as a
/// pipe, is written to as it is.
EFFECTS_INSPECT_API void writeFile(std::string const & path, std::string_view bytes);

/// What an archive or an item of the catalogue holds.
struct Archived
{
    std::unique_ptr<Effect::Object> effect; ///< never null
    nlohmann::json item;                    ///< of an item, its keys beside the effect; null for an archive
};

/// Reads an archive of either form or an item; what is in the file says which it is. Paths are left as they are.
EFFECTS_INSPECT_API Archived readArchived(std::string const & path);

/// The effect in such a file, for use: the paths in an item, which are relative to its folder, are made absolute.
EFFECTS_INSPECT_API std::unique_ptr<Effect::Object> readEffect(std::string const & path);

/// The document of an archive, or of an item with its effect in it.
EFFECTS_INSPECT_API nlohmann::json document(Archived const & archived);

/// @}

/// Suffixes of the files that `readEffect` reads.
extern EFFECTS_INSPECT_API std::vector<std::string> const effectSuffixes;

/// One of the files that the arguments of a command name.
struct File
{
    std::string name;  ///< as it is opened
    std::string error; ///< why an argument names none; `name` is the argument then
};

/// The files that arguments name, in their order:
/// - a file that exists, and "-": itself;
/// - a folder: the files in it and in the folders in it that end in one of the suffixes, in either case, sorted;
/// - anything else with a wildcard (`*`, `?`, `[`) in it: what matches, sorted, with the files of folders;
/// - anything else: itself, which will fail to be read.
EFFECTS_INSPECT_API std::vector<File> expand(
    std::vector<std::string> const & arguments, std::vector<std::string> const & suffixes);

} // namespace Effect::Inspect
