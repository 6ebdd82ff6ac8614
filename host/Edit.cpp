#include <inspect/EffectFile.h>
#include <inspect/Files.h>

#include "Command.h"
#include "FileCommand.h"
#include "Pairs.h"

namespace Host {

using nlohmann::json;

namespace {

struct Options : FileOptions
{
    std::vector<std::string> changes;
    std::vector<std::string> removals;
    std::string out;
};

/// Changes a file, and returns whether it is another one now.
bool editFile(Options const & options, std::string const & path)
{
    EffectFile file = EffectFile::read(path);
    std::string const before = file.bytes();
    for (std::string const & key : options.removals)
        file.unset(key);
    for (std::string const & change : options.changes) {
        auto const [key, value] = halves(change);
        file.set(key, value);
    }
    bool const isChanged = file.bytes() != before;
    if (!options.out.empty())
        writeFile(options.out, file.bytes());
    else if (isChanged || path == "-")
        writeFile(path, file.bytes());
    return isChanged;
}

void edit(Options const & options)
{
    auto const files = expand(options.arguments, effectSuffixes);
    if (!options.out.empty() && files.size() != 1)
        throw CLI::ValidationError("--output", "takes one file, and these are " + std::to_string(files.size()));
    endWith(describeFiles(options, files,
        {"Changing",
            [&options](std::string const & file) {
                return json{{"changed", editFile(options, file)}};
            },
            [](json const &) {}}));
}

} // namespace

void addEdit(CLI::App & program)
{
    auto * const command = program.add_subcommand("edit", "Change parameters of effects in files");
    auto const options = std::make_shared<Options>();
    addFiles(*command, *options, "Archives in either form or items, which are changed in place")->required();
    auto * const set =
        addPairs(*command, "--set", options->changes, "Change a parameter")->option_text("KEY=VALUE ...");
    auto * const unset =
        command->add_option("--unset", options->removals, "Take a parameter back to its default, or an unknown key out")
            ->option_text("KEY ...");
    command->add_option("-o,--output", options->out, "File to write instead, in the same form; - for standard output")
        ->option_text("OUT");
    addJson(*command, *options);
    command->parse_complete_callback([set, unset] {
        if (set->empty() && unset->empty())
            throw CLI::ValidationError("--set or --unset is required");
    });
    setExamples(*command, "  effectctl edit blur.json --set intensity=20\n"
                          "  effectctl edit presets --set tag=mine --unset groupId\n"
                          "  effectctl edit look.bin --set gamma=0.2 -o brighter.bin");
    command->callback([options] { edit(*options); });
}

} // namespace Host
