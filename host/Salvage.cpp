#include <iostream>

#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectDocument.h>

#include "Command.h"
#include "Files.h"
#include "Output.h"

namespace Host {

using Effect::Archive::Document;
using Effect::Archive::Finding;
using Effect::Archive::Severity;
using nlohmann::json;

namespace {

struct Options
{
    std::string from;
    std::string to;
    bool asJson = false;
};

template <class Value> json optional(std::optional<Value> const & value)
{
    return value ? json(*value) : json();
}

char const * nameOf(Severity severity)
{
    switch (severity) {
    case Severity::Note:
        return "note";
    case Severity::Warning:
        return "warning";
    case Severity::Error:
        return "error";
    }
    return "";
}

json toJson(Finding const & finding)
{
    return {{"severity", nameOf(finding.severity)}, {"code", finding.code}, {"pointer", optional(finding.pointer)},
        {"offset", optional(finding.offset)}, {"line", optional(finding.line)}, {"column", optional(finding.column)},
        {"message", finding.message}, {"suggestion", finding.suggestion.empty() ? json() : json(finding.suggestion)}};
}

/// "part.json:3:7: error: ..., at /effects/0", as compilers write it.
std::string toLine(std::string const & file, Finding const & finding)
{
    std::string line = file;
    if (finding.line)
        line += ':' + std::to_string(*finding.line) + ':' + std::to_string(*finding.column);
    line += std::string(": ") + nameOf(finding.severity) + ": " + finding.message;
    if (finding.pointer && !finding.pointer->empty())
        line += ", at " + *finding.pointer;
    if (!finding.suggestion.empty())
        line += "; did you mean \"" + finding.suggestion + "\"?";
    return line;
}

void salvage(Options const & options)
{
    std::string const bytes = readFile(options.from);
    Document const document = Document::salvage(bytes);
    if (options.asJson) {
        json findings = json::array();
        for (Finding const & finding : document.findings())
            findings.push_back(toJson(finding));
        printJson({{"file", asText(options.from)}, {"saved", document.effect() != nullptr}, {"findings", findings}});
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
