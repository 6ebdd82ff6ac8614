// Numbers as JSON texts have them.
#pragma once

#include <charconv>
#include <cstddef>
#include <cstdint>

namespace Serialize::Json {

/// The longest number, and room behind it that is used while it is written.
inline constexpr std::size_t numberSize = 32;

/// Returns the end of what was written.
template <class Integer> char * writeNumber(char * to, Integer number)
{
    return std::to_chars(to, to + numberSize, number).ptr;
}

/// One that is not finite is a string. The text of others is that of `nlohmann::json::dump`, which is not always the
/// shortest: the archives' texts do not change with the way in which they are made.
char * writeNumber(char * to, double number);

} // namespace Serialize::Json
