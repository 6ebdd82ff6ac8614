#include <inspect/Pack.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <set>

#include <EditorModel/EffectArchive.h>
#include <EditorModel/EffectDocument.h>
#include <EditorSerialization/JsonArchive.h>
#include <EditorSettings/Settings.h>
#include <inspect/Failure.h>
#include <inspect/FileGroup.h>
#include <inspect/FileNames.h>
#include <inspect/Files.h>
#include <inspect/Forms.h>
#include <inspect/Hash.h>
#include <inspect/References.h>
#include <inspect/Targets.h>
#include <inspect/Text.h>
#include <inspect/ZipFile.h>

#include <QString>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

using Effect::Archive::Document;
using nlohmann::json;
namespace fs = std::filesystem;

namespace {

constexpr char const * formatName = "effects";
constexpr int formatVersion = 1;
constexpr char const * trackFolder = "Tracks";
constexpr char const * resourceFolder = "resources"; ///< beside a preset, of files that are elsewhere
constexpr std::size_t largestFile = std::size_t(256) << 20;
constexpr std::size_t largestPack = std::size_t(4) << 30;
constexpr std::size_t largestManifest = std::size_t(64) << 20;

/// Whether a path stays below the folder that it is relative to, in any system's eyes.
bool staysInside(std::string const & path)
{
    fs::path const given(path);
    if (path.empty() || given.is_absolute() || path.find("//") != path.npos ||
        path.find_first_of(std::string_view("\\\0", 2)) != path.npos)
        return false;
    return std::none_of(
        given.begin(), given.end(), [](fs::path const & step) { return step.empty() || step == "." || step == ".."; });
}

struct Content
{
    std::string role;
    std::string bytes;
};

/// Puts a pack together.
class Packer
{
public:
    void addPreset(Target const & target)
    {
        m_place = fs::path(target.relative).parent_path();
        m_file = target.file;
        std::string const bytes = readFile(target.file);
        bool const isBinary = Effect::Archive::isBinary(bytes);
        m_isItem = !isBinary && isItem(bytes);
        inForm(bytes, isBinary ? Form::Binary : Form::Json); // refuses what cannot be read
        Document document = Document::read(bytes);
        Effect::Object * const root = document.effect();
        if (!root)
            throw Failure("there is no effect in this file");
        for (Effect::Object * const effect : effectsIn(*root))
            if (!effect->resourcePath.isEmpty())
                effect->resourcePath = fileName(addResource(toBytes(effect->resourcePath)));
        for (std::string const & track : tracksOf(*root))
            addTrack(track);
        add(target.relative, {"preset", isBinary ? document.toBinary() : document.toJson()});
    }

    std::map<std::string, Content> const & files() const { return m_files; }

private:
    /// @return whether it is in the pack now; not when another file is there
    bool tryAdd(std::string const & path, Content content)
    {
        if (path == packManifest)
            return false;
        auto const [place, isNew] = m_files.emplace(path, content);
        return isNew || place->second.bytes == content.bytes;
    }

    void add(std::string const & path, Content content)
    {
        if (QString::fromStdString(path).toStdString() != path)
            throw Failure(path + ": the name is not UTF-8");
        if (!tryAdd(path, std::move(content)))
            throw Failure("there is another file " + path + " in the pack already");
    }

    /// @return the path by which the preset refers to it
    std::string addResource(std::string const & path)
    {
        std::string const source = resolved(path, m_file, m_isItem);
        Content const content{"resource", contentOf(source)};
        fs::path reference = fs::path(path).lexically_normal();
        if (!m_isItem || !staysInside(reference.native())) {
            fs::path const name = fs::path(source).filename();
            reference = fs::path(resourceFolder) / name;
            // Two files of one name are two files.
            for (int number = 2; isTaken(m_place / reference, content); ++number)
                reference = fs::path(resourceFolder) /
                            (name.stem().native() + '-' + std::to_string(number) + name.extension().native());
        }
        add((m_place / reference).native(), content);
        for (std::string const & companion : companionsOf(source)) {
            fs::path const relative = fs::path(companion).lexically_relative(fs::path(source).parent_path());
            if (!staysInside(relative.native()))
                throw Failure(source + ": imports " + companion + ", which is not below its own folder");
            add((m_place / reference.parent_path() / relative).native(), {"resource", contentOf(companion)});
        }
        return reference.native();
    }

    bool isTaken(fs::path const & path, Content const & content) const
    {
        auto const found = m_files.find(path.native());
        return found != m_files.end() && found->second.bytes != content.bytes;
    }

    void addTrack(std::string const & track)
    {
        std::string const name = track + ".track.json";
        if (!staysInside(name) || name.find('/') != name.npos)
            throw Failure("the motion track " + track + " is no file in the user's folder");
        fs::path const source = fs::path(toBytes(Settings::userTracksPath())) / name;
        add((fs::path(trackFolder) / name).native(), {"track", contentOf(source.native())});
    }

    static std::string contentOf(std::string const & source)
    {
        std::error_code ignored;
        if (fs::exists(source, ignored) && !fs::is_regular_file(source, ignored))
            throw Failure(source + ": is not a regular file");
        return readFile(source);
    }

