#include <inspect/References.h>

#include <filesystem>
#include <set>
#include <stdexcept>

#include <EditorExternalResourses/ShaderISF.h>
#include <effects/Schema.h>
#include <inspect/FileNames.h>
#include <inspect/Walk.h>

#include <nlohmann/json.hpp>

namespace Effect::Inspect {

namespace fs = std::filesystem;

namespace {

constexpr char const * trackKey = "trackingId";

} // namespace

std::vector<Effect::Object *> effectsIn(Effect::Object & effect)
{
    std::vector<Effect::Object *> effects;
    // They are parts of an effect that may be changed.
    walkEffects(effect, {}, [&](Effect::Object const & found, std::string const &) {
        effects.push_back(const_cast<Effect::Object *>(&found));
    });
    return effects;
}

std::vector<std::string> tracksOf(Effect::Object const & effect)
{
    std::set<std::string> tracks;
    walk(effect, {}, [&](Serialize::ISerializable const & object, Schema::Parameter const & parameter, auto const &) {
        nlohmann::json const track = parameter.key == trackKey ? value(object, parameter) : nlohmann::json();
        if (track.is_string() && !track.get_ref<std::string const &>().empty())
            tracks.insert(track.get<std::string>());
    });
    return {tracks.begin(), tracks.end()};
}

std::string resolved(std::string const & path, std::string const & file, bool isItem)
{
    fs::path const given(path);
    if (path.empty() || given.is_absolute() || !isItem)
        return path;
    return (fs::path(file).parent_path() / given).lexically_normal().native();
}

std::vector<std::string> companionsOf(std::string const & shader)
{
    std::vector<std::string> files;
    External::ShaderISF::ISFSettings settings;
    try {
        settings = External::ShaderISF::loadFile(fileName(shader));
    } catch (std::runtime_error const &) {
        return files;
    }
    for (char const * const suffix : {".vs", ".vert"}) {
        fs::path const vertexShader = fs::path(shader).replace_extension(suffix);
        std::error_code ignored;
        if (!settings.vertexShader.empty() && fs::is_regular_file(vertexShader, ignored)) {
            files.push_back(vertexShader.native());
            break;
        }
    }
    nlohmann::json const config = nlohmann::json::parse(settings.config, nullptr, false);
    if (auto const imported = config.find("IMPORTED"); imported != config.end())
        for (nlohmann::json const & import : *imported)
            if (import.contains("PATH") && import["PATH"].is_string())
                files.push_back(import["PATH"].get<std::string>());
    return files;
}

} // namespace Effect::Inspect
