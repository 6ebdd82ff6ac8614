#include <FileSystem/FileSystem.h>

#include <QDir>
#include <QFileInfo>

namespace FS {

QString absolutePath(QString const & path)
{
    return path.isEmpty() ? path : QDir::cleanPath(QFileInfo(path).absoluteFilePath());
}

bool exists(QString const & path)
{
    return !path.isEmpty() && QFileInfo::exists(path);
}

QString joinPath(std::initializer_list<QString> components, QString const & suffix)
{
    QString joined;
    for (QString const & component : components) {
        if (component.isEmpty())
            continue;
        if (!joined.isEmpty() && !joined.endsWith(QLatin1Char('/')))
            joined += QLatin1Char('/');
        // Only the first component may bring the root.
        joined += joined.isEmpty() || !component.startsWith(QLatin1Char('/')) ? component : component.mid(1);
    }
    return joined + suffix;
}

} // namespace FS
