#include <EditorUtil/ItemStorage.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <stdexcept>
#include <string_view>
#include <system_error>
#include <thread>
#include <utility>
#include <vector>

#include <dirent.h>

#include <EditorSerialization/MessageText.h>
#include <EditorUtil/ItemFile.h>
#include <FileSystem/FileSystem.h>

#include <glog/logging.h>

namespace EditorCollection {

namespace {

/// Largest batch of files for a thread: large enough that its overhead is negligible beside reading.
constexpr std::size_t maxBatchSize = 16;
/// Limit of batches that are read ahead of a slow callback.
constexpr std::size_t maxBatches = 64;

/// A file named like the suffix alone is a hidden file.
bool isItemFile(std::string_view name)
{
    return name.size() > itemFileSuffix.size() && name.substr(name.size() - itemFileSuffix.size()) == itemFileSuffix;
}

struct CloseFolder
{
    void operator()(DIR * folder) const { ::closedir(folder); }
};

/// An item, or why there is none.
struct Outcome
{
    serialize_ptr<IItem> item;
    std::string error;
};

/// A folder to be delivered.
struct Load
{
    std::string folder;
    ItemCallback callback;
    std::vector<std::string> names; ///< of the files
    std::string error;              ///< why the folder could not be listed; this is delivered in place of the files
    std::size_t next = 0;           ///< the first outcome that is in no batch yet
    bool listed = false;
    std::atomic<bool> dropped{false}; ///< by the storage

    /// Whether the rest of it is still to be delivered.
    bool isWanted() const { return !dropped && EditorCollection::isWanted(callback); }

    std::size_t outcomes() const { return error.empty() ? names.size() : 1; }
};

/// Consecutive outcomes of a load. Batches are delivered in the order of their creation.
struct Batch
{
    std::shared_ptr<Load> load;
    std::vector<Outcome> outcomes;
    bool ready = false;
};

/// The item files of a load's folder, sorted. Throws when it cannot be listed, and gives up when the load is no longer
/// wanted: a folder may be large, and the destructor of the storage waits for it.
// Not through std::filesystem, which builds the path of every entry and takes it apart again.
std::vector<std::string> listFolder(Load const & load)
{
    std::vector<std::string> names;
    std::unique_ptr<DIR, CloseFolder> const folder{::opendir(load.folder.c_str())};
    if (!folder && errno != ENOENT)
        throw std::system_error(errno, std::generic_category());
    while (folder && load.isWanted()) {
        errno = 0; // stays at the end of the folder
        dirent const * const entry = ::readdir(folder.get());
        if (!entry && errno != 0)
            throw std::system_error(errno, std::generic_category());
        if (!entry)
            break;
        if (isItemFile(entry->d_name))
            names.emplace_back(entry->d_name);
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string report(std::string const & path, char const * reason)
{
    return "Couldn't read " + Serialize::messageText(path) + ": " + Serialize::messageText(reason);
}

Outcome readOne(Load const & load, std::size_t index)
{
    Outcome outcome{{}, load.error};
    if (outcome.error.empty()) {
        try {
            outcome.item = readItem(load.folder, load.names[index]);
        } catch (std::exception const & error) {
            outcome.error = report(load.folder + '/' + load.names[index], error.what());
        }
    }
    return outcome;
}

} // namespace

/// The threads and their shared state. A free thread takes the most urgent task: deliver a finished batch, read the
/// next files, list the next folder.
class ItemStorage::Loader
{
public:
    explicit Loader(unsigned threads)
        : m_threadCount(std::max(threads, 1U))
    {
        try {
            for (unsigned index = 0; index < m_threadCount; ++index)
                m_threads.emplace_back([this] { work(); });
        } catch (...) {
            end();
            throw;
        }
    }
    ~Loader()
    {
        dropAll();
        end();
    }

    void add(std::shared_ptr<Load> load)
    {
        std::lock_guard const lock(m_mutex);
        m_unlisted.push_back(std::move(load));
        m_work.notify_one();
    }

    void dropAll()
    {
        // Destroyed after the lock is released, since a callback's destructor may do anything.
        Loads dropped;
        Loads done;
        Lock lock(m_mutex);
        done.swap(m_done);
        for (Loads * const loads : {&m_unlisted, &m_loads}) {
            dropped.insert(dropped.end(), loads->begin(), loads->end());
            loads->clear();
        }
        for (Batch const & batch : m_batches)
            dropped.push_back(batch.load);
        if (m_delivered)
            dropped.push_back(m_delivered);
        for (auto const & load : dropped)
            load->dropped = true;
        wake();
        if (!isInCallback())
            m_ended.wait(lock, [this] { return !m_delivered || !m_delivered->dropped; });
    }

    template <class Wait> bool waitForAll(Wait const & wait)
    {
        Lock lock(m_mutex);
        if (isInCallback())
            throw std::logic_error("a callback of the item storage would wait for itself");
        return wait(lock, m_ended, [this] { return isIdle(); });
    }

    Progress progress() const { return {m_foundCount, m_deliveredCount, m_failedCount}; }

private:
    using Lock = std::unique_lock<std::mutex>;
    using Loads = std::deque<std::shared_ptr<Load>>;

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
            if (!m_done.empty())
                release(lock);
            else if (!m_delivered && !m_batches.empty() && m_batches.front().ready)
                deliver(lock);
            else if (m_ending)
                return;
            else if (!m_loads.empty() && m_loads.front()->listed && m_batches.size() < maxBatches)
                read(lock);
            else if (!m_unlisted.empty())
                list(lock);
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
            if (!batch.load->isWanted())
                break;
            deliverOne(batch.load->callback, outcome);
        }
        batch.outcomes.clear();
        lock.lock();
        m_delivered.reset();
        m_deliverer = {};
        if (batch.load->dropped)
            m_ended.notify_all();
        m_done.push_back(std::move(batch.load));
        wake();
    }

