#pragma once

#include <optional>

#include <QByteArray>
#include <QFile>

namespace RegularFile {

// On failure both set `error`, unless it is null, to one line with the path and the reason.

/// Opens the file for reading if it is a regular one: opening a pipe would wait for its writer, and a device may never
/// end.
bool open(QFile & file, QString * error);

/// All of the regular file at `path`, which must not be longer than `maxSize` bytes.
std::optional<QByteArray> read(QString const & path, qint64 maxSize, QString * error);

} // namespace RegularFile
