/// @file
/// File names as the system has them: bytes, in no particular encoding.
#pragma once

#include <string>

#include <inspect/Export.h>

#include <QString>

namespace Effect::Inspect {

/// Makes Qt, and with it the library, read file names as UTF-8 in every locale and keep the bytes that are none: a name
/// from `fileName` opens the file that it was made of. Called once, before any file name goes to Qt.
EFFECTS_INSPECT_API void keepFileNames();

/// A file name as Qt's classes and the library take it.
EFFECTS_INSPECT_API QString fileName(std::string const & bytes);

/// The bytes of a file name that Qt or the library made.
EFFECTS_INSPECT_API std::string toBytes(QString const & fileName);

} // namespace Effect::Inspect
