#include <EditorSerialization/ObjectStorage.h>

#include <algorithm>
#include <utility>
#include <vector>

#include <EditorSerialization/ObjectTracker.h>

namespace Serialize {

struct ObjectStorage::State
{
    ObjectTracker tracker;
    std::vector<std::function<void()>> released;
};

ObjectStorage::ObjectStorage() noexcept = default;

ObjectStorage::~ObjectStorage()
{
    if (m_state)
        m_state->tracker.releaseAll();
}

ObjectStorage::ObjectStorage(ObjectStorage && other) noexcept = default;

ObjectStorage & ObjectStorage::operator=(ObjectStorage && other) noexcept
{
    std::swap(m_state, other.m_state);
    return *this;
}

ISerializable * ObjectStorage::add(std::unique_ptr<ISerializable> object, std::function<void()> released)
{
    ISerializable const * const root = object.get();
    if (!root)
        return nullptr;
    if (!m_state)
        m_state = std::make_unique<State>();
    if (released)
        m_state->released.push_back(std::move(released));
    // Not walked, since the object itself owns what it refers to.
    m_state->tracker.own(root);
    return object.release();
}

void ObjectStorage::releaseAll()
{
    if (!m_state)
        return;
    m_state->tracker.clear();
    // Moved out first, so that each callback is called once, whatever it does.
    for (auto const & callback : std::exchange(m_state->released, {}))
        callback();
}

std::size_t ObjectStorage::size() const
{
    if (!m_state)
        return 0;
    auto const & entries = m_state->tracker.entries();
    return static_cast<std::size_t>(std::count_if(
        entries.begin(), entries.end(), [](auto const & entry) { return entry.second.release != nullptr; }));
}

} // namespace Serialize
