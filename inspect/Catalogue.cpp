#include <inspect/Catalogue.h>

#include <chrono>
#include <utility>
#include <vector>

#include <EditorModel/CollectionProvider.h>
#include <EditorSettings/Settings.h>
#include <EditorUtil/ItemStorage.h>
#include <inspect/Failure.h>
#include <inspect/FileNames.h>
#include <inspect/Text.h>

#include <QFileInfo>

namespace Effect::Inspect {

namespace {

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

void setFolders(CatalogueFolders const & folders)
{
    for (auto const & [path, set] :
        {std::pair(folders.stock, &Settings::setStockRoot), std::pair(folders.user, &Settings::setUserRoot)}) {
        if (!path.empty())
            checkFolder(fileName(path));
        set(fileName(path));
    }
    checkFolder(Settings::stockRoot());
}

} // namespace

struct Catalogue::State
{
    EditorCollection::ItemStorage storage;
    RenderHost host{storage};
};

Catalogue::Catalogue(CatalogueFolders const & folders, Progress const & progress)
{
    setFolders(folders);
    m_state = std::make_unique<State>();
    constexpr std::chrono::milliseconds refresh(100);
    while (!m_state->storage.waitForAll(refresh)) {
        auto const counts = m_state->storage.progress();
        if (progress)
            progress(counts.delivered + counts.failed, counts.found);
    }
}

Catalogue::~Catalogue() = default;

RenderHost & Catalogue::host()
{
    return m_state->host;
}

std::size_t Catalogue::itemCount() const
{
    return m_state->storage.progress().delivered;
}

std::size_t Catalogue::unreadable() const
{
    return m_state->storage.progress().failed;
}

// The storage takes a collection's folder that is missing for one without items, so a wrong stock folder would pass for
// an empty catalogue.
std::string Catalogue::stockProblem() const
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

void Catalogue::forEach(Visit const & visit) const
{
    for (auto const * const collection : EditorCollection::CollectionProvider::collections()) {
        std::string const name = collection->name().toStdString();
        for (auto const * const item : collection->items())
            visit(name, *item);
    }
}

} // namespace Effect::Inspect
