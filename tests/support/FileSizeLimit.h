/// @file
/// A disk that is soon full.
#pragma once

#include <csignal>

#include <sys/resource.h>

#include <gtest/gtest.h>

namespace Testing {

/// Lets no file grow beyond so many bytes while it lives. Writing fails then as it does on a full disk: after a part.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
        : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        EXPECT_EQ(::getrlimit(RLIMIT_FSIZE, &m_limit), 0);
        rlimit const limit{bytes, m_limit.rlim_max};
        EXPECT_EQ(::setrlimit(RLIMIT_FSIZE, &limit), 0);
    }
    ~FileSizeLimit()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_limit);
        std::signal(SIGXFSZ, m_handler);
    }
    FileSizeLimit(FileSizeLimit const &) = delete;
    FileSizeLimit & operator=(FileSizeLimit const &) = delete;

private:
    rlimit m_limit{};
    void (*m_handler)(int);
};

} // namespace Testing
