/// @file
/// The editor's time type.
#pragma once

#include <cstdint>
#include <string>

#include <MTime/Export.h>

/// A point in time or a length of time, counted in units of one microsecond.
class MTime
{
public:
    static constexpr std::int64_t unitsPerSecond = 1'000'000; ///< a unit is a microsecond

    constexpr MTime() = default; ///< zero
    /// @param units  microseconds
    constexpr explicit MTime(std::int64_t units)
        : m_units(units)
    {}

    constexpr std::int64_t units() const { return m_units; } ///< microseconds
    /// To the nearest double.
    constexpr double seconds() const { return static_cast<double>(m_units) / static_cast<double>(unitsPerSecond); }

    /// For people: hours, minutes and seconds, such as "-0:01:02.500000".
    MTIME_EXPORT std::string toString() const;

    friend constexpr bool operator==(MTime a, MTime b) { return a.m_units == b.m_units; }
    friend constexpr bool operator!=(MTime a, MTime b) { return a.m_units != b.m_units; }
    friend constexpr bool operator<(MTime a, MTime b) { return a.m_units < b.m_units; }
    friend constexpr bool operator>(MTime a, MTime b) { return a.m_units > b.m_units; }
    friend constexpr bool operator<=(MTime a, MTime b) { return a.m_units <= b.m_units; }
    friend constexpr bool operator>=(MTime a, MTime b) { return a.m_units >= b.m_units; }
    friend constexpr MTime operator+(MTime a, MTime b) { return MTime(a.m_units + b.m_units); }
    friend constexpr MTime operator-(MTime a, MTime b) { return MTime(a.m_units - b.m_units); }

private:
    std::int64_t m_units = 0;
};
