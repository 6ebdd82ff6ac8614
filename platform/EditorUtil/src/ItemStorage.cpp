#include <EditorUtil/ItemStorage.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <filesystem>
#include <mutex>
#include <stdexcept>
#include <thread>
#include <utility>
#include <vector>

#include <EditorUtil/ItemFile.h>
#include <FileSystem/FileSystem.h>

#include <glog/logging.h>

namespace EditorCollection {

namespace {

/// Files are given to the threads so many at a time: enough that handing out costs nothing beside the reading, few
/// enough that the threads share a folder of some dozens.
constexpr std::size_t batchSize = 16;
/// Batches that are read ahead of a slow callback, at most.
constexpr std::size_t maxBatches = 64;

bool isItemFile(std::string const & name)
{
    return name.size() > itemFileSuffix.size() &&
           name.compare(name.size() - itemFileSuffix.size(), itemFileSuffix.size(), itemFileSuffix) == 0;
}

/// The item files of a folder, sorted. Throws when it cannot be listed, and gives up when nobody wants it any more: a
/// folder may be large, and whoever ends the storage waits for it.
std::vector<std::string> listFolder(std::string const & folder, std::atomic<bool> const & isDropped)
{
    std::vector<std::string> names;
    std::error_code error;
    std::filesystem::directory_iterator entry(folder, error);
    for (; !error && !isDropped && entry != std::filesystem::directory_iterator(); entry.increment(error)) {
        std::string name = entry->path().filename().native();
        if (isItemFile(name))
            names.push_back(std::move(name));
    }
    if (error && error != std::errc::no_such_file_or_directory)
        throw std::runtime_error(error.message());
    std::sort(names.begin(), names.end());
    return names;
}

/// A folder to be delivered.
struct Load
{
    std::string folder;
    QString collection;
    ItemCallback callback;
    std::vector<std::string> names; ///< of the files
    std::size_t next = 0;           ///< the first file that is in no batch yet
    bool listed = false;
    std::atomic<bool> dropped{false};
};

/// An item, or why there is none.
struct Outcome
{
    serialize_ptr<IItem> item;
    std::string error;
};

/// Some consecutive files of a load. Batches are delivered in the order in which they were handed out.
struct Batch
{
    std::shared_ptr<Load> load;
    std::vector<Outcome> outcomes;
    bool ready = false;
};

std::string report(std::string const & path, char const * reason)
{
    return "Couldn't read " + path + ": " + reason;
}

Outcome readOne(Load const & load, std::string const & name)
{
    Outcome outcome;
    try {
        outcome.item = readItem(load.folder, name);
    } catch (std::exception const & error) {
        outcome.error = report(load.folder + '/' + name, error.what());
    }
    return outcome;
}

} // namespace

/// The threads and what they share. Each takes, whenever it is free, the most urgent of what there is to do: deliver
/// what is ready, list the next folder, read the next files.
class ItemStorage::Loader
{
public:
    explicit Loader(unsigned threads)
    {
        try {
            for (unsigned index = 0; index < std::max(threads, 1U); ++index)
                m_threads.emplace_back([this] { work(); });
        } catch (...) {
            end();
            throw;
        }
    }
    ~Loader()
    {
        drop([](Load const &) { return true; });
        end();
    }

    void add(std::shared_ptr<Load> load)
    {
        std::lock_guard const lock(m_mutex);
        m_loads.push_back(std::move(load));
        m_work.notify_all();
    }

    template <class Predicate> void drop(Predicate const & isMeant)
    {
        std::vector<std::shared_ptr<Load>> dropped; // outlives the lock: callbacks may do anything when they go
        std::unique_lock lock(m_mutex);
        auto const rest =
            std::stable_partition(m_loads.begin(), m_loads.end(), [&](auto const & load) { return !isMeant(*load); });
        dropped.assign(rest, m_loads.end());
        m_loads.erase(rest, m_loads.end());
        for (Batch const & batch : m_batches)
            if (isMeant(*batch.load))
                dropped.push_back(batch.load);
        if (m_delivered && isMeant(*m_delivered))
            dropped.push_back(m_delivered);
        for (auto const & load : dropped)
            load->dropped = true;
        wake();
        if (!isInCallback())
            m_ended.wait(lock, [this] { return !m_delivered || !m_delivered->dropped; });
    }

    template <class Wait> bool waitForAll(Wait const & wait)
    {
        std::unique_lock lock(m_mutex);
        if (isInCallback())
            throw std::logic_error("a callback of the item storage would wait for itself");
        return wait(lock, m_ended, [this] { return isIdle(); });
    }

    Progress progress() const { return {m_foundCount, m_deliveredCount, m_failedCount}; }

private:
    using Lock = std::unique_lock<std::mutex>;

    void end()
    {
        {
            std::lock_guard const lock(m_mutex);
            m_ending = true;
            m_work.notify_all();
        }
        for (std::thread & thread : m_threads)
            thread.join();
    }

    void work()
    {
        Lock lock(m_mutex);
        while (true) {
            if (!m_delivered && !m_batches.empty() && m_batches.front().ready)
                deliver(lock);
            else if (m_ending)
                return;
            else if (!m_loads.empty() && !m_loads.front()->listed && !m_listing)
                list(lock);
            else if (!m_loads.empty() && m_loads.front()->listed && m_batches.size() < maxBatches)
                read(lock);
            else
                m_work.wait(lock);
        }
    }

