/// @file
/// Items for tests that need a catalogue.
#pragma once

#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include <EditorModel/CollectionProvider.h>
#include <EditorUtil/Item.h>

#include <QString>

namespace Testing {

/// The process's item storage while it lives: it records the requests and delivers the given items.
class ManualStorage final : public EditorCollection::IItemStorage
{
public:
    struct Load
    {
        QString path;
        QString collection;
        EditorCollection::ItemCallback callback;
    };

    ManualStorage() { EditorCollection::CollectionProvider::setItemStorage(this); }
    ~ManualStorage() override { EditorCollection::CollectionProvider::setItemStorage(nullptr); }

    std::vector<Load> loads;
    std::function<void(Load const &)> onLoad; ///< called for each load as it is asked for

    void loadItems(
        QString const & path, QString const & collectionName, EditorCollection::ItemCallback callback) override
    {
        loads.push_back({path, collectionName, std::move(callback)});
        if (onLoad)
            onLoad(loads.back());
    }

    /// Delivers an item that carries the effect, to the load of that index.
    void deliver(std::size_t load, std::unique_ptr<Effect::Object> effect, std::set<QString> categories = {}) const
    {
        loads.at(load).callback(EditorCollection::makeItem(std::move(effect), std::move(categories)));
    }
};

} // namespace Testing
