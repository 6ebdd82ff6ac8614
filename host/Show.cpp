#include <algorithm>
#include <iostream>

#include <EditorSerialization/JsonArchive.h>
#include <inspect/ClassDescription.h>
#include <inspect/Documents.h>
#include <inspect/Files.h>
#include <inspect/Text.h>

#include "Command.h"
#include "FileCommand.h"
#include "Output.h"

namespace Host {

using Effect::Schema::Class;
using Effect::Schema::Parameter;
using nlohmann::json;
using Serialize::Json::MetaDetails::s_class_name;
using Serialize::Json::MetaDetails::s_meta;

namespace {

struct Options : FileOptions
{
    std::string className;
};

constexpr std::size_t indentWidth = 2;

void printHeading(std::string const & text, std::size_t indent)
{
    std::cout << std::string(indent, ' ') << painted(Look::Heading, text) << '\n';
}

/// The class of a document, which may be that of an element of a list.
Class const & classOf(json const & document)
{
    return classNamed(document.at(s_meta).at(s_class_name));
}

void printFields(Class const & info, json const & document, std::size_t indent);

/// What a list or a record holds, below its line.
void printElements(Parameter const & parameter, json const & value, std::size_t indent)
{
    if (value.is_object())
        return printFields(*parameter.elements, value, indent);
    for (json const & element : value) {
        if (element.is_null()) {
            std::cout << std::string(indent, ' ') << "(empty)\n";
            continue;
        }
        Class const & info = classOf(element);
        printHeading(info.name, indent);
        printFields(info, element, indent + indentWidth);
    }
}

/// Every parameter by key and label with its value, those of the bases first.
void printFields(Class const & info, json const & document, std::size_t indent)
{
    std::size_t longestKey = 0;
    std::size_t longestLabel = 0;
    for (Parameter const & parameter : info.parameters) {
        longestKey = std::max(longestKey, columnsOf(parameter.key));
        longestLabel = std::max(longestLabel, columnsOf(parameter.label().toStdString()));
    }
    for (Parameter const & parameter : info.parameters) {
        json::json_pointer const pointer(parameter.pointer);
        if (!document.contains(pointer))
            continue; // a range that there is none of
        json const & value = document[pointer];
        std::cout << std::string(indent, ' ') << paintedAndPadded(Look::Dim, parameter.key, longestKey + indentWidth);
        std::string const label = parameter.label().toStdString();
        if (parameter.elements && value.is_object())
            std::cout << label << '\n';
        else
            std::cout << paintedAndPadded(Look::Plain, label, longestLabel + indentWidth) << valueText(parameter, value)
                      << '\n';
        if (parameter.elements)
            printElements(parameter, value, indent + indentWidth);
    }
}

/// An archive document as an indented list, base classes run together with the class.
void printDocument(json const & document)
{
    Class const & info = classOf(document);
    printHeading(info.name, 0);
    printFields(info, document, indentWidth);
}

void showFiles(Options const & options)
{
    auto const files = expand(options.arguments, effectSuffixes);
    // That of one file by itself, as it is an archive and can be read as one.
    if (options.asJson && files.size() == 1) {
        if (!files[0].error.empty())
            throw Failure(files[0].error);
        return printJson(document(readArchived(files[0].name)));
    }
    bool const areDocuments = options.asJson || options.asJsonLines;
    endWith(describeFiles(options, files,
        {"Reading",
            [areDocuments](std::string const & file) {
                Archived archived = readArchived(file);
                if (areDocuments)
                    return json{{"document", document(archived)}};
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
    if (!printIfJson(options, archived))
        printDocument(archived);
}

} // namespace

void addShow(CLI::App & program)
{
    auto * const command = program.add_subcommand("show", "An effect, readable");
    auto const options = std::make_shared<Options>();
    auto * const files = addFiles(*command, *options, "Archives in either form or items");
    addClass(*command, options->className, {files});
    auto * const array = command->add_flag("--json", options->asJson,
        "Print the document of one effect or item, or an array with an object for each of several files");
    command->add_flag("--jsonl", options->asJsonLines, "Print a JSON document a line, an object for each file")
        ->excludes(array);
    setExamples(*command, "  effectctl show crop.json\n"
                          "  effectctl show --class Effect::Crop --json\n"
                          "  effectctl show 'stock/Masks/*.effect.json'\n"
                          "  effectctl archive crop.bin - | effectctl show -");
    command->callback([options] { show(*options); });
}

} // namespace Host
