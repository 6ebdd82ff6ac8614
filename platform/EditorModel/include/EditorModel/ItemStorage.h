/// @file
/// Where the items of the catalogue come from.
#pragma once

#include <functional>
#include <memory>

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
    /// `callback` is called once for each item that could be read, on a thread that the storage chooses. A storage may
    /// skip the rest of a load once `isWanted` is false for its callback.
    virtual void loadItems(QString const & path, QString const & collectionName, ItemCallback callback) = 0;

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
};

/// The loads of one owner, which may go before the storages have delivered them. It refers to no storage: one may be
/// replaced or destroyed while its loads are here. All operations may be called from any thread.
class EDITORMODEL_EXPORT ItemLoads
{
public:
    ItemLoads();
    ~ItemLoads(); ///< drops the loads; must not run inside one of their callbacks
    ItemLoads(ItemLoads const &) = delete;
    ItemLoads & operator=(ItemLoads const &) = delete;

    /// Calls `storage.loadItems`, with a callback that calls `callback` until the load is dropped.
    void load(IItemStorage & storage, QString const & path, QString const & collectionName, ItemCallback callback);

    /// Drops the loads made so far. None of their callbacks runs any more when this returns, except for one that makes
    /// this very call. Later loads are carried out.
    void drop();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// Whether items are still delivered to this callback: false for one that `ItemLoads` gave to a storage and has dropped
/// since. Any thread may ask.
EDITORMODEL_EXPORT bool isWanted(ItemCallback const & callback);

} // namespace EditorCollection
