#include <EditorModel/Collection.h>

#include <algorithm>
#include <atomic>
#include <mutex>
#include <shared_mutex>
#include <stdexcept>

#include <EditorModel/CollectionProvider.h>

namespace EditorCollection {

namespace {

struct Registered
{
    std::shared_mutex mutex;
    std::vector<ICollection *> collections;
};

Registered & registered()
{
    static Registered registered;
    return registered;
}

std::atomic<IItemStorage *> storageOfHost{nullptr};

} // namespace

IItem::~IItem() = default;

std::string const & IItem::file() const
{
    static std::string const none;
    return none;
}

ICollection::~ICollection() = default;

ICollection * CollectionProvider::collection(QString const & name)
{
    std::shared_lock const lock(registered().mutex);
    auto const & collections = registered().collections;
    auto const found = std::find_if(
        collections.rbegin(), collections.rend(), [&](ICollection const * one) { return one->name() == name; });
    return found == collections.rend() ? nullptr : *found;
}

std::vector<ICollection *> CollectionProvider::collections()
{
    std::shared_lock const lock(registered().mutex);
    return registered().collections;
}

void CollectionProvider::registerCollection(ICollection & collection)
{
    std::unique_lock const lock(registered().mutex);
    registered().collections.push_back(&collection);
}

void CollectionProvider::unregisterCollection(ICollection const & collection)
{
    std::unique_lock const lock(registered().mutex);
    auto & collections = registered().collections;
    collections.erase(std::remove(collections.begin(), collections.end(), &collection), collections.end());
}

IItemStorage & CollectionProvider::itemStorage()
{
    IItemStorage * const storage = storageOfHost;
    if (!storage)
        throw std::logic_error("the host has set no item storage for the catalogue");
    return *storage;
}

IItemStorage * CollectionProvider::findItemStorage()
{
    return storageOfHost;
}

void CollectionProvider::setItemStorage(IItemStorage * storage)
{
    storageOfHost = storage;
}

} // namespace EditorCollection
