#include <iostream>

#include "Command.h"
#include "Documents.h"
#include "Files.h"
#include "Output.h"

namespace Host {

namespace {

struct Options
{
    std::string file;
    std::string className;
    bool asJson = false;
};

void show(Options const & options)
{
    nlohmann::json const archived =
        options.className.empty() ? document(*readEffect(options.file)) : document(*create(options.className));
    if (options.asJson)
        printJson(std::cout, archived);
    else
        printDocument(std::cout, archived);
}

} // namespace

void addShow(CLI::App & program)
{
    auto * const command = program.add_subcommand("show", "An effect, readable");
    auto const options = std::make_shared<Options>();
    auto * const source = command->add_option_group("source")->require_option(1);
    source->add_option("FILE", options->file, "Archive in either form, - for standard input");
    source->add_option("--class", options->className, "Default effect of this class, such as Effect::Crop");
    command->add_flag("--json", options->asJson, "Print the archive document");
    setExamples(*command, "  effectctl show crop.json\n  effectctl show --class Effect::Crop --json");
    command->callback([options] { show(*options); });
}

} // namespace Host
