#include <EditorSerialization/Registry.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <cstdint>
#include <cstring>
#include <mutex>

#include <glog/logging.h>

namespace Serialize {

namespace {

/// A name that has been registered at some time. Never destroyed, so that lookups need no lock; a class that is
/// registered again reuses it.
struct Place
{
    std::string const name;
    Place * const next; // of the same bucket
    std::atomic<BaseCreator const *> creator{nullptr};
    std::atomic<Layout const *> layout{nullptr};
    std::atomic<bool> isTaken{false};
};

struct Classes
{
    std::mutex mutex; // of those that register
    std::array<std::atomic<Place *>, 512> buckets{};
};

// Never destroyed, since registrators of libraries that are unloaded late still use it.
Classes & classes()
{
    static auto & classes = *new Classes;
    return classes;
}

/// Of the last sixteen bytes: names begin with the same namespace.
std::size_t hash(std::string_view name)
{
    std::uint64_t words[2]{};
    std::size_t const count = std::min(name.size(), sizeof words);
    name.copy(reinterpret_cast<char *>(words), count, name.size() - count);
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15; // 2^64 divided by the golden ratio: spreads bits upwards
    return static_cast<std::size_t>(((words[0] + name.size()) * factor ^ words[1]) * factor >> 32);
}

std::atomic<Place *> & bucketOf(std::string_view name)
{
    auto & buckets = classes().buckets;
    return buckets[hash(name) % buckets.size()];
}

Place * findIn(std::atomic<Place *> const & bucket, std::string_view name)
{
    Place * place = bucket.load(std::memory_order_acquire);
    while (place && place->name != name)
        place = place->next;
    return place;
}

} // namespace

BaseCreator::~BaseCreator() = default;

Registrator::Registrator(char const * name, BaseCreator const * creator, Layout const * layout)
    : m_name(name)
    , m_creator(creator)
{
    std::lock_guard const lock(classes().mutex);
    auto & bucket = bucketOf(name);
    Place * place = findIn(bucket, name);
    if (!place) {
        place = new Place{name, bucket.load(std::memory_order_relaxed)};
        bucket.store(place, std::memory_order_release);
    }
    m_isFirst = !place->isTaken;
    if (!m_isFirst) {
        LOG(ERROR) << "The archive name " << name << " is registered twice. The first registration stays";
        m_creator.reset();
        return;
    }
    place->layout = layout;
    place->creator = creator;
    place->isTaken = true;
}

Registrator::~Registrator()
{
    if (!m_isFirst)
        return;
    std::lock_guard const lock(classes().mutex);
    Place & place = *findIn(bucketOf(m_name), m_name);
    place.isTaken = false;
    place.creator = nullptr;
    place.layout = nullptr;
}

namespace Registry {

Entry find(std::string_view archiveName)
{
    Place const * const place = findIn(bucketOf(archiveName), archiveName);
    if (!place)
        return {nullptr, nullptr};
    return {place->creator.load(std::memory_order_acquire), place->layout.load(std::memory_order_acquire)};
}

std::unique_ptr<ISerializable> create(std::string_view archiveName)
{
    BaseCreator const * const creator = find(archiveName).creator;
    return std::unique_ptr<ISerializable>(creator ? creator->create() : nullptr);
}

std::vector<std::string> names()
{
    std::vector<std::string> names;
    for (auto const & bucket : classes().buckets)
        for (Place const * place = bucket.load(std::memory_order_acquire); place; place = place->next)
            if (place->isTaken)
                names.push_back(place->name);
    std::sort(names.begin(), names.end());
    return names;
}

} // namespace Registry

} // namespace Serialize
