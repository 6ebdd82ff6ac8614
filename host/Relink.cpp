#include <inspect/Relinking.h>

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

struct Options : FileOptions
{
    std::vector<std::string> folders;
    std::string hashes;
};

Description relink(std::string const & file, FileIndex & index, KnownHashes const * hashes)
{
    std::string const bytes = readFile(file);
    Relinked result;
    try {
        result = relinked(bytes, file, index, hashes ? *hashes : hashesBeside(file));
    } catch (Failure const & failure) {
        throw Failure(file + ": " + failure.what());
    }
    if (!result.links.empty())
        writeFile(file, result.bytes);
    json links = json::array();
    for (Link const & link : result.links)
        links.push_back({{"before", asText(link.before)}, {"after", asText(link.after)}});
    return {json{{"links", std::move(links)}}, std::move(result.problems)};
}

void relink(Options const & options)
{
    FileIndex index(options.folders);
    KnownHashes given;
    if (!options.hashes.empty())
        given = readHashes(options.hashes);
    endWith(describeFiles(options, expand(options.arguments, effectSuffixes),
        {"Relinking",
            [&](std::string const & file) { return relink(file, index, options.hashes.empty() ? nullptr : &given); },
            [](json const & described) {
                for (json const & link : described["links"])
                    std::cout << quoted(described["file"]) << ": " << quoted(link["before"]) << " -> "
                              << quoted(link["after"]) << '\n';
            }}));
}

} // namespace

void addRelink(CLI::App & program)
{
    auto * const command = program.add_subcommand("relink", "Find the files again that effects refer to");
    auto const options = std::make_shared<Options>();
    addFiles(*command, *options, "Archives in either form or items")->required();
    command->add_option("--in", options->folders, "Where to look for the files, in folders of these as well")
        ->required()
        ->option_text("DIR...");
    command
        ->add_option("--hashes", options->hashes,
            "Their SHA-256: the list of a pack, or what sha256sum prints; unless given, the list beside the file")
        ->option_text("FILE");
    addJson(*command, *options);
    setExamples(*command, "  effectctl relink warm.effect.json --in ~/Luts\n"
                          "  effectctl relink presets --in /mnt/old /mnt/new --hashes sums.txt");
    command->callback([options] { relink(*options); });
}

} // namespace Host