    std::map<std::string, Content> m_files;
    std::string m_file; ///< the preset that is being added
    bool m_isItem = false;
    fs::path m_place; ///< its folder in the pack
};

/// What a manifest lists, by path.
using Listed = std::map<std::string, json>;

Listed listedIn(std::string const & text)
{
    json const manifest = Serialize::Json::parse(text);
    if (!manifest.is_object() || manifest.value("format", json()) != formatName)
        throw Failure("this is no pack");
    if (manifest.value("formatVersion", json()) != formatVersion)
        throw Failure("this pack is of another version than " + std::to_string(formatVersion));
    Listed listed;
    json const files = manifest.value("files", json());
    for (json const & file : files.is_array() ? files : json::array()) {
        auto const isText = [&file](char const * key) { return file.contains(key) && file[key].is_string(); };
        if (!file.is_object() || !isText("path") || !isText("role") || !isText("sha256"))
            throw Failure(std::string(packManifest) + ": an element of \"files\" has not all of its keys");
        std::string const path = file["path"];
        if (!staysInside(path))
            throw Failure(path + ": leads out of the folder");
        if (path == packManifest || !listed.emplace(path, file).second)
            throw Failure(path + ": is in the list twice");
    }
    return listed;
}

/// An archive says where a file is by its whole path.
std::string withAbsolutePaths(
    std::string const & bytes, fs::path const & folder, Listed const & listed, fs::path const & place)
{
    Document document = Document::read(bytes);
    if (!document.effect())
        return bytes;
    for (Effect::Object * const effect : effectsIn(*document.effect())) {
        fs::path const path = place / toBytes(effect->resourcePath);
        if (!effect->resourcePath.isEmpty() && listed.count(path.lexically_normal().native()) > 0)
            effect->resourcePath = fileName((folder / path).lexically_normal().native());
    }
    return Effect::Archive::isBinary(bytes) ? document.toBinary() : document.toJson();
}

/// The files of a pack, by path, once all of them are what the manifest says.
std::map<std::string, std::string> checkedFiles(std::string const & pack, Listed & listed)
{
    std::map<std::string, std::string> files;
    std::size_t size = 0;
    bool hasManifest = false;
    forEachZipped(pack, largestFile, [&](std::string const & name, std::string && bytes) {
        if (!hasManifest) {
            if (name != packManifest || bytes.size() > largestManifest)
                throw Failure("this is no pack");
            listed = listedIn(bytes);
            files.emplace(name, std::move(bytes));
            hasManifest = true;
            return;
        }
        if (!staysInside(name))
            throw Failure(name + ": leads out of the folder");
        auto const entry = listed.find(name);
        if (entry == listed.end())
            throw Failure(name + ": is not in the list of the pack");
        if (sha256(bytes) != entry->second["sha256"])
            throw Failure(name + ": has another SHA-256 than the list of the pack says");
        size += bytes.size();
        if (size > largestPack)
            throw Failure("the files are larger than " + std::to_string(largestPack >> 30) + " GiB together");
        if (!files.emplace(name, std::move(bytes)).second)
            throw Failure(name + ": is in the pack twice");
    });
    if (!hasManifest)
        throw Failure("this is no pack");
    for (auto const & [path, entry] : listed)
        if (files.count(path) == 0)
            throw Failure(path + ": is missing from the pack");
    return files;
}

} // namespace

bool isLicence(std::string_view text)
{
    return !text.empty() && std::all_of(text.begin(), text.end(), [](char letter) {
        return (letter >= 'a' && letter <= 'z') || (letter >= 'A' && letter <= 'Z') ||
               (letter >= '0' && letter <= '9') || std::string_view(" ().+-:").find(letter) != std::string_view::npos;
    });
}

Packed pack(std::vector<std::string> const & arguments, PackInfo const & info)
{
    Packed packed;
    std::vector<Target> presets = targets(arguments, effectSuffixes);
    refuseCollisions(presets);
    Packer packer;
    for (Target const & preset : presets) {
        try {
            if (!preset.error.empty())
                packed.problems.push_back(preset.error);
            else
                packer.addPreset(preset);
        } catch (std::exception const & error) {
            packed.problems.push_back(std::string(error.what()).rfind(preset.file + ": ", 0) == 0
                                          ? error.what()
                                          : preset.file + ": " + error.what());
        }
    }
    if (!packed.problems.empty())
        return packed;
    json files = json::array();
    std::vector<std::pair<std::string, std::string>> entries(1);
    for (auto const & [path, content] : packer.files()) {
        packed.files.push_back(path);
        files.push_back({{"path", path}, {"role", content.role}, {"size", content.bytes.size()},
            {"sha256", sha256(content.bytes)}});
        entries.emplace_back(path, content.bytes);
    }
    json const manifest{{"format", formatName}, {"formatVersion", formatVersion}, {"licence", info.licence},
        {"author", info.author}, {"version", info.version}, {"files", std::move(files)}};
    entries.front() = {packManifest, toText(manifest, 2) + '\n'};
    packed.bytes = zipped(entries);
    return packed;
}

std::vector<std::string> unpack(std::string const & pack, std::string const & folder)
{
    fs::path const place = fs::absolute(folder).lexically_normal();
    try {
        Listed listed;
        std::map<std::string, std::string> files = checkedFiles(pack, listed);
        std::error_code ignored;
        for (auto const & [path, bytes] : files)
            if (fs::exists(fs::symlink_status(place / path, ignored)))
                throw Failure(path + ": is in " + folder + " already");
        FileGroup group;
        std::vector<std::string> paths;
        for (auto & [path, bytes] : files) {
            bool const isArchive = path != packManifest && listed[path]["role"] == "preset" &&
                                   (Effect::Archive::isBinary(bytes) || !isItem(bytes));
            if (isArchive)
                bytes = withAbsolutePaths(bytes, place, listed, fs::path(path).parent_path());
            group.add((place / path).native(), bytes);
            paths.push_back(path);
        }
        if (auto const problems = group.commit(); !problems.empty())
            throw Failure(problems.front());
        return paths;
    } catch (std::exception const & error) {
        throw Failure(pack + ": " + error.what());
    }
}

} // namespace Effect::Inspect
