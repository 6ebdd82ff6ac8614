// Representations of values that JSON lacks. Used in documents: never change.
#pragma once

namespace Serialize::Json::Forms {

inline constexpr char const * infinity = "Infinity";
inline constexpr char const * minusInfinity = "-Infinity";
inline constexpr char const * notANumber = "NaN";
inline constexpr char const * utf16Key = "$utf16"; // an array of the units of a text that is no Unicode
inline constexpr char const * bytesKey = "$bytes"; // base64 of bytes that are no UTF-8

} // namespace Serialize::Json::Forms
