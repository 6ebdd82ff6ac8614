#include "RegularFile.h"

#include <algorithm>

#include <QFileInfo>

namespace RegularFile {

namespace {

constexpr qint64 pieceSize = 1 << 20;

bool fail(QString * error, QString const & path, QString const & reason)
{
    if (error)
        *error = path + QLatin1String(": ") + reason;
    return false;
}

} // namespace

bool open(QFile & file, QString * error)
{
    QFileInfo const info(file.fileName());
    if (!info.exists())
        return fail(error, file.fileName(), QStringLiteral("no such file"));
    if (!info.isFile())
        return fail(error, file.fileName(), QStringLiteral("is not a regular file"));
    return file.open(QIODevice::ReadOnly) || fail(error, file.fileName(), file.errorString());
}

std::optional<QByteArray> read(QString const & path, qint64 maxSize, QString * error)
{
    QFile file(path);
    if (!open(file, error))
        return std::nullopt;
    QByteArray bytes;
    // The size is only a hint: a file may grow meanwhile, and some report none at all.
    if (file.size() <= maxSize) {
        bytes.reserve(static_cast<int>(file.size()));
        while (bytes.size() <= maxSize) {
            QByteArray const piece = file.read(std::min(pieceSize, maxSize + 1 - bytes.size()));
            if (piece.isEmpty())
                break;
            bytes += piece;
        }
    }
    if (file.error() != QFileDevice::NoError) {
        fail(error, path, file.errorString());
        return std::nullopt;
    }
    if (file.size() > maxSize || bytes.size() > maxSize) {
        fail(error, path, QStringLiteral("is longer than %1 bytes").arg(maxSize));
        return std::nullopt;
    }
    return bytes;
}

} // namespace RegularFile
