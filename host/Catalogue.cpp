#include <chrono>
#include <iostream>

#include <unistd.h>

#include <EditorModel/CollectionProvider.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/ItemStorage.h>
#include <inspect/Conversion.h>
#include <inspect/FileNames.h>
#include <inspect/Files.h>
#include <inspect/Messages.h>
#include <inspect/RenderHost.h>
#include <inspect/Text.h>

#include "Command.h"
#include "FileCommand.h"
#include "Output.h"
#include "Progress.h"

#include <QFileInfo>

namespace Host {

using nlohmann::json;

namespace {

struct Options
{
    std::string stock;
    std::string user;
    bool asJson = false;
    bool convert = false;
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

/// Waits for the deliveries.
void waitForItems(EditorCollection::ItemStorage & storage)
{
    constexpr std::chrono::milliseconds refresh(100);
    Progress progress("Reading items");
    while (!storage.waitForAll(refresh)) {
        auto const counts = storage.progress();
        progress.show(counts.delivered + counts.failed, counts.found);
    }
}

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

void printCollection(json const & collection)
{
    json const & items = collection["items"];
    std::cout << painted(Look::Heading, collection["name"]) << ": " << counted(items.size(), "item") << '\n';
    if (items.empty())
        return;
    bool const areConverted = items[0].contains("result");
    // The margin is for people only.
    std::string const margin = isTerminal(STDOUT_FILENO) ? "  " : "";
    std::vector<std::vector<std::string>> rows{{margin + "CLASS", "TAG", "ID", "GROUP", "CATEGORIES", "USER"}};
    if (areConverted)
        rows.back().push_back("RESULT");
    // Quoted where it is needed, as a file may put anything into its texts.
    auto const cell = [](std::string const & text) {
        if (text.empty())
            return std::string("-");
        return text.find(' ') == text.npos ? quoted(text) : toText(text);
    };
    for (json const & item : items) {
        std::string categories;
        for (json const & category : item["categories"])
            categories += (categories.empty() ? "" : " ") + cell(category);
        rows.push_back({margin + item["class"].get<std::string>(), cell(item["tag"]), cell(item["id"]),
            cell(item["groupId"]), categories.empty() ? "-" : categories, item["user"] ? "yes" : "no"});
        if (areConverted)
            rows.back().push_back(item["result"]);
    }
    printTable(rows);
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
    std::cout << counted(summary.items, "item");
    if (areConverted)
        std::cout << ": " << summary.converted << " converted, " << counted(summary.descriptors, "descriptor") << ", "
                  << counted(summary.holders, "holder") << " with " << counted(summary.held, "effect")
                  << " converted each on its own, " << summary.incomplete << " incomplete, " << summary.notConverted
                  << " not converted";
    std::cout << "; " << counted(summary.unreadable, "file") << " could not be read\n";
}

/// Throws a `Failure` for what is no folder that items can be read from.
void checkFolder(QString const & path)
{
    QFileInfo const info(path);
    if (!info.isDir())
        throw Failure(toBytes(path) + ": no such folder");
    // The storage takes folders as texts.
    QString const absolute = info.absoluteFilePath();
    if (QString::fromUtf8(absolute.toUtf8()) != absolute)
        throw Failure(toBytes(path) + ": items cannot be read from a folder whose name is not UTF-8");
}

/// What is wrong with the stock folder as a whole; empty when nothing is. The storage takes a collection's folder that
/// is missing for one without items, so a wrong stock folder would pass for an empty catalogue.
std::string stockProblem()
{
    std::vector<std::string> names;
    for (QString const & path : {Settings::stockVideoEffectsPath(), Settings::stockOverlayEffectsPath(),
             Settings::stockAudioEffectsPath(), Settings::stockAudioEnhancePath(), Settings::stockColorFiltersPath(),
             Settings::stockLutEffectsPath(), Settings::stockPipEffectsPath(), Settings::stockMasksPath()}) {
        if (QFileInfo(path).isDir())
            return {};
        names.push_back(toBytes(QFileInfo(path).fileName()));
    }
    return toBytes(Settings::stockRoot()) + ": this is no stock folder, as it holds none of " + joined(names, ", ");
}

void catalogue(Options const & options)
{
    for (auto const & [path, set] :
        {std::pair(options.stock, &Settings::setStockRoot), std::pair(options.user, &Settings::setUserRoot)}) {
        if (!path.empty())
            checkFolder(fileName(path));
        set(fileName(path));
    }
    checkFolder(Settings::stockRoot());

    EditorCollection::ItemStorage storage;
    RenderHost host(storage);
    waitForItems(storage);

    Summary summary;
    summary.unreadable = storage.progress().failed;
    json collections = json::array();
    std::vector<std::string> problems;
    Progress progress("Converting items");
    std::size_t const all = storage.progress().delivered;
    for (auto const * const collection : EditorCollection::CollectionProvider::collections()) {
        std::string const name = collection->name().toStdString();
        json items = json::array();
        for (auto const * const item : collection->items()) {
            json described = describe(*item);
            progress.show(summary.items + items.size(), all);
            if (options.convert)
                for (std::string & line : convertItem(host, *item, described, summary))
                    problems.push_back(std::move(line));
            items.push_back(std::move(described));
        }
        summary.items += items.size();
        collections.push_back({{"name", name}, {"items", std::move(items)}});
    }

    Progress::hide();
    if (options.asJson) {
        printJson({{"collections", std::move(collections)}, {"summary", toJson(summary, options.convert)}});
    } else {
        for (json const & collection : collections)
            printCollection(collection);
        printSummary(summary, options.convert);
    }
    if (std::string problem = stockProblem(); !problem.empty())
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
    command
        ->add_option("--stock", options->stock,
            "Stock folder; unless given, that of the environment's EDITOR_STOCK_DIR, else the installed one")
        ->option_text("DIR");
    command
        ->add_option("--user", options->user,
            "User's folder; unless given, that of the environment's EDITOR_USER_DIR, else the user's data folder")
        ->option_text("DIR");
    command->add_flag("--json", options->asJson, "Print one JSON document: the collections and the summary");
    command->add_flag("--convert", options->convert,
        "Convert every item as well, and report those that did not or not wholly convert");
    setExamples(*command, "  effectctl catalogue\n"
                          "  effectctl catalogue --stock stock --convert\n"
                          "  effectctl catalogue --json | jq .summary");
    command->callback([options] { catalogue(*options); });
}

} // namespace Host
