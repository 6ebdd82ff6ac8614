/// @file
/// How often a file is opened.
#pragma once

#include <array>
#include <cstddef>
#include <cstring>
#include <stdexcept>
#include <string>

#include <sys/inotify.h>
#include <unistd.h>

#include <QFile>
#include <QString>

namespace Testing {

/// Counts how often a file, which must be there, is opened by anyone.
class FileOpens
{
public:
    explicit FileOpens(QString const & path)
        : m_queue(inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
    {
        if (m_queue < 0 || inotify_add_watch(m_queue, QFile::encodeName(path).constData(), IN_OPEN) < 0)
            throw std::runtime_error("cannot watch " + path.toStdString() + ": " + std::strerror(errno));
    }
    ~FileOpens() { close(m_queue); }
    FileOpens(FileOpens const &) = delete;
    FileOpens & operator=(FileOpens const &) = delete;

    /// Since this was made. Opens that follow each other at once may count as one.
    int count()
    {
        alignas(inotify_event) std::array<char, 4096> events{};
        for (ssize_t size = 0; (size = read(m_queue, events.data(), events.size())) > 0;) {
            for (std::size_t at = 0; at < static_cast<std::size_t>(size);) {
                inotify_event event{};
                std::memcpy(&event, events.data() + at, sizeof(event));
                at += sizeof(event) + event.len;
                ++m_count;
            }
        }
        return m_count;
    }

private:
    int m_queue;
    int m_count = 0;
};

} // namespace Testing
