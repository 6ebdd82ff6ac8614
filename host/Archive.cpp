#include <EditorModel/EffectArchive.h>

#include "Command.h"
#include "Documents.h"
#include "Files.h"

namespace Host {

namespace {

bool endsWith(std::string const & text, std::string const & end)
{
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

void archive(std::string const & from, std::string const & to)
{
    auto const effect = readEffect(from);
    if (endsWith(to, ".bin"))
        writeFile(to, Effect::Archive::toBinary(*effect));
    else
        writeFile(to, document(*effect).dump(2) + "\n");
}

} // namespace

void addArchive(CLI::App & program)
{
    auto * const command = program.add_subcommand("archive", "Turn an archive into the other form");
    auto const from = std::make_shared<std::string>();
    auto const to = std::make_shared<std::string>();
    command->add_option("IN", *from, "Archive in either form, - for standard input")->required();
    command->add_option("OUT", *to, "File to write: its suffix, .json or .bin, says in which form")
        ->required()
        ->check([](std::string const & path) {
            return endsWith(path, ".json") || endsWith(path, ".bin") ? std::string()
                                                                     : path + " ends neither in .json nor in .bin";
        });
    setExamples(*command, "  effectctl archive crop.json crop.bin\n  effectctl archive crop.bin crop.json");
    command->callback([from, to] { archive(*from, *to); });
}

} // namespace Host
