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

/// A new item of `effect`, which must not be null. The storage in the result owns the effect until `releaseAll()`, then
/// the item does, so it is deleted exactly once whether the result is kept or dropped.
/// @param file  what the item's `file()` returns
EDITORUTIL_EXPORT serialize_ptr<IItem> makeItem(
    std::unique_ptr<Effect::Object> effect, std::set<QString> categories = {}, std::string file = {});

} // namespace EditorCollection
