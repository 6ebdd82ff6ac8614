#include <inspect/Relinking.h>

#include <algorithm>
#include <filesystem>
#include <sstream>

#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectDocument.h>
#include <EditorSerialization/JsonArchive.h>
#include <inspect/Failure.h>
#include <inspect/FileNames.h>
#include <inspect/Files.h>
#include <inspect/Forms.h>
#include <inspect/Hash.h>
#include <inspect/Pack.h>
#include <inspect/References.h>
#include <inspect/Text.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

using Effect::Archive::Document;
using nlohmann::json;
namespace fs = std::filesystem;

namespace {

constexpr std::size_t hashDigits = 64;

/// The name of a file, whichever system's path it is.
std::string nameIn(std::string const & path)
{
    std::size_t const slash = path.find_last_of("/\\");
    return slash == path.npos ? path : path.substr(slash + 1);
}

bool isHash(std::string const & text)
{
    return text.size() == hashDigits && text.find_first_not_of("0123456789abcdef") == text.npos;
}

/// Finds the file for one effect.
class Finder
{
public:
    Finder(FileIndex & index, KnownHashes const & hashes)
        : m_index(index)
        , m_hashes(hashes)
    {}

    /// Throws a `Failure` where there is none, or more than one.
    std::string find(std::string const & name)
    {
        std::vector<std::string> const & named = m_index.named(name);
        auto const known = m_hashes.find(name);
        if (known != m_hashes.end())
            return withKnownHash(name, named, known->second);
        if (named.empty())
            throw Failure(name + ": no file of this name was found");
        for (std::string const & other : named)
            if (m_index.hashOf(other) != m_index.hashOf(named.front()))
                throw Failure(name + ": there are different files of this name: " + named.front() + " and " + other);
        return named.front();
    }

private:
    std::string withKnownHash(
        std::string const & name, std::vector<std::string> const & named, std::set<std::string> const & hashes)
    {
        for (std::string const & file : named)
            if (hashes.count(m_index.hashOf(file)) > 0)
                return file;
        for (std::string const & hash : hashes)
            if (auto const files = m_index.withHash(hash); !files.empty())
                return files.front();
        throw Failure(name + (named.empty() ? ": no file of this name or with its SHA-256 was found"
                                            : ": " + named.front() + " has another SHA-256, and no other file has it"));
    }

    FileIndex & m_index;
    KnownHashes const & m_hashes;
};

/// The path by which the archive or item refers to a file.
std::string pathTo(std::string const & found, std::string const & file, bool isItem)
{
    fs::path const target = fs::absolute(found).lexically_normal();
    if (!isItem)
        return target.native();
    fs::path const folder = fs::absolute(file).lexically_normal().parent_path();
    fs::path const relative = target.lexically_relative(folder);
    bool const isInside = !relative.empty() && *relative.begin() != "..";
    return (isInside ? relative : target).native();
}

} // namespace

FileIndex::FileIndex(std::vector<std::string> const & folders)
{
    for (std::string const & folder : folders) {
        std::error_code error;
        fs::recursive_directory_iterator entry(folder, error);
        for (; !error && entry != fs::recursive_directory_iterator(); entry.increment(error)) {
            std::error_code ignored;
            if (entry->is_regular_file(ignored))
                m_byName[entry->path().filename().native()].push_back(entry->path().native());
        }
        if (error)
            throw Failure(folder + ": " + error.message());
    }
    for (auto & [name, files] : m_byName)
        std::sort(files.begin(), files.end());
}

std::vector<std::string> const & FileIndex::named(std::string const & name) const
{
    static std::vector<std::string> const none;
    auto const found = m_byName.find(name);
    return found == m_byName.end() ? none : found->second;
}

std::vector<std::string> FileIndex::withHash(std::string const & hash)
{
    std::vector<std::string> found;
    for (auto const & [name, files] : m_byName)
        for (std::string const & file : files)
            if (hashOf(file) == hash)
                found.push_back(file);
    std::sort(found.begin(), found.end());
    return found;
}

std::string const & FileIndex::hashOf(std::string const & file)
{
    auto const [place, isNew] = m_hashes.emplace(file, std::string());
    if (isNew) {
        try {
            place->second = sha256(readFile(file));
        } catch (Failure const &) { // what cannot be read is not what is looked for
        }
    }
    return place->second;
}

KnownHashes readHashes(std::string const & file)
{
    std::string const text = readFile(file);
    KnownHashes hashes;
    try {
        std::size_t const start = text.find_first_not_of(" \t\r\n");
        if (start != text.npos && text[start] == '{') {
            json const manifest = Serialize::Json::parse(text);
            for (json const & entry : manifest.at("files"))
                hashes[nameIn(entry.at("path").get<std::string>())].insert(entry.at("sha256").get<std::string>());
            return hashes;
        }
        std::istringstream lines(text);
        std::size_t number = 0;
        for (std::string line; std::getline(lines, line);) {
            ++number;
            // Two blanks, or a blank and an asterisk, part hash and name.
            if (line.size() < hashDigits + 3 || !isHash(line.substr(0, hashDigits)))
                throw Failure("line " + std::to_string(number) + " is no SHA-256 with the name of a file");
            hashes[nameIn(line.substr(hashDigits + 2))].insert(line.substr(0, hashDigits));
        }
    } catch (std::exception const & error) {
        throw Failure(file + ": " + error.what());
    }
    return hashes;
}

KnownHashes hashesBeside(std::string const & file)
{
    fs::path folder = fs::absolute(file).lexically_normal().parent_path();
    for (;; folder = folder.parent_path()) {
        std::error_code ignored;
        if (fs::path const manifest = folder / packManifest; fs::is_regular_file(manifest, ignored))
            return readHashes(manifest.native());
        if (folder == folder.parent_path())
            return {};
    }
}

Relinked relinked(std::string_view bytes, std::string const & file, FileIndex & index, KnownHashes const & hashes)
{
    bool const isBinary = Effect::Archive::isBinary(bytes);
    bool const isInItem = !isBinary && isItem(bytes);
    inForm(bytes, isBinary ? Form::Binary : Form::Json); // refuses what cannot be read
    Document document = Document::read(bytes);
    Relinked result;
    Finder finder(index, hashes);
    for (Effect::Object * const effect : effectsIn(*document.effect())) {
        std::string const path = toBytes(effect->resourcePath);
        std::error_code ignored;
        if (path.empty() || fs::exists(resolved(path, file, isInItem), ignored))
            continue;
        try {
            std::string const after = pathTo(finder.find(nameIn(path)), file, isInItem);
            effect->resourcePath = fileName(after);
            result.links.push_back({path, after});
        } catch (Failure const & failure) {
            result.problems.emplace_back(failure.what());
        }
    }
    result.bytes = isBinary ? document.toBinary() : document.toJson();
    return result;
}

} // namespace Effect::Inspect
