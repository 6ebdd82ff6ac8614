/// @file
/// How far long work is.
#pragma once

#include <chrono>
#include <cstddef>
#include <string>

namespace Host {

/// A bar on standard error while it lives, where that is a terminal and the work takes longer than a second. One at a
/// time. It takes one line, which it leaves empty.
class Progress
{
public:
    explicit Progress(std::string work); ///< such as "Converting"
    ~Progress();
    Progress(Progress const &) = delete;
    Progress & operator=(Progress const &) = delete;

    /// Tells how much is done. Seldom enough shown that it may be called for every little thing.
    void show(std::size_t done, std::size_t all);

    /// Takes the bar away, if there is one, before something else is written to the terminal. Any thread may call it.
    static void hide();

private:
    using Clock = std::chrono::steady_clock;

    std::string m_work;
    bool m_isWanted;
    Clock::time_point m_next; ///< when it may be drawn again
};

} // namespace Host
