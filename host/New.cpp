#include <inspect/NewItem.h>

#include <inspect/Files.h>

#include "Command.h"
#include "Pairs.h"

namespace Host {

namespace {

struct Options
{
    NewItem item;
    std::vector<std::string> changes;
};

void create(Options options)
{
    for (std::string const & change : options.changes)
        options.item.settings.push_back(halves(change));
    writeFile(options.item.file, newItem(options.item));
}

} // namespace

void addNew(CLI::App & program)
{
    auto * const command = program.add_subcommand("new", "Write an item for the catalogue");
    auto const options = std::make_shared<Options>();
    command->add_option("CLASS", options->item.className, "Class of the effect, such as Effect::Lut")
        ->required()
        ->option_text(" ");
    command
        ->add_option("RESOURCE", options->item.resource, "The table, the shader or the picture that the effect needs")
        ->option_text(" ");
    command->add_option("-o,--output", options->item.file, "Item to write, NAME.effect.json; - for standard output")
        ->required()
        ->option_text("FILE");
    command->add_option("--category", options->item.categories, "Category of the item; may be given several times")
        ->option_text("NAME")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    addPairs(*command, "--set", options->changes, "Change a parameter of the effect; may be given several times")
        ->option_text("KEY=VALUE")
        ->expected(1)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    setExamples(*command, "  effectctl new Effect::Lut warm.cube -o lut_warm.effect.json --category category_lut_warm\n"
                          "  effectctl new Effect::Blur --set intensity=20 -o blur_strong.effect.json");
    command->callback([options] { create(*options); });
}

} // namespace Host