    /// Hands the items of the first batch over, without the lock.
    void deliver(Lock & lock)
    {
        Batch batch = std::move(m_batches.front());
        m_batches.pop_front();
        m_delivered = batch.load;
        m_deliverer = std::this_thread::get_id();
        lock.unlock();
        for (Outcome & outcome : batch.outcomes) {
            if (batch.load->dropped)
                break;
            deliverOne(batch.load->callback, outcome);
        }
        batch.outcomes.clear();
        lock.lock();
        m_delivered.reset();
        m_deliverer = {};
        if (batch.load->dropped)
            m_ended.notify_all();
        wake();
        // The last owner of the callback may be the batch, and the callback may do anything when it goes.
        lock.unlock();
        batch.load.reset();
        lock.lock();
    }

    void deliverOne(ItemCallback const & callback, Outcome & outcome)
    {
        if (outcome.error.empty()) {
            try {
                callback(std::move(outcome.item));
                ++m_deliveredCount;
                return;
            } catch (std::exception const & error) {
                outcome.error = std::string("Couldn't deliver an item: ") + error.what();
            }
        }
        LOG(ERROR) << outcome.error;
        ++m_failedCount;
    }

    /// Lists the folder of the first load, without the lock.
    void list(Lock & lock)
    {
        auto const load = m_loads.front();
        m_listing = true;
        lock.unlock();
        std::vector<std::string> names;
        std::vector<Outcome> outcomes;
        try {
            names = listFolder(load->folder, load->dropped);
        } catch (std::exception const & error) {
            outcomes.emplace_back().error = report(load->folder, error.what());
        }
        lock.lock();
        m_listing = false;
        load->names = std::move(names);
        load->listed = true;
        if (!load->dropped) {
            m_foundCount += load->names.size() + outcomes.size();
            if (!outcomes.empty())
                m_batches.push_back({load, std::move(outcomes), true});
            forgetHandedOut();
        }
        wake();
    }

    /// Reads the next files of the first load, without the lock.
    void read(Lock & lock)
    {
        auto const load = m_loads.front();
        std::size_t const first = load->next;
        std::size_t const last = std::min(first + batchSize, load->names.size());
        load->next = last;
        Batch & batch = m_batches.emplace_back(); // stays where it is while others come and go at the ends
        batch.load = load;
        forgetHandedOut();
        lock.unlock();
        std::vector<Outcome> outcomes;
        outcomes.reserve(last - first);
        for (std::size_t index = first; index < last && !load->dropped; ++index)
            outcomes.push_back(readOne(*load, load->names[index]));
        lock.lock();
        batch.outcomes = std::move(outcomes);
        batch.ready = true;
        m_work.notify_all();
    }

    /// Takes the first load off the list when every file of it is in a batch.
    void forgetHandedOut()
    {
        if (m_loads.front()->next == m_loads.front()->names.size())
            m_loads.pop_front();
    }

    bool isIdle() const { return m_loads.empty() && m_batches.empty() && !m_delivered; }

    /// Has the threads look for work, and tells those who wait for the last of it.
    void wake()
    {
        m_work.notify_all();
        if (isIdle())
            m_ended.notify_all();
    }

    bool isInCallback() const { return m_deliverer == std::this_thread::get_id(); }

    mutable std::mutex m_mutex;
    std::condition_variable m_work;            ///< there may be something to do
    std::condition_variable m_ended;           ///< everything is done, or what was dropped is no longer delivered
    std::deque<std::shared_ptr<Load>> m_loads; ///< in the order made; those after the first are not begun
    std::deque<Batch> m_batches;               ///< in the order of delivery
    std::shared_ptr<Load> m_delivered;         ///< whose batch is being delivered; null when none is
    std::thread::id m_deliverer;
    bool m_listing = false;
    bool m_ending = false;
    std::atomic<std::size_t> m_foundCount{0};
    std::atomic<std::size_t> m_deliveredCount{0};
    std::atomic<std::size_t> m_failedCount{0};
    std::vector<std::thread> m_threads; // last: they use all of the above
};

ItemStorage::ItemStorage(unsigned threads)
    : m_loader(std::make_unique<Loader>(threads))
{}

ItemStorage::~ItemStorage() = default;

void ItemStorage::loadItems(QString const & path, QString const & collectionName, ItemCallback callback)
{
    auto load = std::make_shared<Load>();
    load->folder = FS::absolutePath(path).toStdString();
    load->collection = collectionName;
    load->callback = std::move(callback);
    m_loader->add(std::move(load));
}

void ItemStorage::dropLoads(QString const & collectionName)
{
    m_loader->drop([&](Load const & load) { return load.collection == collectionName; });
}

void ItemStorage::stop()
{
    m_loader->drop([](Load const &) { return true; });
}

void ItemStorage::waitForAll()
{
    m_loader->waitForAll([](auto & lock, auto & ended, auto const & isDone) {
        ended.wait(lock, isDone);
        return true;
    });
}

bool ItemStorage::waitForAll(std::chrono::milliseconds timeout)
{
    return m_loader->waitForAll(
        [timeout](auto & lock, auto & ended, auto const & isDone) { return ended.wait_for(lock, timeout, isDone); });
}

ItemStorage::Progress ItemStorage::progress() const
{
    return m_loader->progress();
}

} // namespace EditorCollection
