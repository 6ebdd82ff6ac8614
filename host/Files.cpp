#include "Files.h"

#include <cstdio>
#include <iostream>

#include <EditorModel/EffectArchive.h>

#include "Command.h"

#include <QFile>
#include <QSaveFile>

namespace Host {

namespace {

constexpr char const * standardStream = "-";
constexpr qint64 largestFile = qint64(256) << 20; // bytes
constexpr std::string_view binaryStart = "EEAR";

[[noreturn]] void fail(std::string const & path, QFileDevice const & file)
{
    throw Failure(path + ": " + file.errorString().toStdString());
}

} // namespace

std::string readFile(std::string const & path)
{
    QFile file(QString::fromStdString(path));
    if (!(path == standardStream ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly)))
        fail(path, file);
    // A device may be endless and a pipe does not tell its size, so the limit is found out by reading.
    QByteArray const bytes = file.read(largestFile + 1);
    if (file.error() != QFileDevice::NoError)
        fail(path, file);
    if (bytes.size() > largestFile)
        throw Failure(path + ": larger than 256 MiB");
    return bytes.toStdString();
}

void writeFile(std::string const & path, std::string_view bytes)
{
    if (path == standardStream) {
        std::cout << bytes;
        return;
    }
    QSaveFile file(QString::fromStdString(path));
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(bytes.data(), static_cast<qint64>(bytes.size())) != static_cast<qint64>(bytes.size()) ||
        !file.commit())
        fail(path, file);
}

std::unique_ptr<Effect::Object> readEffect(std::string const & path)
{
    std::string const bytes = readFile(path);
    try {
        bool const isBinary = std::string_view(bytes).substr(0, binaryStart.size()) == binaryStart;
        return isBinary ? Effect::Archive::fromBinary(bytes) : Effect::Archive::fromJson(bytes);
    } catch (std::exception const & error) {
        throw Failure(path + ": " + error.what());
    }
}

} // namespace Host
