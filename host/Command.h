/// @file
/// What the subcommands share.
#pragma once

#include <string>

#include <inspect/Failure.h>

#include <CLI/CLI.hpp>

namespace Host {

using namespace Effect::Inspect; // which does the work

/// Statuses with which the program ends.
namespace Status {
constexpr int done = 0;
constexpr int badInput = 1;
constexpr int wrongUsage = 2;
} // namespace Status

/// @name The subcommands
/// Each adds itself to the program and runs when it is chosen.
/// @{
void addArchive(CLI::App & program);
void addCatalogue(CLI::App & program);
void addCheck(CLI::App & program);
void addConvert(CLI::App & program);
void addDescribe(CLI::App & program);
void addDiff(CLI::App & program);
void addEdit(CLI::App & program);
void addGallery(CLI::App & program);
void addList(CLI::App & program);
void addLut(CLI::App & program);
void addNew(CLI::App & program);
void addPack(CLI::App & program);
void addPatch(CLI::App & program);
void addRedact(CLI::App & program);
void addRelink(CLI::App & program);
void addSalvage(CLI::App & program);
void addSchema(CLI::App & program);
void addSearch(CLI::App & program);
void addShow(CLI::App & program);
void addTool(CLI::App & program);
void addUnpack(CLI::App & program);
/// @}

/// Examples at the end of a subcommand's help.
inline void setExamples(CLI::App & command, std::string const & examples)
{
    command.footer("Examples:\n" + examples);
}

} // namespace Host
