/// @file
/// Loads effects that are written in the Interactive Shader Format (ISF): a GLSL fragment shader that starts with a
/// comment in which a JSON object describes the inputs, the rendering passes and the imported images.
///
/// The format: https://docs.isf.video/ref_json, versions 1 and 2. All functions may be called from any thread.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <EditorExternalResourses/Export.h>
#include <EditorExternalResourses/ShaderISFKeys.h>

#include <QString>

namespace External::ShaderISF {

/// An ISF effect for the render engine: three texts in UTF-8 with "\nAn ISF effect for the render engine: three
/// texts in UTF-8 with "
struct ISFSettings
{
    /// The head of the file as a JSON document in the normal form that this library's README specifies.
    std::string config;
    /// The fragment shader without its head comment, which leaves its line breaks behind: the line numbers of a
    /// compiler's messages are those of the file.
    std::string pixelShader;
    /// Empty if the effect has none, so that the engine uses its own.
    std::string vertexShader;
};

/// Largest size of a shader file, in bytes.
inline constexpr std::size_t maximumFileSize = std::size_t(4) << 20;

/// Largest size of the JSON object in a head, in bytes. Reading takes a few hundred times
/// that size in memory.
inline constexpr std::size_t maximumHeadSize = std::size_t(256) << 10;

/// Deepest nesting of arrays and objects in a head.
inline constexpr int maximumDepth = 32;

/// Loads the effect from `absolutePath` as loadFile() does; an empty path means the file registered
/// under `name` in the resource registry, a folder the shader of that `name` in it.
///
/// Never returns null and never throws: on failure it logs one line at severity WARNING with the file and
/// the reason, and returns an object with three empty texts.
EDITOREXTERNALRESOURSES_EXPORT std::shared_ptr<ISFSettings> loadEffectISF(
    QString const & name, QString const & absolutePath);

/// Loads the effect whose fragment shader is the file `path`. The suffix may be left out (".fs", ".frag" and ".isf" are
/// tried, in this order), and the vertex shader is the file of the same base name with ".vs" or ".vert", if there is
/// one. The paths of imports become absolute, relative ones being below the shader's folder.
/// @throws std::runtime_error naming the file and saying why
EDITOREXTERNALRESOURSES_EXPORT ISFSettings loadFile(QString const & path);

/// Reads the texts of a fragment shader and of its vertex shader, in UTF-8, or in UTF-16 or UTF-32 behind a byte order
/// mark. The time is proportional to their size. The paths of imports stay as they are written.
/// @throws std::runtime_error saying what is wrong and where: by line and column, or by the path of the value within
/// the head, such as "INPUTS[2].DEFAULT".
EDITOREXTERNALRESOURSES_EXPORT ISFSettings parse(std::string_view fragmentShader, std::string_view vertexShader = {});

} // namespace External::ShaderISF
