/// @file
/// Items made of an effect.
#pragma once

#include <memory>
#include <set>
#include <string>

#include <EditorModel/Collection.h>
#include <EditorSerialization/ObjectStorage.h>
#include <EditorUtil/Export.h>

#include <QString>

namespace EditorCollection {

/// A new item that carries `effect`, which must not be null. The effect belongs to the storage beside the item until
/// `releaseAll()`, and to the item afterwards; so whether the result is kept or dropped, it is deleted once.
/// @param file  what the item's `file()` returns
EDITORUTIL_EXPORT serialize_ptr<IItem> makeItem(
    std::unique_ptr<Effect::Object> effect, std::set<QString> categories = {}, std::string file = {});

} // namespace EditorCollection
