/// @file
/// The files that an effect refers to.
#pragma once

#include <string>
#include <vector>

#include <EditorModel/EffectObject.h>
#include <inspect/Export.h>

namespace Effect::Inspect {

/// The effect itself, and those that it holds, at any depth, in the order of the archive.
EFFECTS_INSPECT_API std::vector<Effect::Object *> effectsIn(Effect::Object & effect);

/// The motion tracks that the effect and those that it holds follow: their identifiers, sorted, each once.
EFFECTS_INSPECT_API std::vector<std::string> tracksOf(Effect::Object const & effect);

/// The path that a file's effect refers to, as bytes of a file name: relative ones are below the folder of an item, and
/// below the working folder for an archive.
/// @param file    the archive or item
/// @param isItem  which of them
EFFECTS_INSPECT_API std::string resolved(std::string const & path, std::string const & file, bool isItem);

/// The files that a shader file uses: its vertex shader, and the pictures that it imports. Nothing for what is no
/// shader that can be read.
EFFECTS_INSPECT_API std::vector<std::string> companionsOf(std::string const & shader);

} // namespace Effect::Inspect
