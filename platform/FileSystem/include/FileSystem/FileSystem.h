/// @file
/// Paths and files, as the editor sees them.
#pragma once

#include <initializer_list>

#include <FileSystem/Export.h>

#include <QString>

namespace FS {

/// The absolute, cleaned form of `path`, relative paths being below the working folder. An empty path stays empty.
FILESYSTEM_EXPORT QString absolutePath(QString const & path);

/// Whether a file or folder stands at `path`. An empty path does not exist.
FILESYSTEM_EXPORT bool exists(QString const & path);

/// Joins the non-empty `components` with single slashes, then appends `suffix`, such as ".png", as it is.
FILESYSTEM_EXPORT QString joinPath(std::initializer_list<QString> components, QString const & suffix);

} // namespace FS
