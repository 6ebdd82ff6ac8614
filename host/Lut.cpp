#include <memory>
#include <string>
#include <vector>

#include <inspect/Files.h>
#include <inspect/Text.h>
#include <ParserLUT/LUTTable.h>
#include <ParserLUT/ParserLUTFactory.h>
#include <utils/LutUtils.h>

#include "Command.h"
#include "FileCommand.h"
#include "Output.h"

#include <QByteArray>
#include <QString>

namespace Host {

namespace LUT = Quoril::Proc::LUT;
using nlohmann::json;

namespace {

json describe(std::string const & file)
{
    std::string const bytes = readFile(file);
    QString error;
    auto const table = Effect::Utils::parseLutEffect(QByteArray::fromStdString(bytes), &error);
    if (!table && error.isEmpty())
        throw Failure(file + ": " + LUT::ParserLUTFactory::UnknownFormat());
    if (!table)
        throw Failure(file + ": " + error.toStdString());
    return {{"format", table->format}, {"size", table->size}, {"title", asText(table->title)}};
}

std::string sizeText(json const & size)
{
    bool const is1D = size[1] == 1 && size[2] == 1;
    return is1D ? toText(size[0]) : toText(size[0]) + 'x' + toText(size[1]) + 'x' + toText(size[2]);
}

void lut(FileOptions const & options)
{
    std::vector<std::vector<std::string>> rows{{"FILE", "FORMAT", "SIZE", "TITLE"}};
    bool const allDone = describeFiles(options,
        expand(options.arguments, {LUT::fileSuffixes.begin(), LUT::fileSuffixes.end()}),
        {"Reading tables", describe, [&rows](json const & table) {
             rows.push_back({quoted(table["file"]), table["format"], sizeText(table["size"]), toText(table["title"])});
         }});
    if (rows.size() > 1)
        printTable(rows);
    endWith(allDone);
}

} // namespace

void addLut(CLI::App & program)
{
    auto * const command =
        program.add_subcommand("lut", "Format, size and title of lookup tables, or what is wrong with them");
    auto const options = std::make_shared<FileOptions>();
    addFiles(*command, *options, "Lookup tables in any format that the editor reads")->required();
    addJson(*command, *options);
    setExamples(*command, "  effectctl lut warm.cube\n"
                          "  effectctl lut --json luts/*\n"
                          "  effectctl lut stock/Luts\n"
                          "  effectctl lut - < warm.cube");
    command->callback([options] { lut(*options); });
}

} // namespace Host
