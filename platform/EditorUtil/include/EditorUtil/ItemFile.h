/// @file
/// Items as files.
///
/// An item is a file `NAME.effect.json`:
///
///     {"categories": ["category_blur"], "effect": {...}}
///
/// `effect` is the archive document of one effect, `categories` a list of texts that may be missing; other keys are
/// skipped. The effect's `resourcePath`, when it is relative, is so to the file's folder: it is absolute in the item.
/// So are those of the effects that it holds.
#pragma once

#include <cstdint>
#include <set>
#include <string>
#include <string_view>

#include <EditorModel/Collection.h>
#include <EditorSerialization/ObjectStorage.h>
#include <EditorUtil/Export.h>

#include <QString>

namespace EditorCollection {

inline constexpr std::string_view itemFileSuffix = ".effect.json";      ///< of every item file's name
inline constexpr std::int64_t maxItemFileSize = std::int64_t(16) << 20; ///< bytes

/// Reads the item in a file, which must be a regular one of at most `maxItemFileSize` bytes. Throws an exception
/// derived from `std::exception` that says what is wrong and where in the file, though not in which file.
/// @param folder    absolute, in UTF-8, as file names are
/// @param fileName  the file's, in the folder
EDITORUTIL_EXPORT serialize_ptr<IItem> readItem(std::string const & folder, std::string const & fileName);

/// Reads an item from the `text` of its file, as `readItem` does.
/// @param file  what the item's `file()` returns
EDITORUTIL_EXPORT serialize_ptr<IItem> parseItem(
    std::string_view text, std::string const & folder, std::string file = {});

/// Writes an item to the file of that name in a folder, which is made when it is missing: whole or not at all. A
/// resource path that leads into the folder is written relative to it. Throws `std::runtime_error` with the path
/// and the reason.
/// @param name  the file's without the suffix; not empty, without a slash or a NUL
EDITORUTIL_EXPORT void storeItem(QString const & folder, QString const & name, Effect::Object const & effect,
    std::set<QString> const & categories = {});

} // namespace EditorCollection
