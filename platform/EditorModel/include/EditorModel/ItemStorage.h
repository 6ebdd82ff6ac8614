/// @file
/// Where the items of the catalogue come from.
#pragma once

#include <functional>

#include <EditorModel/Collection.h>
#include <EditorModel/Export.h>
#include <EditorSerialization/ObjectStorage.h>

#include <QString>

namespace EditorCollection {

/// Receives one item. What was created while the item was read belongs to the storage beside the pointer: whoever
/// keeps the item first calls `releaseAll()` on that, which makes the payload the item's own.
using ItemCallback = std::function<void(serialize_ptr<IItem> &&)>;

/// Reads items and delivers them.
class EDITORMODEL_EXPORT IItemStorage
{
public:
    virtual ~IItemStorage();

    /// Has the items found at `path` read for the collection of that name, and returns without waiting for them.
    /// `callback` is called once for each item that could be read, on a thread that the storage chooses.
    virtual void loadItems(QString const & path, QString const & collectionName, ItemCallback callback) = 0;

    /// Drops what is still to be delivered to the collection of that name. No callback of its loads runs any more when
    /// this returns, except for one that makes this very call.
    virtual void dropLoads(QString const & collectionName) = 0;

protected:
    IItemStorage() = default;
    IItemStorage(IItemStorage const &) = default;
    IItemStorage & operator=(IItemStorage const &) = default;
};

/// A storage without items, for a host that wants the settings factory and no catalogue.
class EDITORMODEL_EXPORT NullItemStorage final : public IItemStorage
{
public:
    void loadItems(QString const & path, QString const & collectionName, ItemCallback callback) override;
    void dropLoads(QString const & collectionName) override;
};

} // namespace EditorCollection
