/// @file
/// Changes of single parameters as they are written on a command line.
#pragma once

#include <string>

#include <EditorSerialization/ISerializable.h>
#include <inspect/Export.h>

namespace Effect::Inspect {

/// Sets a parameter of an object of one of the library's classes, or throws a `Failure` that says what was wrong and
/// what is allowed, and leaves the object as it is.
///
/// @param key    of the archive, the class's own ones before its bases', or a JSON pointer into the archive document,
///               which also leads into records and to the elements of lists: "/concealFrames/0/method"
/// @param value  JSON, or the name or label of a choice in either case, or "#rrggbb" or "#aarrggbb" for a colour; any
///               other text that is no JSON is a text
EFFECTS_INSPECT_API void setParameter(
    Serialize::ISerializable & object, std::string const & key, std::string const & value);

} // namespace Effect::Inspect
