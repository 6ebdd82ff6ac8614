#include <EditorSettings/Settings.h>

#include <mutex>

#include <dlfcn.h>

#include <FileSystem/FileSystem.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStandardPaths>

namespace {

/// A root as the host set it, in code or in the environment.
class Root
{
public:
    explicit Root(char const * variable)
        : m_variable(variable)
    {}

    void set(QString path)
    {
        std::lock_guard const lock(m_mutex);
        m_path.swap(path);
    }

    /// Empty where the host set nothing.
    QString path() const
    {
        QString path;
        {
            std::lock_guard const lock(m_mutex);
            path = m_path;
        }
        return FS::absolutePath(path.isEmpty() ? qEnvironmentVariable(m_variable) : path);
    }

private:
    char const * m_variable;
    mutable std::mutex m_mutex;
    QString m_path;
};

Root & stock()
{
    static Root root("EDITOR_STOCK_DIR");
    return root;
}

Root & user()
{
    static Root root("EDITOR_USER_DIR");
    return root;
}

/// The folder that this library was loaded from, links resolved; empty if the loader does not know it.
QString libraryFolder()
{
    // An address that only this library can have: an exported function's could be another copy's.
    static char const anchor = 0;
    Dl_info info{};
    if (dladdr(&anchor, &info) == 0 || info.dli_fname == nullptr)
        return {};
    QString const file = QFileInfo(QFile::decodeName(info.dli_fname)).canonicalFilePath();
    return file.isEmpty() ? QString() : QFileInfo(file).path();
}

QString findInstalledStock()
{
    QString const stockFolder = QStringLiteral("EditorEffects/stock");
    // An installation may have been moved as a whole, so its own place counts for more than the prefix built for. How
    // deep the library lies differs: lib/EditorEffects, or a folder for the architecture between.
    if (QString const folder = libraryFolder(); !folder.isEmpty()) {
        QDir parent(folder);
        do {
            QString const path = FS::joinPath({parent.path(), QStringLiteral("share"), stockFolder}, {});
            if (FS::exists(path))
                return path;
        } while (parent.cdUp());
    }
    return FS::joinPath({QStringLiteral(EDITOR_INSTALLED_DATA_FOLDER), stockFolder}, {});
}

QString stockPath(QString const & folder)
{
    return FS::joinPath({Settings::stockRoot(), folder}, {});
}

QString userPath(QString const & folder)
{
    return FS::joinPath({Settings::userRoot(), folder}, {});
}

} // namespace

QString Settings::stockRoot()
{
    if (QString path = stock().path(); !path.isEmpty())
        return path;
    static QString const installed = findInstalledStock();
    return installed;
}

QString Settings::userRoot()
{
    if (QString path = user().path(); !path.isEmpty())
        return path;
    return FS::joinPath({QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation), "EditorEffects"}, {});
}

void Settings::setStockRoot(QString const & path)
{
    stock().set(path);
}

void Settings::setUserRoot(QString const & path)
{
    user().set(path);
}

QString Settings::stockVideoEffectsPath()
{
    return stockPath("VideoEffects");
}

QString Settings::stockOverlayEffectsPath()
{
    return stockPath("OverlayEffects");
}

QString Settings::stockAudioEffectsPath()
{
    return stockPath("AudioEffects");
}

QString Settings::stockAudioEnhancePath()
{
    return stockPath("AudioEnhance");
}

QString Settings::stockColorFiltersPath()
{
    return stockPath("ColorFilters");
}

QString Settings::stockLutEffectsPath()
{
    return stockPath("Luts");
}

QString Settings::stockPipEffectsPath()
{
    return stockPath("PipEffects");
}

QString Settings::stockMasksPath()
{
    return stockPath("Masks");
}

QString Settings::stockBlurMasksPath()
{
    return stockPath("BlurMasks");
}

QString Settings::stockFlyingObjectsPath()
{
    return stockPath("FlyingObjects");
}

QString Settings::userEffectsPath(QString const & className)
{
    return userPath("Effects/" + className.section("::", -1));
}

QString Settings::userBlobsPath()
{
    return userPath("Blobs");
}

QString Settings::userTracksPath()
{
    return userPath("Tracks");
}
