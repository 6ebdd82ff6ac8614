/// @file
/// Many files that are written together.
#pragma once

#include <mutex>
#include <string>
#include <string_view>
#include <vector>

#include <inspect/Export.h>

namespace Effect::Inspect {

/// Writes files whole or not at all, like `writeFile`, but waits once for the disk instead of once for each file, which
/// is what takes the time with thousands of small ones. Nothing is in its place before `commit`.
class EFFECTS_INSPECT_API FileGroup
{
public:
    FileGroup() = default;
    ~FileGroup(); ///< takes back what has not been committed
    FileGroup(FileGroup const &) = delete;
    FileGroup & operator=(FileGroup const &) = delete;

    /// Writes a file under a temporary name in the folder of `path`, which is made where it is missing. Any thread may
    /// call it. Throws a `Failure` that names the path.
    void add(std::string const & path, std::string_view bytes);

    /// Has the bytes of all files on the disk and then gives each its name.
    /// @return a line for each file that could not be put in its place, with its path
    std::vector<std::string> commit();

private:
    struct Entry
    {
        std::string path;
        std::string temporary;
    };

    std::mutex m_mutex;
    std::vector<Entry> m_entries;
};

} // namespace Effect::Inspect
