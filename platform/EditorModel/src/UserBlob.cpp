#include <EditorModel/UserBlob.h>

#include <EditorModel/Resource.h>
#include <EditorSerialization/MessageText.h>
#include <EditorSettings/Settings.h>

#include <QDir>
#include <QFileInfo>

#include <glog/logging.h>

namespace UserBlob {

namespace {

/// Registers the file, or returns why not.
QString problemOf(QString const & path)
{
    QString const folder = Settings::userBlobsPath() + QLatin1Char('/');
    QString const absolute = QDir::isRelativePath(path) ? QDir::currentPath() + QLatin1Char('/') + path : path;
    // The name is what effects ask for, so it stays as it is; the file is looked up without the ".." in it.
    QFileInfo const file(QDir::cleanPath(absolute));
    if (!absolute.startsWith(folder) || !file.filePath().startsWith(folder))
        return QLatin1String("is not in ") + Settings::userBlobsPath();
    if (!file.exists())
        return QStringLiteral("no such file");
    if (!file.isFile())
        return QStringLiteral("is not a regular file");
    if (!file.isReadable())
        return QStringLiteral("is not readable");

    Resource::ID const id(absolute.mid(folder.size()), Resource::Type::Blob);
    if (Resource::tryRegisterResource(id, file.filePath(), 0, MTime(), Resource::Timing()))
        return {};
    auto const first = Resource::registration(id);
    if (!first || first->path == file.filePath())
        return {};
    return QStringLiteral("its name belongs to %1").arg(first->path);
}

} // namespace

bool loadBlob(QString const & path)
{
    QString const problem = problemOf(path);
    if (!problem.isEmpty())
        LOG(WARNING) << "Couldn't load user's blob: "
                     << Serialize::messageText(QString(path + QLatin1String(": ") + problem).toStdString());
    return problem.isEmpty();
}

} // namespace UserBlob
