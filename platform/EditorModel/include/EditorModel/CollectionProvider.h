/// @file
/// The way to the catalogue.
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

    /// The collection of that name; null when there is none. It lives as long as its owner, which is usually the object
    /// with which the host brought the catalogue up.
    static ICollection * collection(QString const & name);
    /// Every collection, in the order of registration.
    static std::vector<ICollection *> collections();

    /// Makes a collection known under its name. Of two with one name the later one is found for as long as it is
    /// registered.
    static void registerCollection(ICollection & collection);
    /// Takes a registration back; without one, does nothing.
    static void unregisterCollection(ICollection const & collection);

    /// The storage that the host set. Throws `std::logic_error` when it has set none.
    static IItemStorage & itemStorage();
    /// The same, null when the host has set none.
    static IItemStorage * findItemStorage();
    /// Sets the storage, which the host keeps alive until it sets another one or null. Loads made before stay with the
    /// storage that they were made on.
    static void setItemStorage(IItemStorage * storage);
};

} // namespace EditorCollection
