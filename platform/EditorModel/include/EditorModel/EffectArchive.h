/// @file
/// Archives of one effect, written and read through its base pointer with its dynamic class.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include <EditorModel/EffectObject.h>
#include <EditorModel/Export.h>

namespace Effect::Archive {

/// A JSON document in UTF-8. Throws `boost::archive::archive_exception` for a class that is not registered.
EDITORMODEL_EXPORT std::string toJson(Object const & effect);

/// Throws an exception that says what was wrong and where in the document. Never null.
EDITORMODEL_EXPORT std::unique_ptr<Object> fromJson(std::string_view document);

/// Whether the bytes begin like a binary archive; otherwise they can only be JSON.
EDITORMODEL_EXPORT bool isBinary(std::string_view bytes);

/// A binary archive behind a header with its length and its checksum. Throws `boost::archive::archive_exception` for a
/// class that is not registered.
EDITORMODEL_EXPORT std::string toBinary(Object const & effect);

/// Reads an archive with or without the header. Throws an exception that says what was wrong and at which byte. Never
/// null.
EDITORMODEL_EXPORT std::unique_ptr<Object> fromBinary(std::string_view bytes);

} // namespace Effect::Archive
