/// @file
/// The one object with which a host brings the library to life.
#pragma once

#include <memory>

#include <effects/Export.h>

namespace Effect {

/// Starts the catalogue of stock effects and installs the settings factory. Keep it alive for as long as either is
/// wanted; its destruction takes both back.
///
/// The folders are those of `Settings`, and the items come through `EditorCollection::CollectionProvider::itemStorage`:
/// the host sets both up before. The constructor does not wait for any item. What it registered is reached through
/// `EditorCollection::CollectionProvider::collection`; a collection asked for early is incomplete, and nothing tells
/// when it no longer is, except the storage.
///
/// The destructor ends the provider's own loads, on whatever storage they were made, and waits for a delivery that is
/// running. So it must not run inside one.
class EFFECTS_API ContentProvider
{
public:
    /// Throws `std::logic_error` when the host has set no item storage.
    ContentProvider();
    ~ContentProvider();
    ContentProvider(ContentProvider const &) = delete;
    ContentProvider & operator=(ContentProvider const &) = delete;

private:
    class EFFECTS_HIDDEN Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace Effect
