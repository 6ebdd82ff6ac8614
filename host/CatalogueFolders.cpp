#include "CatalogueFolders.h"

#include <chrono>
#include <utility>
#include <vector>

#include <EditorSettings/Settings.h>
#include <inspect/Failure.h>
#include <inspect/FileNames.h>
#include <inspect/Text.h>

#include "Command.h"
#include "Progress.h"

#include <QFileInfo>

namespace Host {

namespace {

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

} // namespace

void addFolders(CLI::App & command, CatalogueFolders & folders)
{
    command
        .add_option("--stock", folders.stock,
            "Stock folder; unless given, that of the environment's EDITOR_STOCK_DIR, else the installed one")
        ->option_text("DIR");
    command
        .add_option("--user", folders.user,
            "User's folder; unless given, that of the environment's EDITOR_USER_DIR, else the user's data folder")
        ->option_text("DIR");
}

void useFolders(CatalogueFolders const & folders)
{
    for (auto const & [path, set] :
        {std::pair(folders.stock, &Settings::setStockRoot), std::pair(folders.user, &Settings::setUserRoot)}) {
        if (!path.empty())
            checkFolder(fileName(path));
        set(fileName(path));
    }
    checkFolder(Settings::stockRoot());
}

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

void waitForItems(EditorCollection::ItemStorage & storage)
{
    constexpr std::chrono::milliseconds refresh(100);
    Progress progress("Reading items");
    while (!storage.waitForAll(refresh)) {
        auto const counts = storage.progress();
        progress.show(counts.delivered + counts.failed, counts.found);
    }
}

} // namespace Host
