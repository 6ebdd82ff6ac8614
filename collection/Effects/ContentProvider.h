/// @file
/// The object that starts the library.
#pragma once

#include <memory>

#include <effects/Export.h>

namespace Effect {

/// Starts the catalogue of stock effects and installs the settings factory. Keep it alive for as long as either is
/// wanted; its destructor removes both.
///
/// The folders are those of `Settings`, and the items come through `EditorCollection::CollectionProvider::itemStorage`:
/// the host sets both up first. The constructor does not wait for items. What it registered is reached through
/// `EditorCollection::CollectionProvider::collection`; a collection is incomplete until the storage
/// has delivered all of its items.
///
/// The destructor ends the provider's own loads, on whatever storage they were made, and waits for a delivery that is
/// running. Do not call it from within a delivery.
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
