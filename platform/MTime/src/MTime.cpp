#include <MTime/MTime.h>

#include <cinttypes>
#include <cstdio>

std::string MTime::toString() const
{
    // Unsigned, since the smallest value has no positive counterpart.
    std::uint64_t const size = m_units < 0 ? -static_cast<std::uint64_t>(m_units) : static_cast<std::uint64_t>(m_units);
    std::uint64_t const seconds = size / unitsPerSecond;
    char text[48];
    std::snprintf(text, sizeof text, "%s%" PRIu64 ":%02" PRIu64 ":%02" PRIu64 ".%06" PRIu64, m_units < 0 ? "-" : "",
        seconds / 3600, seconds / 60 % 60, seconds % 60, size % unitsPerSecond);
    return text;
}
