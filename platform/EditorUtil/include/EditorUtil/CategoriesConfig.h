/// @file
/// Categories of collections.
#pragma once

#include <EditorModel/Collection.h>
#include <EditorUtil/Export.h>

#include <QString>

namespace EditorCollection {

/// The categories of the host's collections. Thread-safe.
class EDITORUTIL_EXPORT CategoriesConfig
{
public:
    CategoriesConfig() = delete;

    /// The kind and position of a category that an item adds to the collection: thematic, after the existing ones.
    static CategoryInfo thematicCategoryInfo(ICollection const * collection);

    /// The category of the user's own items in a collection; empty if there is none.
    /// Unless the host says otherwise, "Luts" alone has one, "category_user".
    static QString userCategory(QString const & collectionName);
    /// Sets that category for the whole process; an empty name removes it.
    static void setUserCategory(QString const & collectionName, QString const & category);
};

} // namespace EditorCollection
