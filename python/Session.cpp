#include "Session.h"

#include <chrono>
#include <mutex>
#include <optional>
#include <utility>

#include <EditorModel/CollectionProvider.h>
#include <EditorModel/EffectArchive.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/ItemStorage.h>
#include <inspect/Check.h>
#include <inspect/Conversion.h>
#include <inspect/Failure.h>
#include <inspect/FileNames.h>
#include <inspect/Files.h>
#include <inspect/Messages.h>

#include <QFileInfo>
#include <QString>

namespace EffectsPython {

using EditorCollection::CollectionProvider;
using EditorCollection::IItem;
using Effect::Inspect::RenderHost;
using nlohmann::json;

namespace {

/// Of which a process has one at a time.
struct Session
{
    std::mutex mutex;
    std::optional<RenderHost> host; // with what conversions have loaded

    RenderHost & renderHost() { return host ? *host : host.emplace(); }
};

/// Never destroyed: at the end of the process, what it uses may be gone before it.
Session & session()
{
    static auto * const instance = new Session;
    return *instance;
}

CatalogueItem copyOf(IItem const & item, QString const & collection)
{
    CatalogueItem copy;
    auto bytes = std::make_shared<std::string const>(Effect::Archive::toBinary(item.payload()));
    copy.effect = Source::read(std::move(bytes), {});
    copy.collection = collection.toStdString();
    copy.file = item.file();
    for (QString const & category : item.categories())
        copy.categories.push_back(category.toStdString());
    copy.isUsers = item.userFlagA();
    return copy;
}

} // namespace

std::vector<FileFindings> check(std::string const & path)
{
    using namespace Effect::Inspect;
    std::lock_guard const lock(session().mutex);
    Checker checker(session().renderHost());
    std::vector<FileFindings> files;
    for (File const & file : expand({path}, effectSuffixes))
        files.push_back({file.name,
            file.error.empty() ? checker.check(file.name) : std::vector{unreadable(file.name, Failure(file.error))}});
    return files;
}

json convert(Effect::Object const & effect, Effect::Inspect::RenderParams const & params)
{
    std::lock_guard const lock(session().mutex);
    Effect::Inspect::registerResources(effect);
    return Effect::Inspect::recordOf(session().renderHost(), effect, params);
}

CatalogueContent readCatalogue(std::string const & stock, std::string const & user,
    std::function<void(std::size_t read, std::size_t found)> const & progress)
{
    constexpr std::chrono::milliseconds interval(50);
    std::lock_guard const lock(session().mutex);
    session().host.reset();
    Settings::setStockRoot(Effect::Inspect::fileName(stock));
    Settings::setUserRoot(Effect::Inspect::fileName(user));
    if (QString const root = Settings::stockRoot(); !QFileInfo(root).isDir())
        throw Effect::Inspect::Failure(Effect::Inspect::toBytes(root) + ": no such folder");

    Effect::Inspect::Messages messages;
    EditorCollection::ItemStorage storage;
    RenderHost const host(storage);
    auto const report = [&] {
        auto const counts = storage.progress();
        progress(counts.delivered + counts.failed, counts.found);
    };
    while (!storage.waitForAll(interval))
        report();
    report();

    CatalogueContent content;
    for (auto const * const collection : CollectionProvider::collections())
        for (IItem const * const item : collection->items())
            content.items.push_back(copyOf(*item, collection->name()));
    for (json const * const lines : {&messages.errors, &messages.warnings})
        content.problems.insert(content.problems.end(), lines->begin(), lines->end());
    return content;
}

} // namespace EffectsPython
