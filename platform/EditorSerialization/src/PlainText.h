// Texts that JSON has as they are: printable ASCII without quotation marks and backslashes. Nearly all texts are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

namespace Serialize::Json {

inline bool isPlain(unsigned unit)
{
    return unit >= 0x20 && unit < 0x80 && unit != '"' && unit != '\\';
}

/// `memcmp` for the few bytes of a key, without a call.
inline bool areSame(char const * a, char const * b, std::size_t count)
{
    std::uint64_t left = 0;
    std::uint64_t right = 0;
    for (; count >= sizeof left; count -= sizeof left, a += sizeof left, b += sizeof left) {
        std::memcpy(&left, a, sizeof left);
        std::memcpy(&right, b, sizeof right);
        if (left != right)
            return false;
    }
    for (; count > 0 && *a == *b; --count, ++a, ++b)
        ;
    return count == 0;
}

/// The first byte that is not plain, or the end.
inline char const * endOfPlain(char const * begin, char const * end)
{
#ifdef __SSE2__
    // As signed bytes, those from 0x80 are less than a space as well.
    __m128i const space = _mm_set1_epi8(' ');
    __m128i const quote = _mm_set1_epi8('"');
    __m128i const backslash = _mm_set1_epi8('\\');
    for (; end - begin >= 16; begin += 16) {
        __m128i const bytes = _mm_loadu_si128(reinterpret_cast<__m128i const *>(begin));
        __m128i const other = _mm_or_si128(
            _mm_cmplt_epi8(bytes, space), _mm_or_si128(_mm_cmpeq_epi8(bytes, quote), _mm_cmpeq_epi8(bytes, backslash)));
        if (int const mask = _mm_movemask_epi8(other))
            return begin + __builtin_ctz(static_cast<unsigned>(mask));
    }
#endif
    while (begin != end && isPlain(static_cast<unsigned char>(*begin)))
        ++begin;
    return begin;
}

/// Copies the plain units at the beginning of a text. Returns their number.
/// @param to  has room for `count` bytes
inline std::size_t copyPlain(char * to, char16_t const * from, std::size_t count)
{
    std::size_t index = 0;
#ifdef __SSE2__
    __m128i const space = _mm_set1_epi16(' ');
    __m128i const last = _mm_set1_epi16(0x7F);
    __m128i const quote = _mm_set1_epi16('"');
    __m128i const backslash = _mm_set1_epi16('\\');
    for (; count - index >= 8; index += 8) {
        __m128i const units = _mm_loadu_si128(reinterpret_cast<__m128i const *>(from + index));
        // As signed numbers, those from 0x8000 are less than a space.
        __m128i const other = _mm_or_si128(_mm_or_si128(_mm_cmplt_epi16(units, space), _mm_cmpgt_epi16(units, last)),
            _mm_or_si128(_mm_cmpeq_epi16(units, quote), _mm_cmpeq_epi16(units, backslash)));
        if (_mm_movemask_epi8(other) != 0)
            break;
        _mm_storel_epi64(reinterpret_cast<__m128i *>(to + index), _mm_packus_epi16(units, units));
    }
#endif
    for (; index < count && isPlain(from[index]); ++index)
        to[index] = static_cast<char>(from[index]);
    return index;
}

} // namespace Serialize::Json
