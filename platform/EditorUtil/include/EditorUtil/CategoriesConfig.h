/// @file
/// How collections are divided into categories.
#pragma once

#include <EditorModel/Collection.h>
#include <EditorUtil/Export.h>

#include <QString>

namespace EditorCollection {

/// The categories that a host gives its collections. Any thread may ask.
class EDITORUTIL_EXPORT CategoriesConfig
{
public:
    CategoriesConfig() = delete;

    /// What a category that an item brings with it is to be in that collection: a theme, behind those that are there.
    static CategoryInfo thematicCategoryInfo(ICollection const * collection);

    /// The name of the category that a collection files the user's own items under; empty when it has none.
    /// Unless the host says otherwise, "Luts" alone has one, "category_user".
    static QString userCategory(QString const & collectionName);
    /// Sets that name for the whole process; an empty one leaves the collection without.
    static void setUserCategory(QString const & collectionName, QString const & category);
};

} // namespace EditorCollection
