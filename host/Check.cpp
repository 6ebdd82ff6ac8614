#include <algorithm>
#include <iostream>
#include <map>

#include <inspect/Check.h>
#include <inspect/Findings.h>
#include <inspect/Text.h>

#include "Command.h"
#include "FileCommand.h"
#include "Output.h"

namespace Host {

using Effect::Archive::Finding;
using Effect::Archive::Severity;
using nlohmann::json;

namespace {

struct Options : FileOptions
{
    bool isStrict = false;
};

/// Such as "3 files: 2 errors, 1 warning, 0 notes".
std::string summaryOf(std::size_t files, std::map<Severity, std::size_t> const & counts)
{
    auto const count = [&counts](Severity severity) {
        auto const found = counts.find(severity);
        return counted(found == counts.end() ? 0 : found->second, toText(severity));
    };
    return counted(files, "file") + ": " + count(Severity::Error) + ", " + count(Severity::Warning) + ", " +
           count(Severity::Note);
}

void check(Options const & options)
{
    RenderHost host;
    Checker checker(host);
    auto files = expand(options.arguments, effectSuffixes);
    // That there is no such file is a finding like others.
    std::map<std::string, std::string> errors;
    for (File & file : files)
        if (!file.error.empty())
            errors[file.name] = std::exchange(file.error, {});
    std::map<Severity, std::size_t> counts;
    auto const describe = [&](std::string const & file) {
        auto const error = errors.find(file);
        auto const findings =
            error == errors.end() ? checker.check(file) : std::vector{unreadable(file, Failure(error->second))};
        for (Finding const & finding : findings)
            ++counts[finding.severity];
        if (!options.asJson && !options.asJsonLines)
            for (Finding const & finding : findings)
                std::cout << toLine(quoted(asText(file)), finding) << '\n';
        return json{{"findings", toJson(findings)}};
    };
    describeFiles(options, files, {"Checking", describe, [](json const &) {}});
    if (!options.asJson && !options.asJsonLines)
        std::cout << summaryOf(files.size(), counts) << '\n';
    endWith(counts[Severity::Error] == 0 && (!options.isStrict || counts[Severity::Warning] == 0));
}

} // namespace

void addCheck(CLI::App & program)
{
    auto * const command = program.add_subcommand("check", "What is wrong with archives and items, all at once");
    auto const options = std::make_shared<Options>();
    addFiles(*command, *options, "Archives in either form or items")->required();
    command->add_flag("--strict", options->isStrict, "End with status 1 for warnings as well");
    addJson(*command, *options);
    setExamples(*command, "  effectctl check stock\n"
                          "  effectctl check --strict 'presets/*.effect.json'\n"
                          "  effectctl check --jsonl projects | jq -r 'select(.findings != []) | .file'");
    command->callback([options] { check(*options); });
}

} // namespace Host
