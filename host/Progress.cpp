#include "Progress.h"

#include <algorithm>
#include <iostream>
#include <mutex>

#include <sys/ioctl.h>
#include <unistd.h>

#include "Output.h"

namespace Host {

namespace {

constexpr std::chrono::milliseconds patience(1000); ///< until the bar appears
constexpr std::chrono::milliseconds refresh(100);
constexpr std::size_t usualColumns = 80;
constexpr std::size_t widestBar = 40;
constexpr std::size_t narrowestBar = 5; ///< below it there is none

/// What is written to the terminal meanwhile comes from any thread.
std::mutex mutex;
bool isDrawn = false;

std::size_t columns()
{
    winsize size{};
    bool const isKnown = ioctl(STDERR_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return isKnown ? size.ws_col : usualColumns;
}

} // namespace

Progress::Progress(std::string work)
    : m_work(std::move(work))
    , m_isWanted(hasCursor(STDERR_FILENO))
    , m_next(Clock::now() + patience)
{}

Progress::~Progress()
{
    hide();
}

void Progress::show(std::size_t done, std::size_t all)
{
    auto const now = Clock::now();
    if (!m_isWanted || all == 0 || now < m_next)
        return;
    m_next = now + refresh;
    std::string const count = ' ' + std::to_string(done) + " of " + std::to_string(all);
    // A line that reaches the last column may wrap, and could not be wiped then.
    std::size_t const taken = m_work.size() + count.size() + sizeof " []";
    std::size_t const room = columns() > taken ? std::min(columns() - taken, widestBar) : 0;
    std::string bar;
    if (room >= narrowestBar) {
        std::size_t const filled = room * std::min(done, all) / all;
        bar = " [" + std::string(filled, '#') + std::string(room - filled, '-') + ']';
    }
    // The results so far come first where they go to the same terminal.
    std::cout.flush();
    std::lock_guard const lock(mutex);
    std::cerr << '\r' + m_work + bar + count + "\033[K" << std::flush;
    isDrawn = true;
}

void Progress::hide()
{
    std::lock_guard const lock(mutex);
    if (isDrawn)
        std::cerr << "\r\033[K" << std::flush;
    isDrawn = false;
}

} // namespace Host
