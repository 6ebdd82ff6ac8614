/// @file
/// Ownership of objects that were created by reading.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>

#include <EditorSerialization/ISerializable.h>

namespace Serialize {

/// Owns objects that were created by reading. Objects owned by another object, such as a holder, are not the storage's.
class EDITORSERIALIZATION_EXPORT ObjectStorage
{
public:
    ObjectStorage() noexcept;
    ~ObjectStorage(); ///< deletes what it still owns
    /// Transfers ownership.
    ObjectStorage(ObjectStorage &&) noexcept;
    /// Deletes the objects owned before.
    ObjectStorage & operator=(ObjectStorage &&) noexcept;

    /// Takes the object over and returns it.
    /// @param released  called when the storage releases the object, not when it deletes it
    ISerializable * add(std::unique_ptr<ISerializable> object, std::function<void()> released = {});

    /// Releases all objects, so that they outlive the storage.
    void releaseAll();

    /// Number of objects owned.
    std::size_t size() const;

private:
    struct State;
    std::unique_ptr<State> m_state; // null until something is added, since every delivered item has a storage
};

/// An owning pointer to an object that was read, with the storage that owns the objects created on the way. Call
/// `storage.releaseAll()` before you move the pointer out.
template <class T> struct serialize_ptr
{
    std::unique_ptr<T> pointer; ///< the object itself; null when nothing was read
    ObjectStorage storage;      ///< owns what was created on the way, such as an item's payload

    T * operator->() const { return pointer.get(); }              ///< the object
    T & operator*() const { return *pointer; }                    ///< the object
    explicit operator bool() const { return pointer != nullptr; } ///< whether there is an object
};

} // namespace Serialize

using Serialize::serialize_ptr;
