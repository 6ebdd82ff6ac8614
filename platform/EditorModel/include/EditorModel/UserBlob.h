/// @file
/// The user's own binary resources.
#pragma once

#include <EditorModel/Export.h>

#include <QString>

namespace UserBlob {

/// Makes the file known to the resource registry as a blob under its file name. False when it cannot be read.
EDITORMODEL_EXPORT bool loadBlob(QString const & path);

} // namespace UserBlob
