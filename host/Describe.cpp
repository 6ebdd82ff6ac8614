#include <iostream>

#include <inspect/ClassDescription.h>
#include <inspect/Documents.h>

#include "Command.h"
#include "Output.h"

namespace Host {

using Effect::Schema::Class;
using Effect::Schema::Parameter;
using nlohmann::json;

namespace {

struct Options
{
    std::vector<std::string> classNames;
    bool asJson = false;
};

constexpr std::size_t indentWidth = 2;
constexpr std::size_t labelWidth = sizeof "suggested" + 1;

void printRow(std::string const & label, std::string const & text, std::size_t indent)
{
    if (!text.empty())
        printParagraph(text, indent, label, labelWidth);
}

void printBlocks(std::vector<Parameter> const & parameters, Class const * info, std::size_t indent);

/// @param info  whose parameter it is; null for that of an element
void printBlock(Parameter const & parameter, Class const * info, std::size_t indent)
{
    std::cout << '\n' << std::string(indent, ' ') << painted(Look::Heading, parameter.label().toStdString()) << '\n';
    indent += indentWidth;
    printParagraph(parameter.description().toStdString(), indent);
    printRow("key", parameter.key, indent);
    if (info && parameter.owner != info->name)
        printRow("of", parameter.owner, indent);
    std::string const kind = toString(parameter.kind);
    printRow("type", kind == parameter.type ? kind : kind + ", " + parameter.type, indent);
    printRow(
        "unit", parameter.unit == Effect::Unit::engine ? "known to the render engine alone" : parameter.unit, indent);
    json const value = parameter.defaultValue();
    printRow("default", value.is_null() ? "none" : valueText(parameter, value), indent);
    for (Effect::Choice const & choice : parameter.choices) {
        std::string const name = choice.name;
        std::string const label = parameter.label(choice).toStdString();
        std::string const text = name + " (" + std::to_string(choice.value) + ')';
        printRow(
            &choice == &parameter.choices.front() ? "choices" : "", label == name ? text : text + ": " + label, indent);
    }
    printRow("range", boundsText(parameter), indent);
    printRow("suggested", suggestionText(parameter), indent);
    if (parameter.isEffective == false)
        printRow("settings", "do not depend on it", indent);
    if (parameter.elements) {
        printRow("elements", parameter.elements->name + ", with these parameters:", indent);
        printBlocks(parameter.elements->parameters, nullptr, indent + indentWidth);
    }
}

void printBlocks(std::vector<Parameter> const & parameters, Class const * info, std::size_t indent)
{
    for (Parameter const & parameter : parameters)
        printBlock(parameter, info, indent);
}

void printPage(Class const & info)
{
    std::cout << painted(Look::Heading, info.name) << '\n';
    printParagraph(info.description().toStdString(), indentWidth);
    std::cout << '\n';
    auto const row = [](char const * label, std::string const & text) { printRow(label, text, indentWidth); };
    row("base", info.base);
    row("family", info.family);
    row("C++", info.isExported ? "in <effects/" + info.family + ".h>" : "kept by the library to itself");
    if (info.isEffect) {
        std::string kind = info.type == Effect::Type::Audio ? "audio" : "video";
        if (info.impl == Effect::Impl::Descriptor)
            kind += ", never converted";
        if (info.hasIntensity)
            kind += ", with an intensity";
        if (info.isTwoInput)
            kind += ", with two inputs";
        row("kind", kind);
        row("id", info.id.toStdString());
        row("group", info.groupId == info.id ? "" : info.groupId.toStdString());
        row("tag", info.tag.toStdString());
    }
    printBlocks(info.parameters, &info, indentWidth);
}

void describeClasses(Options const & options)
{
    auto const classes = classesNamed(options.classNames);
    json described = json::array();
    for (Class const * const info : classes) {
        if (options.asJson) {
            described.push_back(describe(*info));
            continue;
        }
        if (info != classes.front())
            std::cout << '\n';
        printPage(*info);
    }
    if (options.asJson)
        printJson(described);
}

} // namespace

void addDescribe(CLI::App & program)
{
    auto * const command = program.add_subcommand("describe", "What a class does, and what each parameter means");
    auto const options = std::make_shared<Options>();
    command->add_option("CLASS", options->classNames, "Archive names, such as Effect::Crop; all classes without one")
        ->option_text("...");
    command->add_flag("--json", options->asJson, "Print one JSON document, an array with an object for each class");
    setExamples(*command, "  effectctl describe Effect::TiltShift\n"
                          "  effectctl describe | less\n"
                          "  effectctl describe --json Effect::Mask | jq '.[0].parameters[].label'");
    command->callback([options] { describeClasses(*options); });
}

} // namespace Host
