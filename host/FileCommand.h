/// @file
/// What commands that take any number of files share.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <inspect/Files.h>

#include "Command.h"

#include <CLI/CLI.hpp>
#include <nlohmann/json.hpp>

namespace Host {

/// What commands know that take any number of files.
struct FileOptions
{
    std::vector<std::string> arguments;
    bool asJson = false;      ///< one document
    bool asJsonLines = false; ///< a document a line
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

/// Adds `--json` and `--jsonl`.
/// @param otherwise  what `--json` prints where no files are given, as the help says it
void addJson(CLI::App & command, FileOptions & options, std::string const & otherwise = {});

/// Prints a document that is not of a file. Returns false, and prints nothing, where none is asked for.
bool printIfJson(FileOptions const & options, nlohmann::json const & document);

/// Adds `--class` to a command that takes one source: files, a class, or what else excludes it.
CLI::Option * addClass(CLI::App & command, std::string & className, std::vector<CLI::Option *> const & others);

/// Heads what is printed of one file among several.
void printFileHeading(std::string const & file);

/// Describes every file and prints it, where a document is asked for as an element of one array or as a line. A file
/// that cannot be done is reported, with "error" in its place of the document, and the others are done nevertheless.
/// @return whether nothing was wrong with any file
bool describeFiles(FileOptions const & options, std::vector<File> const & files, FileTask const & task);

/// Ends the command with status 1 unless all went well. What did not has been reported.
void endWith(bool allDone);

} // namespace Host
