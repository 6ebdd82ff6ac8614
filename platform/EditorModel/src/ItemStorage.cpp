#include <EditorModel/ItemStorage.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <utility>
#include <vector>

namespace EditorCollection {

namespace {

/// A callback that its owner can take back while a storage has it.
class Delivery
{
public:
    explicit Delivery(ItemCallback callback)
        : m_callback(std::move(callback))
    {}

    bool isDropped() const { return m_isDropped; }

    void deliver(serialize_ptr<IItem> && item)
    {
        if (!enter())
            return;
        struct Leave
        {
            Delivery & delivery;
            ~Leave() { delivery.leave(); }
        } const leave{*this};
        m_callback(std::move(item));
    }

    /// The callback goes here and not with the storage's copy: it may refer to what its owner takes down next.
    void drop()
    {
        ItemCallback dropped; // outlives the lock: a callback may do anything when it goes
        std::unique_lock lock(m_mutex);
        m_isDropped = true;
        auto const self = std::this_thread::get_id();
        m_left.wait(lock, [&] {
            return std::all_of(m_running.begin(), m_running.end(), [&](std::thread::id id) { return id == self; });
        });
        if (m_running.empty())
            dropped.swap(m_callback);
    }

private:
    bool enter()
    {
        std::lock_guard const lock(m_mutex);
        if (m_isDropped)
            return false;
        m_running.push_back(std::this_thread::get_id());
        return true;
    }

    void leave()
    {
        std::lock_guard const lock(m_mutex);
        m_running.erase(std::find(m_running.begin(), m_running.end(), std::this_thread::get_id()));
        if (m_isDropped)
            m_left.notify_all();
    }

    std::mutex m_mutex;
    std::condition_variable m_left;
    std::vector<std::thread::id> m_running; ///< an entry for each call of the callback
    std::atomic<bool> m_isDropped{false};
    ItemCallback m_callback;
};

/// What the storage is given. The class is what `isWanted` recognises.
struct DeliveryCallback
{
    std::shared_ptr<Delivery> delivery;

    void operator()(serialize_ptr<IItem> && item) const { delivery->deliver(std::move(item)); }
};

} // namespace

IItemStorage::~IItemStorage() = default;

void NullItemStorage::loadItems(QString const &, QString const &, ItemCallback) {}

struct ItemLoads::State
{
    std::mutex mutex;
    std::vector<std::weak_ptr<Delivery>> deliveries; ///< expired when the storage is done with the load
};

ItemLoads::ItemLoads()
    : m_state(std::make_unique<State>())
{}

ItemLoads::~ItemLoads()
{
    drop();
}

void ItemLoads::load(
    IItemStorage & storage, QString const & path, QString const & collectionName, ItemCallback callback)
{
    auto delivery = std::make_shared<Delivery>(std::move(callback));
    {
        std::lock_guard const lock(m_state->mutex);
        auto & deliveries = m_state->deliveries;
        deliveries.erase(
            std::remove_if(deliveries.begin(), deliveries.end(), [](auto const & load) { return load.expired(); }),
            deliveries.end());
        deliveries.push_back(delivery);
    }
    storage.loadItems(path, collectionName, DeliveryCallback{std::move(delivery)});
}

void ItemLoads::drop()
{
    // They stay in the list, so that of two threads that drop neither returns before the callbacks have.
    std::vector<std::weak_ptr<Delivery>> deliveries;
    {
        std::lock_guard const lock(m_state->mutex);
        deliveries = m_state->deliveries;
    }
    for (auto const & delivery : deliveries)
        if (auto const dropped = delivery.lock())
            dropped->drop();
}

bool isWanted(ItemCallback const & callback)
{
    auto const * const delivered = callback.target<DeliveryCallback>();
    return !delivered || !delivered->delivery->isDropped();
}

} // namespace EditorCollection
