#include <iostream>

#include "Command.h"
#include "Documents.h"
#include "Files.h"
#include "Output.h"

namespace Host {

using nlohmann::json;

namespace {

struct Options : FileOptions
{
    std::string className;
};

/// A document by itself, as it is an archive and can be read as one.
void showJson(std::vector<File> const & files)
{
    if (files.size() > 1)
        throw Failure("--json shows one effect, and these are " + std::to_string(files.size()) + " files");
    if (!files[0].error.empty())
        throw Failure(files[0].error);
    printJson(document(readArchived(files[0].name)));
}

void showFiles(Options const & options)
{
    auto const files = expand(options.arguments, effectSuffixes);
    if (options.asJson)
        return showJson(files);
    endWith(describeFiles(options, files,
        {"Reading",
            [](std::string const & file) {
                Archived archived = readArchived(file);
                return json{{"document", document(*archived.effect)}, {"item", std::move(archived.item)}};
            },
            [&files](json const & described) {
                if (files.size() > 1)
                    printFileHeading(described["file"]);
                printDocument(described["document"]);
                for (auto const & [key, value] : described["item"].items())
                    std::cout << painted(Look::Dim, key) << "  " << toText(value) << '\n';
            }}));
}

void show(Options const & options)
{
    if (options.className.empty())
        return showFiles(options);
    json const archived = document(*create(options.className));
    if (options.asJson)
        printJson(archived);
    else
        printDocument(archived);
}

} // namespace

void addShow(CLI::App & program)
{
    auto * const command = program.add_subcommand("show", "An effect, readable");
    auto const options = std::make_shared<Options>();
    auto * const files = addFiles(*command, *options, "Archives in either form or items");
    addClass(*command, options->className, {files});
    command->add_flag("--json", options->asJson, "Print the document of one effect or item");
    setExamples(*command, "  effectctl show crop.json\n"
                          "  effectctl show --class Effect::Crop --json\n"
                          "  effectctl show 'stock/Masks/*.effect.json'\n"
                          "  effectctl archive crop.bin - | effectctl show -");
    command->callback([options] { show(*options); });
}

} // namespace Host
