/// @file
/// The user's own binary resources.
#pragma once

#include <EditorModel/Export.h>

#include <QString>

namespace UserBlob {

/// Makes a file in the user's folder of blobs known to the resource registry as a blob. Its name is its path below that
/// folder, as given: "sub/deep.cube" for `<user root>/Blobs/sub/deep.cube`. A name that is registered already keeps its
/// file, so that no file of the user's takes the place of a stock one.
///
/// Returns whether the file is the one registered under its name afterwards. False, with one warning in the log, for a
/// path that leads out of the folder, for what is no readable regular file, and for a name that belongs to another
/// file.
EDITORMODEL_EXPORT bool loadBlob(QString const & path);

} // namespace UserBlob
