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

/// Receives one item. Objects created while reading belong to the storage in the pointer: call
/// `releaseAll()` on it before you keep the item, which then owns its payload.
using ItemCallback = std::function<void(serialize_ptr<IItem> &&)>;

/// Reads items and delivers them.
class EDITORMODEL_EXPORT IItemStorage
{
public:
    virtual ~IItemStorage();

    /// Starts to read the items at `path` for the collection of that name, and returns without waiting.
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

/// The loads of one owner, which may be destroyed before they are delivered. It keeps no reference to a storage, so a
/// storage may be replaced or destroyed first. Thread-safe.
class EDITORMODEL_EXPORT ItemLoads
{
public:
    ItemLoads();
    ~ItemLoads(); ///< drops the loads; must not run inside one of their callbacks
    ItemLoads(ItemLoads const &) = delete;
    ItemLoads & operator=(ItemLoads const &) = delete;

    /// Calls `storage.loadItems`, with a callback that calls `callback` until the load is dropped.
    void load(IItemStorage & storage, QString const & path, QString const & collectionName, ItemCallback callback);

    /// Drops the loads started so far. When this returns, none of their callbacks runs any more, except the caller
    /// itself if it is one. Later loads are carried out.
    void drop();

private:
    struct State;
    std::unique_ptr<State> m_state;
};

/// Whether items are still delivered to this callback: false once `ItemLoads` has dropped the load. Thread-safe.
EDITORMODEL_EXPORT bool isWanted(ItemCallback const & callback);

} // namespace EditorCollection
