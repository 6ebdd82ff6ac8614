#include <inspect/ClassDescription.h>
#include <inspect/Text.h>

#include "Command.h"
#include "Output.h"

namespace Host {

using Effect::Schema::Class;
using Effect::Schema::Parameter;
using nlohmann::json;

namespace {

/// The facts of a class with its own parameters' default values.
json describe(Class const & info)
{
    json described = factsOf(info);
    json & fields = described["fields"] = json::object();
    for (Parameter const & parameter : info.parameters)
        if (parameter.owner == info.name)
            fields[parameter.key] = parameter.defaultValue();
    described["intensity"] = info.isEffect ? json(info.intensity) : json();
    described["processingSettingsId"] = info.isEffect ? json(info.processingSettingsId.toStdString()) : json();
    return described;
}

/// A line of the table: the own parameters by label, with their default values.
std::vector<std::string> rowOf(Class const & info)
{
    auto const orDash = [](std::string const & text) { return text.empty() ? "-" : text; };
    std::vector<std::string> fields;
    for (Parameter const & parameter : info.parameters)
        if (parameter.owner == info.name)
            fields.push_back(parameter.label().toStdString() + ": " + valueText(parameter, parameter.defaultValue()));
    return {info.name, orDash(info.base), orDash(info.tag.toStdString()), joined(fields, "; ")};
}

struct Options
{
    bool asJson = false;
    bool effects = false;
};

void list(Options const & options)
{
    json described = json::array();
    std::vector<std::vector<std::string>> rows{{"CLASS", "BASE", "TAG", "FIELDS"}};
    for (Class const * const info : Effect::Schema::classes()) {
        if (options.effects && !info->isEffect)
            continue;
        if (options.asJson)
            described.push_back(describe(*info));
        else
            rows.push_back(rowOf(*info));
    }
    if (options.asJson)
        printJson(described);
    else
        printTable(rows);
}

} // namespace

void addList(CLI::App & program)
{
    auto * const command = program.add_subcommand("list", "Every class that can stand in an archive");
    auto const options = std::make_shared<Options>();
    command->add_flag("--json", options->asJson, "Print one JSON document, an array with an object for each class");
    command->add_flag("--effects", options->effects, "Only classes of effects, without those of records inside them");
    setExamples(*command,
        "  effectctl list\n"
        "  effectctl list | cut -f 1                     (off a terminal, tabs stand between the columns)\n"
        "  effectctl list --json | jq '.[] | select(.isTwoInput) | .class'");
    command->callback([options] { list(*options); });
}

} // namespace Host
