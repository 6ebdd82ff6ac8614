#include <chrono>
#include <iostream>

#include <unistd.h>

#include <EditorModel/CollectionProvider.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/ItemStorage.h>

#include "Command.h"
#include "Documents.h"
#include "Files.h"
#include "Output.h"
#include "Progress.h"
#include "RenderHost.h"

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

/// What became of the items.
struct Summary
{
    std::size_t items = 0;
    std::size_t unreadable = 0;   ///< files
    std::size_t converted = 0;    ///< by themselves
    std::size_t descriptors = 0;  ///< which nothing converts
    std::size_t holders = 0;      ///< whose effects were all converted
    std::size_t held = 0;         ///< effects in those
    std::size_t notConverted = 0; ///< which should have been
};

/// What converting an item came to.
namespace Result {
constexpr char const * converted = "converted";
constexpr char const * descriptor = "descriptor";
constexpr char const * holder = "holder";
constexpr char const * failed = "failed";
} // namespace Result

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

/// Converts one effect that is no holder. Throws a `Failure` that tells why it did not convert.
void convertOne(RenderHost & host, Effect::Object const & effect, RenderParams const & params)
{
    json const record = host.convert(effect, params);
    if (!record["settings"].empty())
        return;
    std::string reason;
    for (json const & line : record["log"])
        reason += (reason.empty() ? "" : "; ") + line.get<std::string>();
    throw Failure(reason.empty() ? "no settings came of it" : reason);
}

/// Converts the effects that a holder holds, those of holders in it included, each on its own. Returns how many; throws
/// a `Failure` for the first that does not convert.
std::size_t convertHeld(RenderHost & host, json const & holder, RenderParams const & params)
{
    std::size_t count = 0;
    for (json const & inside : heldEffects(holder)) {
        if (inside.is_null())
            continue;
        if (isHolder(inside)) {
            count += convertHeld(host, inside, params);
            continue;
        }
        convertOne(host, *effectOf(inside), params);
        ++count;
    }
    return count;
}

/// Converts what an item carries, and adds to its description what came of it.
void convertItem(RenderHost & host, Effect::Object const & effect, json & described, Summary & summary)
{
    RenderParams params;
    params.video = {{1920, 1080}, 5 * MTime::unitsPerSecond}; // any will do
    try {
        json const archived = document(effect);
        if (isHolder(archived)) {
            std::size_t const held = convertHeld(host, archived, params);
            summary.held += held;
            ++summary.holders;
            described["result"] = Result::holder;
            described["effects"] = held;
        } else if (effect.impl() == Effect::Impl::Descriptor) {
            ++summary.descriptors;
            described["result"] = Result::descriptor;
        } else {
            convertOne(host, effect, params);
            ++summary.converted;
            described["result"] = Result::converted;
        }
    } catch (std::exception const & error) {
        ++summary.notConverted;
        described["result"] = Result::failed;
        described["reason"] = error.what();
    }
}

json describe(EditorCollection::IItem const & item)
{
    Effect::Object const & effect = item.payload();
    json categories = json::array();
    for (QString const & category : item.categories())
        categories.push_back(category.toStdString());
    return {{"class", effect.GetNameInArchive()}, {"tag", effect.tag.toStdString()}, {"id", effect.id.toStdString()},
        {"groupId", effect.groupId.toStdString()}, {"categories", std::move(categories)}, {"user", item.userFlagA()}};
}

/// Such as "1 item" and "2 items".
std::string counted(std::size_t count, std::string const & noun)
{
    return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
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
                  << " converted each on its own, " << summary.notConverted << " not converted";
    std::cout << "; " << counted(summary.unreadable, "file") << " could not be read\n";
}

/// Throws a `Failure` where a folder is missing that the user named.
QString folder(std::string const & path)
{
    QString const name = QString::fromStdString(path);
    if (!name.isEmpty() && !QFileInfo(name).isDir())
        throw Failure(path + ": no such folder");
    return name;
}

void catalogue(Options const & options)
{
    Settings::setStockRoot(folder(options.stock));
    Settings::setUserRoot(folder(options.user));
    if (!QFileInfo(Settings::stockRoot()).isDir())
        throw Failure(Settings::stockRoot().toStdString() + ": no such folder");

    EditorCollection::ItemStorage storage;
    RenderHost host(storage);
    waitForItems(storage);

    Summary summary;
    summary.unreadable = storage.progress().failed;
    json collections = json::array();
    std::vector<Failure> failures;
    Progress progress("Converting items");
    std::size_t const all = storage.progress().delivered;
    for (auto const * const collection : EditorCollection::CollectionProvider::collections()) {
        std::string const name = collection->name().toStdString();
        json items = json::array();
        for (auto const * const item : collection->items()) {
            json described = describe(*item);
            progress.show(summary.items + items.size(), all);
            if (options.convert)
                convertItem(host, item->payload(), described, summary);
            if (described.contains("reason"))
                failures.emplace_back(name + ": " + described["class"].get<std::string>() + ' ' +
                                      toText(described["tag"]) +
                                      " did not convert: " + described["reason"].get<std::string>());
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
    for (Failure const & failure : failures)
        complain(failure.what());
    // What could not be read has been logged.
    endWith(failures.empty() && summary.unreadable == 0);
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
    command->add_flag("--convert", options->convert, "Convert every item as well, and tell which did not convert");
    setExamples(*command, "  effectctl catalogue\n"
                          "  effectctl catalogue --stock stock --convert\n"
                          "  effectctl catalogue --json | jq .summary");
    command->callback([options] { catalogue(*options); });
}

} // namespace Host
