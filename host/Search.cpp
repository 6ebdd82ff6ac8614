#include <inspect/Search.h>

#include <cmath>
#include <iostream>
#include <sstream>

#include <inspect/Catalogue.h>
#include <inspect/Messages.h>
#include <inspect/Text.h>

#include "CatalogueOptions.h"
#include "Command.h"
#include "FileCommand.h"
#include "Output.h"
#include "Progress.h"

#include <nlohmann/json.hpp>

namespace Host {

using nlohmann::json;

namespace {

struct Options
{
    std::vector<std::string> words;
    CatalogueFolders folders;
    bool asJson = false;
};

/// Two decimals are enough for a score.
double rounded(double score)
{
    return std::round(score * 100) / 100;
}

void printHits(std::vector<Hit> const & hits)
{
    std::vector<std::vector<std::string>> rows{{"SCORE", "TAG", "CLASS"}};
    for (Hit const & hit : hits) {
        std::ostringstream score;
        score << rounded(hit.score);
        rows.push_back({score.str(), quoted(hit.tag), hit.className});
    }
    printTable(rows);
}

json toJson(std::vector<Hit> const & hits)
{
    json found = json::array();
    for (Hit const & hit : hits)
        found.push_back({{"file", asText(hit.file)}, {"class", hit.className}, {"tag", hit.tag},
            {"categories", hit.categories}, {"score", rounded(hit.score)}});
    return found;
}

void search(Options const & options)
{
    Search found(options.words);
    readCatalogue(options.folders).forEach([&found](std::string const &, EditorCollection::IItem const & item) {
        found.offer(item);
    });
    auto const hits = found.hits();
    if (options.asJson)
        printJson(toJson(hits));
    else if (!hits.empty())
        printHits(hits);
    if (hits.empty())
        throw Failure("no item has to do with " + joined(options.words, " "));
    endWith(messageCount() == 0); // what could not be read has been logged
}

} // namespace

void addSearch(CLI::App & program)
{
    auto * const command = program.add_subcommand("search", "Find items of the catalogue by words");
    auto const options = std::make_shared<Options>();
    command
        ->add_option("WORD", options->words,
            "What the name, class, categories or description of an item should have to do with, each of them")
        ->required()
        ->option_text("...");
    addFolders(*command, options->folders);
    command->add_flag("--json", options->asJson, "Print one JSON document, an array with an object for each item");
    setExamples(*command, "  effectctl search blur\n"
                          "  effectctl search warm film --stock stock\n"
                          "  effectctl search --json voice | jq -r .[0].file");
    command->callback([options] { search(*options); });
}

} // namespace Host
