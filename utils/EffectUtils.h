/// @file
/// What ties an effect to the host: the files that it depends on, and the tool that sets it up.
#pragma once

#include <EditorModel/EffectObject.h>
#include <EditorModel/Tool.h>
#include <effects/Export.h>

namespace Effect::Utils {

/// Makes the file at the effect's resource path known to the resource registry under the effect's resource identifier,
/// with the length of the effect's range or none. Does nothing without a path or a file, and for an identifier that is
/// registered already: the first registration wins.
EFFECTS_API void registerEffectResource(Object const & effect);

/// Takes the registration of the effect's resource identifier back, whether the file still exists or not. Does nothing
/// without a path, and for an identifier that is not registered.
EFFECTS_API void unregisterEffectResource(Object const & effect);

/// The tool that sets the effect up: by its identifier, else by its group, else the audio effects' when the collection
/// "EffectsAudio" has an item with its tag.
EFFECTS_API Tool::Type findCorrespondingTool(Object const & effect);

} // namespace Effect::Utils
