/// @file
/// An engine whose settings start with other values than zero. It is included ahead of all else in the sources of
/// OtherEngineTests, the library's conversions among them, so that a public data member that a conversion leaves alone
/// differs from one that it sets to 0.
#pragma once

#include <array>
#include <cstdint>
#include <type_traits>

#include <Settings/Members.h>
#include <Utils/Matrix3x3.h>

namespace OtherEngine {

/// What a public data member starts with: a true flag, and 77 wherever there is a number.
template <class T> struct Start
{
    static T make()
    {
        if constexpr (std::is_same_v<T, bool>)
            return true;
        else
            return static_cast<T>(77);
    }
};
template <> struct Start<Quoril::Core::Matrix3x3>
{
    static Quoril::Core::Matrix3x3 make() { return {77, 77, 77, 77, 77, 77, 77, 77, 77}; }
};
template <> struct Start<std::array<std::int64_t, 2>>
{
    static std::array<std::int64_t, 2> make() { return {77, 77}; }
};

} // namespace OtherEngine

#undef SETTINGS_FIELD
#define SETTINGS_FIELD(name, ...) __VA_ARGS__ name = OtherEngine::Start<__VA_ARGS__>::make();
