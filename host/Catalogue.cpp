#include <iostream>

#include <EditorModel/CollectionProvider.h>
#include <inspect/Catalogue.h>
#include <inspect/Conversion.h>
#include <inspect/Messages.h>
#include <inspect/Text.h>

#include "CatalogueOptions.h"
#include "Command.h"
#include "FileCommand.h"
#include "Output.h"
#include "Progress.h"

namespace Host {

using nlohmann::json;

namespace {

struct Options
{
    CatalogueFolders folders;
    bool asJson = false;
    bool convert = false;
    bool isLong = false;
};

/// How many items there are of which kind.
struct Summary
{
    std::size_t items = 0;
    std::size_t unreadable = 0;   ///< files
    std::size_t converted = 0;    ///< by themselves
    std::size_t descriptors = 0;  ///< which nothing converts
    std::size_t holders = 0;      ///< whose effects were all converted
    std::size_t held = 0;         ///< effects in those
    std::size_t incomplete = 0;   ///< converted without something that is missing or broken
    std::size_t notConverted = 0; ///< which should have been
};

void count(Outcome const & outcome, Summary & summary)
{
    switch (outcome.result) {
    case Outcome::Result::Converted:
        ++summary.converted;
        break;
    case Outcome::Result::Descriptor:
        ++summary.descriptors;
        break;
    case Outcome::Result::Holder:
        ++summary.holders;
        summary.held += outcome.held;
        break;
    case Outcome::Result::Incomplete:
        ++summary.incomplete;
        break;
    case Outcome::Result::Failed:
        ++summary.notConverted;
        break;
    }
}

/// @param log  receives what the factory logged
Outcome convert(RenderHost & host, Effect::Object const & effect, json & log)
{
    RenderParams params;
    params.video = {{1920, 1080}, 5 * MTime::unitsPerSecond}; // any will do
    try {
        json const record = recordOf(host, effect, params);
        log = record["log"];
        return outcomeOf(effect, record);
    } catch (std::exception const & error) {
        return {Outcome::Result::Failed, 0, {error.what()}};
    }
}

/// Converts what an item carries, and adds to its description what came of it.
/// @return what went wrong, as lines for the user
std::vector<std::string> convertItem(
    RenderHost & host, EditorCollection::IItem const & item, json & described, Summary & summary)
{
    json log = json::array();
    Outcome const outcome = convert(host, item.payload(), log);
    count(outcome, summary);
    described["result"] = toText(outcome.result);
    if (!log.empty())
        described["log"] = std::move(log);
    if (outcome.result == Outcome::Result::Holder)
        described["effects"] = outcome.held;
    if (outcome.problems.empty())
        return {};
    bool const isFailed = outcome.result == Outcome::Result::Failed;
    if (isFailed)
        described["reason"] = joined(outcome.problems, "; ");
    else
        described["warnings"] = outcome.problems;
    std::vector<std::string> lines;
    for (std::string const & problem : outcome.problems)
        lines.push_back(item.file() + (isFailed ? ": did not convert: " : ": ") + problem);
    return lines;
}

json describe(EditorCollection::IItem const & item)
{
    Effect::Object const & effect = item.payload();
    json categories = json::array();
    for (QString const & category : item.categories())
        categories.push_back(category.toStdString());
    return {{"class", effect.GetNameInArchive()}, {"tag", effect.tag.toStdString()}, {"id", effect.id.toStdString()},
        {"groupId", effect.groupId.toStdString()}, {"categories", std::move(categories)}, {"user", item.userFlagA()},
        {"file", asText(item.file())}};
}

/// Quoted where it is needed, as a file may put anything into its texts.
std::string cell(std::string const & text)
{
    if (text.empty())
        return "-";
    return text.find(' ') == text.npos ? quoted(text) : toText(text);
}

/// Two lines: what the item is, and its categories.
void printItem(json const & item)
{
    std::string line = cell(item["tag"]) + " " + item["class"].get<std::string>();
    if (item["user"])
        line += " user";
    if (item.contains("result"))
        line += " " + item["result"].get<std::string>();
    printParagraph(line, 2);
    std::string categories;
    for (json const & category : item["categories"])
        categories += (categories.empty() ? "" : " ") + cell(category);
    if (!categories.empty())
        printParagraph(categories, 4);
}

void printCollections(json const & collections)
{
    std::vector<std::vector<std::string>> rows{{"COLLECTION", "ITEMS"}};
    for (json const & collection : collections)
        rows.push_back({collection["name"], std::to_string(collection["items"].size())});
    printTable(rows);
}

void printItems(json const & collections)
{
    for (json const & collection : collections) {
        if (collection["items"].empty())
            continue;
        std::cout << '\n' << painted(Look::Heading, collection["name"]) << '\n';
        for (json const & item : collection["items"])
            printItem(item);
    }
}

json toJson(Summary const & summary, bool areConverted)
{
    json object{{"items", summary.items}, {"unreadable", summary.unreadable}};
    if (areConverted) {
        object["converted"] = summary.converted;
        object["descriptors"] = summary.descriptors;
        object["holders"] = summary.holders;
        object["held"] = summary.held;
        object["incomplete"] = summary.incomplete;
        object["notConverted"] = summary.notConverted;
    }
    return object;
}

void printSummary(Summary const & summary, bool areConverted)
{
    std::cout << painted(Look::Heading, counted(summary.items, "item")) << "; " << counted(summary.unreadable, "file")
              << " could not be read\n";
    if (!areConverted)
        return;
    std::cout << "  " << summary.converted << " converted\n"
              << "  " << counted(summary.descriptors, "descriptor") << ", for the editor and not the render engine\n"
              << "  " << counted(summary.holders, "holder") << " with " << counted(summary.held, "effect")
              << ", each converted on its own\n"
              << "  " << summary.incomplete << " incomplete\n"
              << "  " << summary.notConverted << " not converted\n";
}

void catalogue(Options const & options)
{
    Catalogue catalogue = readCatalogue(options.folders);
    Summary summary;
    summary.unreadable = catalogue.unreadable();
    // A collection without items is shown as well.
    json collections = json::array();
    for (auto const * const collection : EditorCollection::CollectionProvider::collections())
        collections.push_back({{"name", collection->name().toStdString()}, {"items", json::array()}});
    std::vector<std::string> problems;
    Progress progress("Converting items");
    std::size_t const all = catalogue.itemCount();
    auto place = collections.begin();
    catalogue.forEach([&](std::string const & name, EditorCollection::IItem const & item) {
        json described = describe(item);
        progress.show(summary.items++, all);
        if (options.convert)
            for (std::string & line : convertItem(catalogue.host(), item, described, summary))
                problems.push_back(std::move(line));
        while ((*place)["name"] != name)
            ++place;
        (*place)["items"].push_back(std::move(described));
    });

    Progress::hide();
    if (options.asJson) {
        printJson({{"collections", std::move(collections)}, {"summary", toJson(summary, options.convert)}});
    } else {
        printSummary(summary, options.convert);
        std::cout << '\n';
        printCollections(collections);
        if (options.isLong)
            printItems(collections);
    }
    if (std::string problem = catalogue.stockProblem(); !problem.empty())
        problems.push_back(std::move(problem));
    for (std::string const & problem : problems)
        complain(problem);
    // What could not be read has been logged, and is on the screen already.
    endWith(problems.empty() && messageCount() == 0);
}

} // namespace

void addCatalogue(CLI::App & program)
{
    auto * const command = program.add_subcommand("catalogue", "The collections of stock and user effects");
    auto const options = std::make_shared<Options>();
    addFolders(*command, options->folders);
    command->add_flag("--long", options->isLong, "Print every item as well, with its categories");
    command->add_flag("--json", options->asJson, "Print one JSON document: the collections and the summary");
    command->add_flag("--convert", options->convert,
        "Convert every item as well, and report those that did not or not wholly convert");
    setExamples(*command, "  effectctl catalogue\n"
                          "  effectctl catalogue --long\n"
                          "  effectctl catalogue --stock stock --convert\n"
                          "  effectctl catalogue --json | jq .summary");
    command->callback([options] { catalogue(*options); });
}

} // namespace Host
