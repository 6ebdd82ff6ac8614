#include <inspect/Files.h>

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <iostream>

#include <glob.h>

#include <EditorModel/EffectArchive.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorUtil/ItemFile.h>
#include <FileSystem/FileSystem.h>
#include <inspect/Documents.h>
#include <inspect/Failure.h>
#include <inspect/FileNames.h>
#include <inspect/Text.h>

#include <QFile>
#include <QFileInfo>

namespace Effect::Inspect {

using nlohmann::json;
namespace fs = std::filesystem;

std::vector<std::string> const effectSuffixes{".json", ".bin"};

namespace {

constexpr char const * standardStream = "-";
constexpr char const * trackSuffix = ".track.json"; ///< motion tracks lie beside effects and are none
constexpr qint64 largestFile = qint64(256) << 20;   // bytes
constexpr char const * effectKey = "effect";

[[noreturn]] void fail(std::string const & path, QString const & reason)
{
    throw Failure(path + ": " + reason.toStdString());
}

/// An archive document names its class at the top, an item holds one.
bool isItem(json const & document)
{
    return document.is_object() && document.contains(effectKey) &&
           !document.contains(Serialize::Json::MetaDetails::s_meta);
}

/// Reads a file with `read`, which is given its bytes. What it throws becomes a `Failure` that names the file.
template <class Read> auto readNamed(std::string const & path, Read const & read)
{
    std::string const bytes = readFile(path);
    try {
        return read(bytes);
    } catch (std::exception const & error) {
        throw Failure(path + ": " + error.what());
    }
}

/// The item in a document's text, in which paths are absolute.
serialize_ptr<EditorCollection::IItem> parseItem(std::string const & path, std::string const & text)
{
    QString const folder = QFileInfo(path == standardStream ? QString() : fileName(path)).absolutePath();
    return EditorCollection::parseItem(text, folder.toStdString());
}

bool endsInOneOf(std::string const & name, std::vector<std::string> const & suffixes)
{
    QString const text = QString::fromStdString(name);
    return std::any_of(suffixes.begin(), suffixes.end(), [&text](std::string const & suffix) {
        return text.endsWith(QString::fromStdString(suffix), Qt::CaseInsensitive);
    });
}

void addFolder(std::string const & folder, std::vector<std::string> const & suffixes, std::vector<File> & files)
{
    std::error_code error;
    std::vector<std::string> names;
    fs::recursive_directory_iterator entry(folder, error);
    for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
        std::error_code ignored;
        std::string const name = entry->path().filename().native();
        if (endsInOneOf(name, suffixes) && !endsInOneOf(name, {trackSuffix}) && entry->is_regular_file(ignored))
            names.push_back(entry->path().native());
    }
    std::sort(names.begin(), names.end());
    for (std::string & name : names)
        files.push_back({std::move(name), {}});
    if (error)
        files.push_back({folder, folder + ": " + error.message()});
    else if (names.empty())
        files.push_back({folder, folder + ": no file in this folder ends in " + joined(suffixes, " or ")});
}

std::vector<std::string> matchesOf(std::string const & pattern)
{
    glob_t found{};
    std::vector<std::string> names;
    // Unsorted, as it would sort by the user's language.
    if (glob(pattern.c_str(), GLOB_NOSORT, nullptr, &found) == 0)
        names.assign(found.gl_pathv, found.gl_pathv + found.gl_pathc);
    globfree(&found);
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace

std::string readFile(std::string const & path)
{
    QFile file(fileName(path));
    if (!(path == standardStream ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly)))
        fail(path, file.errorString());
    // A device may be endless and a pipe does not tell its size, so the limit is found out by reading.
    QByteArray const bytes = file.read(largestFile + 1);
    if (file.error() != QFileDevice::NoError)
        fail(path, file.errorString());
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
    // A pipe or a device is written to: only a file can be replaced.
    std::error_code ignored;
    auto const kind = fs::status(path, ignored).type();
    if (kind == fs::file_type::regular || kind == fs::file_type::not_found) {
        if (QString error; !FS::saveFile(fileName(path), bytes, &error))
            fail(path, error);
        return;
    }
    QFile file(fileName(path));
    auto const size = static_cast<qint64>(bytes.size());
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes.data(), size) != size || !file.flush())
        fail(path, file.errorString());
}

Archived readArchived(std::string const & path)
{
    return readNamed(path, [&path](std::string const & bytes) -> Archived {
        if (Effect::Archive::isBinary(bytes))
            return {Effect::Archive::fromBinary(bytes), {}};
        json item = Serialize::Json::parse(bytes);
        if (!isItem(item))
            return {Effect::Archive::fromJson(bytes), {}};
        parseItem(path, bytes); // refuses what the catalogue would
        auto effect = effectOf(item[effectKey]);
        item.erase(effectKey);
        return {std::move(effect), std::move(item)};
    });
}

std::unique_ptr<Effect::Object> readEffect(std::string const & path)
{
    return readNamed(path, [&path](std::string const & bytes) {
        if (Effect::Archive::isBinary(bytes))
            return Effect::Archive::fromBinary(bytes);
        if (!isItem(Serialize::Json::parse(bytes)))
            return Effect::Archive::fromJson(bytes);
        // The item keeps its effect, and effects are copied through their documents.
        return effectOf(document(parseItem(path, bytes)->payload()));
    });
}

json document(Archived const & archived)
{
    if (archived.item.is_null())
        return document(*archived.effect);
    json item = archived.item;
    item[effectKey] = document(*archived.effect);
    return item;
}

std::vector<File> expand(std::vector<std::string> const & arguments, std::vector<std::string> const & suffixes)
{
    std::vector<File> files;
    auto const add = [&](std::string const & name) {
        std::error_code ignored;
        if (fs::is_directory(name, ignored))
            addFolder(name, suffixes, files);
        else
            files.push_back({name, {}});
    };
    for (std::string const & argument : arguments) {
        std::error_code ignored;
        bool const isPattern =
            argument.find_first_of("*?[") != argument.npos && !fs::exists(fs::symlink_status(argument, ignored));
        if (!isPattern) {
            add(argument);
            continue;
        }
        auto const matches = matchesOf(argument);
        if (matches.empty())
            files.push_back({argument, argument + ": no file matches"});
        for (std::string const & match : matches)
            add(match);
    }
    return files;
}

} // namespace Effect::Inspect
