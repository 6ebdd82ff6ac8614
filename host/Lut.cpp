#include <iostream>
#include <memory>
#include <string>
#include <vector>

#include <ParserLUT/LUTTable.h>
#include <utils/LutUtils.h>

#include "Command.h"
#include "Files.h"
#include "Output.h"

#include <QByteArray>
#include <QString>

namespace Host {

using nlohmann::json;

namespace {

json describe(std::string const & file)
{
    std::string const bytes = readFile(file);
    QString error;
    auto const table = Effect::Utils::parseLutEffect(QByteArray::fromStdString(bytes), &error);
    if (!table && error.isEmpty())
        throw Failure(file + ": it begins like no format of lookup tables");
    if (!table)
        throw Failure(file + ": " + error.toStdString());
    return {{"file", asText(file)}, {"format", table->format}, {"size", table->size}, {"title", asText(table->title)}};
}

std::string sizeText(json const & size)
{
    bool const is1D = size[1] == 1 && size[2] == 1;
    return is1D ? size[0].dump() : size[0].dump() + 'x' + size[1].dump() + 'x' + size[2].dump();
}

/// One bad file does not keep the others from being told.
void lut(std::vector<std::string> const & files, bool asJson)
{
    json tables = json::array();
    std::vector<std::vector<std::string>> rows{{"FILE", "FORMAT", "SIZE", "TITLE"}};
    bool failed = false;
    for (std::string const & file : files) {
        try {
            json const & table = tables.emplace_back(describe(file));
            // Quoted, as a file may put anything into it.
            rows.push_back({table["file"], table["format"], sizeText(table["size"]), table["title"].dump()});
        } catch (std::exception const & error) {
            complain(error);
            tables.push_back({{"file", asText(file)}, {"error", asText(error.what())}});
            failed = true;
        }
    }
    if (asJson)
        printJson(std::cout, tables);
    else if (rows.size() > 1)
        printTable(std::cout, rows);
    if (failed)
        throw CLI::RuntimeError(Status::badInput);
}

} // namespace

void addLut(CLI::App & program)
{
    auto * const command =
        program.add_subcommand("lut", "Format, size and title of lookup tables, or what is wrong with them");
    auto const files = std::make_shared<std::vector<std::string>>();
    auto const asJson = std::make_shared<bool>(false);
    command->add_option("FILE", *files, "Lookup tables in any format that the editor reads, - for standard input")
        ->required();
    command->add_flag("--json", *asJson, "Print one JSON document, an array with an object for each file");
    setExamples(*command, "  effectctl lut warm.cube\n  effectctl lut --json luts/*");
    command->callback([files, asJson] { lut(*files, *asJson); });
}

} // namespace Host
