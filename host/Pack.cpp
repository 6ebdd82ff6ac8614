#include <inspect/Pack.h>

#include <iostream>

#include <inspect/Failure.h>
#include <inspect/Files.h>
#include <inspect/Text.h>

#include "Command.h"
#include "FileCommand.h"
#include "Output.h"

namespace Host {

using nlohmann::json;

namespace {

struct PackOptions
{
    std::string to;
    std::vector<std::string> arguments;
    PackInfo info;
    bool asJson = false;
};

struct UnpackOptions
{
    std::string from;
    std::string folder;
    bool asJson = false;
};

void printFiles(std::string const & pack, std::vector<std::string> const & files, bool asJson)
{
    if (asJson) {
        json texts = json::array();
        for (std::string const & file : files)
            texts.push_back(asText(file));
        return printJson({{"pack", asText(pack)}, {"files", std::move(texts)}});
    }
    for (std::string const & file : files)
        std::cout << quoted(asText(file)) << '\n';
}

void packFiles(PackOptions const & options)
{
    Packed const packed = pack(options.arguments, options.info);
    for (std::string const & problem : packed.problems)
        complain(problem);
    endWith(packed.problems.empty());
    if (packed.files.empty())
        throw Failure(options.to + ": there is nothing to pack");
    writeFile(options.to, packed.bytes);
    if (options.to != "-")
        printFiles(options.to, packed.files, options.asJson);
}

void unpackFiles(UnpackOptions const & options)
{
    printFiles(options.from, unpack(options.from, options.folder), options.asJson);
}

} // namespace

void addPack(CLI::App & program)
{
    auto * const command = program.add_subcommand("pack", "Put presets and the files that they need into one file");
    auto const options = std::make_shared<PackOptions>();
    command->add_option("OUT", options->to, "Pack to write, a zip archive; - for standard output")
        ->required()
        ->option_text(" ");
    command
        ->add_option("PATH", options->arguments,
            "Archives in either form or items, folders of them, or quoted patterns such as 'folder/*'")
        ->required()
        ->option_text("...");
    command->add_option("--licence", options->info.licence, "The terms for others, such as CC0-1.0")
        ->option_text("SPDX")
        ->check([](std::string const & text) {
            return isLicence(text) ? std::string() : text + " is no SPDX licence expression";
        });
    command->add_option("--author", options->info.author, "Who made the presets")->option_text("TEXT");
    command->add_option("--version", options->info.version, "Which version of the presets this is")
        ->option_text("TEXT");
    command->add_flag("--json", options->asJson, "Print one JSON document: the pack and the files in it");
    setExamples(*command, "  effectctl pack looks.effects presets\n"
                          "  effectctl pack looks.effects 'presets/warm*' --licence CC-BY-4.0 --author 'A. Colourist'");
    command->callback([options] { packFiles(*options); });
}

void addUnpack(CLI::App & program)
{
    auto * const command = program.add_subcommand("unpack", "Take presets and their files out of a pack");
    auto const options = std::make_shared<UnpackOptions>();
    command->add_option("FILE", options->from, "Pack to read")->required()->option_text(" ");
    command->add_option("DIR", options->folder, "Folder to write to, made where it is missing")
        ->required()
        ->option_text(" ");
    command->add_flag("--json", options->asJson, "Print one JSON document: the pack and the files in it");
    setExamples(*command, "  effectctl unpack looks.effects looks\n"
                          "  effectctl unpack --json looks.effects looks");
    command->callback([options] { unpackFiles(*options); });
}

} // namespace Host
