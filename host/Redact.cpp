#include <inspect/Redaction.h>

#include <inspect/Failure.h>
#include <inspect/Files.h>

#include "Command.h"

namespace Host {

namespace {

struct Options
{
    std::string from;
    std::string to;
};

void redact(Options const & options)
{
    std::string const bytes = readFile(options.from);
    std::string text;
    try {
        text = redacted(bytes);
    } catch (std::exception const & error) {
        throw Failure(options.from + ": " + error.what());
    }
    writeFile(options.to, text);
}

} // namespace

void addRedact(CLI::App & program)
{
    auto * const command = program.add_subcommand("redact", "Take names, paths and texts out of a file");
    auto const options = std::make_shared<Options>();
    command->add_option("IN", options->from, "Archive in either form, or item; - for standard input")
        ->required()
        ->option_text(" ");
    command->add_option("OUT", options->to, "File to write in the same form, - for standard output")
        ->required()
        ->option_text(" ");
    setExamples(*command, "  effectctl redact project.json report.json\n"
                          "  effectctl redact - - < project.json");
    command->callback([options] { redact(*options); });
}

} // namespace Host
