#include <inspect/FileGroup.h>

#include <algorithm>
#include <atomic>
#include <cerrno>
#include <filesystem>
#include <random>
#include <system_error>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <inspect/Failure.h>

namespace Effect::Inspect {

namespace fs = std::filesystem;

namespace {

[[noreturn]] void fail(std::string const & path, int error)
{
    throw Failure(path + ": " + std::generic_category().message(error));
}

/// A new file beside the one that it will replace, with the permissions of that one if it is there.
int create(std::string const & path, std::string & temporary)
{
    static std::atomic<unsigned> next{std::random_device{}()};
    int file = -1;
    do {
        temporary = path + '.' + std::to_string(next++);
        file = ::open(temporary.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    } while (file < 0 && errno == EEXIST);
    struct stat old;
    if (file >= 0 && ::stat(path.c_str(), &old) == 0)
        ::fchmod(file, old.st_mode & 07777);
    return file;
}

void writeAll(int file, std::string const & path, std::string_view bytes)
{
    while (!bytes.empty()) {
        ssize_t const count = ::write(file, bytes.data(), bytes.size());
        if (count > 0)
            bytes.remove_prefix(static_cast<std::size_t>(count));
        else if (errno != EINTR)
            fail(path, errno);
    }
}

/// Has everything that was written to the file system of this file on its disk.
bool syncFileSystemOf(std::string const & path)
{
    int const file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    bool const isSynced = file >= 0 && ::syncfs(file) == 0;
    if (file >= 0)
        ::close(file);
    return isSynced;
}

} // namespace

FileGroup::~FileGroup()
{
    for (Entry const & entry : m_entries)
        ::unlink(entry.temporary.c_str());
}

void FileGroup::add(std::string const & path, std::string_view bytes)
{
    // A link stays one: the file that it leads to is replaced.
    std::error_code ignored;
    std::string const place = fs::is_symlink(path, ignored) ? fs::canonical(path, ignored).native() : path;
    std::error_code error;
    if (fs::path const folder = fs::path(place).parent_path(); !folder.empty())
        fs::create_directories(folder, error);
    if (error)
        throw Failure(path + ": " + error.message());
    Entry entry{place, {}};
    int const file = create(place, entry.temporary);
    if (file < 0)
        fail(path, errno);
    try {
        writeAll(file, path, bytes);
    } catch (...) {
        ::close(file);
        ::unlink(entry.temporary.c_str());
        throw;
    }
    ::close(file);
    std::lock_guard const lock(m_mutex);
    m_entries.push_back(std::move(entry));
}

std::vector<std::string> FileGroup::commit()
{
    std::vector<std::string> problems;
    // Of each file system one file is enough.
    std::vector<dev_t> synced;
    for (Entry const & entry : m_entries) {
        struct stat status;
        if (::stat(entry.temporary.c_str(), &status) != 0 ||
            std::find(synced.begin(), synced.end(), status.st_dev) != synced.end())
            continue;
        if (!syncFileSystemOf(entry.temporary))
            throw Failure(entry.path + ": " + std::generic_category().message(errno));
        synced.push_back(status.st_dev);
    }
    for (Entry const & entry : m_entries) {
        if (::rename(entry.temporary.c_str(), entry.path.c_str()) == 0)
            continue;
        problems.push_back(entry.path + ": " + std::generic_category().message(errno));
        ::unlink(entry.temporary.c_str());
    }
    m_entries.clear();
    return problems;
}

} // namespace Effect::Inspect
