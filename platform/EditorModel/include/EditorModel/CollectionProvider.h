/// @file
/// Access to the catalogue.
#pragma once

#include <vector>

#include <EditorModel/Collection.h>
#include <EditorModel/Export.h>
#include <EditorModel/ItemStorage.h>

#include <QString>

namespace EditorCollection {

/// The process's collections, and the storage that their items come from. All operations may be called from any thread.
class EDITORMODEL_EXPORT CollectionProvider
{
public:
    CollectionProvider() = delete;

    /// The collection of that name; null when there is none. Its owner keeps it alive, usually the
    /// `Effect::ContentProvider`.
    static ICollection * collection(QString const & name);
    /// Every collection, in the order of registration.
    static std::vector<ICollection *> collections();

    /// Registers a collection under its name. A later registration of the same name hides an earlier one while it
    /// lasts.
    static void registerCollection(ICollection & collection);
    /// Removes a registration, if there is one.
    static void unregisterCollection(ICollection const & collection);

    /// The storage that the host set. Throws `std::logic_error` when it has set none.
    static IItemStorage & itemStorage();
    /// The same, null when the host has set none.
    static IItemStorage * findItemStorage();
    /// Sets the storage, which the host keeps alive until it sets another one or null. Loads that were started stay
    /// with their storage.
    static void setItemStorage(IItemStorage * storage);
};

} // namespace EditorCollection
