/// @file
/// What the subcommands share.
#pragma once

#include <stdexcept>
#include <string>

#include <CLI/CLI.hpp>

namespace Host {

/// Statuses with which the program ends.
namespace Status {
constexpr int done = 0;
constexpr int badInput = 1;
constexpr int wrongUsage = 2;
} // namespace Status

/// Ends a command with status 1; the text is the one line that the user sees.
class Failure : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// @name The subcommands
/// Each adds itself to the program and runs when it is chosen.
/// @{
void addArchive(CLI::App & program);
void addCatalogue(CLI::App & program);
void addConvert(CLI::App & program);
void addDescribe(CLI::App & program);
void addList(CLI::App & program);
void addLut(CLI::App & program);
void addSalvage(CLI::App & program);
void addSchema(CLI::App & program);
void addShow(CLI::App & program);
void addTool(CLI::App & program);
/// @}

/// Examples at the end of a subcommand's help.
inline void setExamples(CLI::App & command, std::string const & examples)
{
    command.footer("Examples:\n" + examples);
}

} // namespace Host
