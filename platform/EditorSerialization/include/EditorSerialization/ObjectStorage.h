/// @file
/// Owning what a read created until somebody takes it over.
#pragma once

#include <cstddef>
#include <functional>
#include <memory>

#include <EditorSerialization/ISerializable.h>

namespace Serialize {

/// Owns objects that a read created. An object that owns others, as a holder does, keeps them: only the outermost
/// object is the storage's.
class EDITORSERIALIZATION_EXPORT ObjectStorage
{
public:
    ObjectStorage() noexcept;
    ~ObjectStorage(); ///< deletes what it still owns
    /// What one storage owns, the other one owns afterwards.
    ObjectStorage(ObjectStorage &&) noexcept;
    /// What this one owned before is deleted.
    ObjectStorage & operator=(ObjectStorage &&) noexcept;

    /// Takes the object over and returns it.
    /// @param released  called when the storage gives the object up, and not when it deletes it
    ISerializable * add(std::unique_ptr<ISerializable> object, std::function<void()> released = {});

    /// Gives up the ownership of every object, so that they outlive the storage.
    void releaseAll();

    /// Objects owned at present.
    std::size_t size() const;

private:
    struct State;
    std::unique_ptr<State> m_state; // null until something is added: one stands beside each item that is delivered
};

/// An owning pointer to something read, together with the storage that owns what was created on the way. Whoever takes
/// the pointer out first calls `storage.releaseAll()`.
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
