/// @file
/// Files and effects in them.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <EditorModel/EffectObject.h>

namespace Host {

/// The bytes of a file, or of standard input for "-". Throws a `Failure` that names the file and says why.
std::string readFile(std::string const & path);

/// Writes a file whole or not at all: a crash leaves the old one or the new one. "-" is standard output.
void writeFile(std::string const & path, std::string_view bytes);

/// The effect in a file of either form, told apart by its first bytes. Throws a `Failure` that names the file.
std::unique_ptr<Effect::Object> readEffect(std::string const & path);

} // namespace Host
