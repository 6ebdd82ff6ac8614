#include <FileSystem/FileSystem.h>

#include <cerrno>

#include <unistd.h>

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

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

bool saveFile(QString const & path, std::string_view bytes, QString * error)
{
    auto const fail = [error](QString const & reason) {
        if (error)
            *error = reason;
        return false;
    };
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Unbuffered))
        return fail(file.errorString());
    // A disk that becomes full takes part of the bytes; only the next write fails with the reason, and only unbuffered.
    while (!bytes.empty()) {
        qint64 const count = file.write(bytes.data(), static_cast<qint64>(bytes.size()));
        if (count <= 0)
            return fail(file.errorString());
        bytes.remove_prefix(static_cast<std::size_t>(count));
    }
    // QSaveFile syncs as well but ignores the error, and some file systems notice only here that they are full.
    if (::fdatasync(file.handle()) != 0 && errno != EINVAL && errno != ENOSYS) // these two: not supported
        return fail(qt_error_string(errno));
    return file.commit() || fail(file.errorString());
}

} // namespace FS
