// Doubles from the digits of decimal numbers.
#pragma once

#include <cstdint>

namespace Serialize::Json {

/// The double nearest to digits / 10^places, of two equally near ones the even one: what `std::from_chars` returns.
/// Returns false where this is not known: for many places, and when the quotient is almost half way between two
/// doubles.
bool decimal(std::uint64_t digits, unsigned places, double & value);

} // namespace Serialize::Json
