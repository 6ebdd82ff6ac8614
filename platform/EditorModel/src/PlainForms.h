#pragma once

#include <EditorSerialization/Traversal.h>
#include <MTime/MTime.h>

/// In every archive a time is its count of units.
template <> struct Serialize::PlainForm<MTime>
{
    using Type = std::int64_t;
    static Type get(MTime time) { return time.units(); }
    static void set(MTime & time, Type units) { time = MTime(units); }
};
