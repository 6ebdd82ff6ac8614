#include <iostream>

#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectDocument.h>
#include <inspect/Files.h>
#include <inspect/Findings.h>
#include <inspect/Text.h>

#include "Command.h"
#include "Output.h"

namespace Host {

using Effect::Archive::Document;
using Effect::Archive::Finding;

namespace {

struct Options
{
    std::string from;
    std::string to;
    bool asJson = false;
};

void salvage(Options const & options)
{
    std::string const bytes = readFile(options.from);
    Document const document = Document::salvage(bytes);
    if (options.asJson) {
        printJson({{"file", asText(options.from)}, {"saved", document.effect() != nullptr},
            {"findings", toJson(document.findings())}});
    } else {
        for (Finding const & finding : document.findings())
            std::cout << toLine(asText(options.from), finding) << '\n';
    }
    if (!document.effect())
        throw Failure(options.from + ": nothing could be saved");
    bool const isBinary = Effect::Archive::isBinary(bytes);
    writeFile(options.to, isBinary ? document.toBinary() : document.toJson());
}

} // namespace

void addSalvage(CLI::App & program)
{
    auto * const command = program.add_subcommand("salvage", "Save what can be read of a damaged file");
    auto const options = std::make_shared<Options>();
    command->add_option("IN", options->from, "Damaged archive in either form, or item; - for standard input")
        ->required()
        ->option_text(" ");
    command->add_option("OUT", options->to, "File to write what could be read to, in the same form")
        ->required()
        ->option_text(" ");
    command->add_flag("--json", options->asJson, "Print the findings as one JSON document");
    setExamples(*command, "  effectctl salvage broken.json saved.json\n"
                          "  effectctl salvage --json broken.bin saved.bin");
    command->callback([options] { salvage(*options); });
}

} // namespace Host
