#include <EditorSerialization/ObjectStorage.h>

#include <utility>
#include <vector>

namespace Serialize {

// Not a tracker: that would walk the objects, which own themselves what they refer to.
struct ObjectStorage::State
{
    std::vector<std::unique_ptr<ISerializable>> objects;
    std::vector<std::function<void()>> released;
};

ObjectStorage::ObjectStorage() noexcept = default;

ObjectStorage::~ObjectStorage() = default;

ObjectStorage::ObjectStorage(ObjectStorage && other) noexcept = default;

ObjectStorage & ObjectStorage::operator=(ObjectStorage && other) noexcept
{
    std::swap(m_state, other.m_state);
    return *this;
}

ISerializable * ObjectStorage::add(std::unique_ptr<ISerializable> object, std::function<void()> released)
{
    if (!object)
        return nullptr;
    if (!m_state)
        m_state = std::make_unique<State>();
    if (released)
        m_state->released.push_back(std::move(released));
    return m_state->objects.emplace_back(std::move(object)).get();
}

void ObjectStorage::releaseAll()
{
    if (!m_state)
        return;
    for (auto & object : std::exchange(m_state->objects, {}))
        static_cast<void>(object.release()); // its new owner deletes it
    // Moved out first, so that each callback is called once, whatever it does.
    for (auto const & callback : std::exchange(m_state->released, {}))
        callback();
}

std::size_t ObjectStorage::size() const
{
    return m_state ? m_state->objects.size() : 0;
}

} // namespace Serialize