    void deliverOne(ItemCallback const & callback, Outcome & outcome)
    {
        if (outcome.error.empty()) {
            try {
                callback(std::move(outcome.item));
                ++m_deliveredCount;
                return;
            } catch (std::exception const & error) {
                outcome.error = "Couldn't deliver an item: " + Serialize::messageText(error.what());
            }
        }
        LOG(ERROR) << outcome.error;
        ++m_failedCount;
    }

    /// Lists the next folder, without the lock.
    void list(Lock & lock)
    {
        auto load = std::move(m_unlisted.front());
        m_unlisted.pop_front();
        m_loads.push_back(load);
        lock.unlock();
        std::vector<std::string> names;
        std::string problem;
        try {
            names = listFolder(*load);
        } catch (std::exception const & error) {
            problem = report(load->folder, error.what());
        }
        lock.lock();
        load->names = std::move(names);
        load->error = std::move(problem);
        load->listed = true;
        if (load->isWanted())
            m_foundCount += load->outcomes();
        m_done.push_back(std::move(load)); // unless dropped, it is in m_loads as well
        takeHandedOut();
        wake();
    }

    /// Reads the next files of the first load, without the lock, or skips what is left of one that is not wanted.
    void read(Lock & lock)
    {
        auto const load = m_loads.front();
        if (!load->isWanted()) {
            load->next = load->outcomes();
            takeHandedOut();
            wake();
            return;
        }
        std::size_t const first = load->next;
        // Smaller towards the end of a folder, so that the threads come to it together.
        std::size_t const share = (load->outcomes() - first) / (2 * m_threadCount);
        std::size_t const last = std::min(first + std::clamp<std::size_t>(share, 1, maxBatchSize), load->outcomes());
        load->next = last;
        Batch & batch = m_batches.emplace_back(); // stays where it is while others come and go at the ends
        batch.load = load;
        takeHandedOut();
        lock.unlock();
        std::vector<Outcome> outcomes;
        outcomes.reserve(last - first);
        for (std::size_t index = first; index < last && load->isWanted(); ++index)
            outcomes.push_back(readOne(*load, index));
        lock.lock();
        batch.outcomes = std::move(outcomes);
        batch.ready = true;
        // No notification is needed: this thread goes on to deliver the batch, or the thread that delivers another one
        // does.
    }

    /// Takes the first loads off the list as far as everything of them is in a batch.
    void takeHandedOut()
    {
        while (!m_loads.empty() && m_loads.front()->listed && m_loads.front()->next == m_loads.front()->outcomes()) {
            m_done.push_back(std::move(m_loads.front()));
            m_loads.pop_front();
        }
    }

    /// Destroys the finished loads without the lock, since a callback's destructor may do anything.
    void release(Lock & lock)
    {
        Loads done = std::exchange(m_done, {});
        lock.unlock();
        done.clear();
        lock.lock();
    }

    bool isIdle() const { return m_unlisted.empty() && m_loads.empty() && m_batches.empty() && !m_delivered; }

    /// Wakes the threads for new work, or those waiting for the end.
    void wake() { (isIdle() ? m_ended : m_work).notify_all(); }

    bool isInCallback() const { return m_deliverer == std::this_thread::get_id(); }

    mutable std::mutex m_mutex;
    std::condition_variable m_work;    ///< there may be something to do
    std::condition_variable m_ended;   ///< everything is done, or what was dropped is no longer delivered
    Loads m_unlisted;                  ///< in the order made
    Loads m_loads;                     ///< made before those: being listed, or listed and not handed out to the end
    Loads m_done;                      ///< to be destroyed without the lock
    std::deque<Batch> m_batches;       ///< in the order of delivery
    std::shared_ptr<Load> m_delivered; ///< whose batch is being delivered; null when none is
    std::thread::id m_deliverer;
    bool m_ending = false;
    std::atomic<std::size_t> m_foundCount{0};
    std::atomic<std::size_t> m_deliveredCount{0};
    std::atomic<std::size_t> m_failedCount{0};
    std::size_t const m_threadCount;
    std::vector<std::thread> m_threads; // last: they use all of the above
};

ItemStorage::ItemStorage(unsigned threads)
    : m_loader(std::make_unique<Loader>(threads))
{}

ItemStorage::~ItemStorage() = default;

void ItemStorage::loadItems(QString const & path, QString const &, ItemCallback callback)
{
    auto load = std::make_shared<Load>();
    load->folder = FS::absolutePath(path).toStdString();
    load->callback = std::move(callback);
    m_loader->add(std::move(load));
}

void ItemStorage::stop()
{
    m_loader->dropAll();
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
