/// @file
/// Files, effects in them, and what commands that take any number of them share.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include <EditorModel/EffectObject.h>

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

namespace Host {

/// @name One file
/// "-" is standard input or output. A `Failure` names the file and says why.
/// @{

/// The bytes of a file.
std::string readFile(std::string const & path);

/// Writes a file whole or not at all: a crash leaves the old one or the new one. What is no regular file, such as a
/// pipe, is written to as it is.
void writeFile(std::string const & path, std::string_view bytes);

/// What an archive or an item of the catalogue holds.
struct Archived
{
    std::unique_ptr<Effect::Object> effect;
    nlohmann::json item; ///< of an item, its keys beside the effect; null for an archive
};

/// Reads an archive of either form or an item; what is in the file says which it is. Paths are left as they are.
Archived readArchived(std::string const & path);

/// The effect in such a file, for use: the paths in an item, which are relative to its folder, are made absolute.
std::unique_ptr<Effect::Object> readEffect(std::string const & path);

/// The document of an archive, or of an item with its effect in it.
nlohmann::json document(Archived const & archived);

/// @}

/// Suffixes of the files that `readEffect` reads.
extern std::vector<std::string> const effectSuffixes;

/// One of the files that the arguments of a command name.
struct File
{
    std::string name;
    std::string error; ///< why an argument names none; `name` is the argument then
};

/// The files that arguments name, in their order:
/// - a file that exists, and "-": itself;
/// - a folder: the files in it and in the folders in it that end in one of the suffixes, in either case, sorted;
/// - anything else with a wildcard (`*`, `?`, `[`) in it: what matches, sorted, with the files of folders;
/// - anything else: itself, which will fail to be read.
std::vector<File> expand(std::vector<std::string> const & arguments, std::vector<std::string> const & suffixes);

/// What commands know that take any number of files.
struct FileOptions
{
    std::vector<std::string> arguments;
    bool asJson = false;
};

/// What such a command says of one file.
struct Description
{
    Description(nlohmann::json object, std::vector<std::string> lines = {})
        : fields(std::move(object))
        , faults(std::move(lines))
    {}

    nlohmann::json fields;           ///< an object
    std::vector<std::string> faults; ///< what is wrong with the file all the same, without its name
};

/// How such a command treats one.
struct FileTask
{
    std::string work;                                         ///< what it does, such as "Converting"
    std::function<Description(std::string const &)> describe; ///< throws for a file that cannot be done
    std::function<void(nlohmann::json const &)> print;        ///< prints the fields; "file" in them is the file
};

/// Adds FILE to a command.
/// @param what  what kind of files, as the help says it
CLI::Option * addFiles(CLI::App & command, FileOptions & options, std::string const & what);

/// What `--json` means there, as the help says it.
constexpr char const * filesAsJson = "Print one JSON document, an array with an object for each file";

/// Adds `--class` to a command that takes one source: files, a class, or what else excludes it.
CLI::Option * addClass(CLI::App & command, std::string & className, std::vector<CLI::Option *> const & others);

/// Heads what is printed of one file among several.
void printFileHeading(std::string const & file);

/// Describes every file and prints it, or all of them as one array when a document is asked for. A file that cannot be
/// done is reported, with "error" in its place of the document, and the others are done nevertheless.
/// @return whether nothing was wrong with any file
bool describeFiles(FileOptions const & options, std::vector<File> const & files, FileTask const & task);

/// Ends the command with status 1 unless all went well. What did not has been reported.
void endWith(bool allDone);

} // namespace Host
