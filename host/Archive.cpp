#include <EditorModel/EffectArchive.h>
#include <inspect/Files.h>
#include <inspect/Text.h>

#include "Command.h"
#include "Output.h"

namespace Host {

namespace {

constexpr char const * binaryForm = "bin";
constexpr char const * jsonForm = "json";

struct Options
{
    std::string from;
    std::string to;
    std::string form;
};

/// The form that a file's suffix tells; of standard output, which has none, JSON. Empty for any other suffix.
std::string formOf(std::string const & path)
{
    if (path == "-")
        return jsonForm;
    std::size_t const dot = path.rfind('.');
    std::string const suffix = dot == path.npos ? "" : path.substr(dot + 1);
    return suffix == binaryForm || suffix == jsonForm ? suffix : "";
}

void archive(Options const & options)
{
    std::string const form = options.form.empty() ? formOf(options.to) : options.form;
    if (form.empty())
        throw CLI::ValidationError("OUT", options.to + " ends neither in .json nor in .bin, and there is no --format");
    Archived const archived = readArchived(options.from);
    if (form == jsonForm)
        return writeFile(options.to, toText(document(archived), 2) + "\n");
    if (!archived.item.is_null())
        throw Failure(
            options.from + ": an item cannot be written in the binary form, which has no place for its categories");
    writeFile(options.to, Effect::Archive::toBinary(*archived.effect));
}

} // namespace

void addArchive(CLI::App & program)
{
    auto * const command = program.add_subcommand("archive", "Turn an archive into the other form");
    auto const options = std::make_shared<Options>();
    command->add_option("IN", options->from, "Archive in either form, or item; - for standard input")
        ->required()
        ->option_text(" ");
    command
        ->add_option("OUT", options->to,
            "File to write, - for standard output; its suffix, .json or .bin, says in which form, and - is JSON")
        ->required()
        ->option_text(" ");
    command->add_option("--format", options->form, "The form to write whatever the suffix: json or bin")
        ->option_text("FORM")
        ->check(CLI::IsMember({jsonForm, binaryForm}));
    setExamples(*command, "  effectctl archive crop.json crop.bin\n"
                          "  effectctl archive crop.bin crop.json\n"
                          "  effectctl archive - - --format bin < crop.json > crop.bin");
    command->callback([options] { archive(*options); });
}

} // namespace Host
