/// @file
/// Owning collections.
#pragma once

#include <memory>

#include <EditorModel/Collection.h>
#include <EditorModel/ItemStorage.h>
#include <EditorUtil/Export.h>

#include <QString>

namespace EditorCollection {

/// Owns collections and registers them with `CollectionProvider` for its lifetime. Thread-safe.
class EDITORUTIL_EXPORT CollectionHolder
{
public:
    CollectionHolder();
    /// Drops the holder's loads before it destroys the collections, so that callbacks may use them. Must not run inside
    /// such a callback.
    virtual ~CollectionHolder();
    CollectionHolder(CollectionHolder const &) = delete;
    CollectionHolder & operator=(CollectionHolder const &) = delete;

    /// Creates an empty collection, unless this holder has one of that name.
    void registerCollection(QString const & name);

    /// This holder's collection of that name; null when it has none.
    ICollection * collection(QString const & name) const;

    /// Loads items from the host's storage, see `IItemStorage::loadItems`. Throws
    /// `std::logic_error` when the host has set no storage.
    /// @param callback  not called any more once the holder has dropped its loads
    void loadItems(QString const & path, QString const & collectionName, ItemCallback callback);

    /// Drops the loads made by this holder and no others, on whatever storage they were made. No callback runs any
    /// more when this returns, except for one that makes this very call. A derived class whose callbacks use its own
    /// members calls this first in its destructor.
    void dropLoads();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

} // namespace EditorCollection
