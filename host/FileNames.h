/// @file
/// File names as the system has them: bytes, in no particular encoding.
#pragma once

#include <string>

#include <QString>

namespace Host {

/// Makes Qt, and with it the library, read file names as UTF-8 in every locale and keep the bytes that are none: a name
/// from `fileName` opens the file that it was made of. Called once, before any file name goes to Qt.
void keepFileNames();

/// A file name as Qt's classes and the library take it.
QString fileName(std::string const & bytes);

/// The bytes of a file name that Qt or the library made.
std::string toBytes(QString const & fileName);

} // namespace Host
