/// @file
/// Loading items from folders in the background.
#pragma once

#include <chrono>
#include <cstddef>
#include <memory>

#include <EditorModel/ItemStorage.h>
#include <EditorUtil/Export.h>

#include <QString>

namespace EditorCollection {

/// Reads items from folders, on threads of its own.
///
/// A load's `path` is a folder; the item files in it (<EditorUtil/ItemFile.h>) are its items, those of folders in it
/// are not. A folder that does not exist has none. Files are read and parsed by all threads at once and delivered one
/// at a time: first the items of the first load, sorted by the bytes of their file names, then those of the second, and
/// so on. Callbacks run on any of the threads, and never two at once.
///
/// A file that cannot be read, and a folder that cannot be listed, is reported in its turn with one line in the log, at
/// severity ERROR, with the path and the reason; the other items are not affected. Exceptions of a callback are
/// reported the same way. The rest of a load whose callback is no longer wanted is skipped.
///
/// All operations may be called from any thread. Callbacks may start and drop loads.
class EDITORUTIL_EXPORT ItemStorage final : public IItemStorage
{
public:
    /// Counts since the storage was made.
    struct Progress
    {
        std::size_t found = 0; ///< files in the folders listed so far, with a folder that could not be listed as one
        std::size_t delivered = 0; ///< items
        std::size_t failed = 0;    ///< files and folders that were reported
    };

    /// @param threads  at least one
    explicit ItemStorage(unsigned threads = 2);
    /// Stops. Must not run inside a callback.
    ~ItemStorage() override;

    void loadItems(QString const & path, QString const & collectionName, ItemCallback callback) override;

    /// Drops every load made so far. No callback runs any more when this returns, except for one that makes this call.
    /// Later loads are carried out as ever.
    void stop();

    /// Waits until every load made so far has been delivered or dropped. Throws `std::logic_error` inside a callback,
    /// where it would wait for itself.
    void waitForAll();
    /// The same, for a while: whether there is nothing left.
    bool waitForAll(std::chrono::milliseconds timeout);

    Progress progress() const; ///< at this moment

private:
    class Loader;
    std::unique_ptr<Loader> m_loader;
};

} // namespace EditorCollection
