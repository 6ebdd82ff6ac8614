/// @file
/// Paths and files, as the editor sees them.
#pragma once

#include <initializer_list>
#include <string_view>

#include <FileSystem/Export.h>

#include <QString>

namespace FS {

/// The absolute, cleaned form of `path`, relative paths being below the working folder. An empty path stays empty.
FILESYSTEM_EXPORT QString absolutePath(QString const & path);

/// Whether a file or folder exists at `path`. An empty path does not exist.
FILESYSTEM_EXPORT bool exists(QString const & path);

/// Joins the non-empty `components` with single slashes, then appends `suffix`, such as ".png", as it is.
FILESYSTEM_EXPORT QString joinPath(std::initializer_list<QString> components, QString const & suffix);

/// Saves a file whole or not at all: whatever interrupts it, the path leads to the old file or to the new one. The
/// bytes are on the disk before the new file replaces the old one. Permissions are kept, and a symbolic link stays one.
/// A process that is killed at the wrong moment leaves a file `path.XXXXXX`, with six random letters, that may be
/// deleted.
/// @param path   of a regular file, or of none yet, in a folder that exists
/// @param error  unless it is null, set to the reason where the result is false; the old file is unchanged then
FILESYSTEM_EXPORT bool saveFile(QString const & path, std::string_view bytes, QString * error = nullptr);

} // namespace FS
