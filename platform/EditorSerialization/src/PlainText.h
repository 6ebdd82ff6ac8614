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
    auto const differ = [&](std::size_t at, auto word) {
        auto other = word;
        std::memcpy(&word, a + at, sizeof word);
        std::memcpy(&other, b + at, sizeof other);
        return word != other;
    };
    // The last word overlaps the one before it.
    if (count >= 8) {
        for (std::size_t at = 0; at + 8 < count; at += 8)
            if (differ(at, std::uint64_t()))
                return false;
        return !differ(count - 8, std::uint64_t());
    }
    if (count >= 4)
        return !differ(0, std::uint32_t()) && !differ(count - 4, std::uint32_t());
    for (std::size_t at = 0; at < count; ++at)
        if (a[at] != b[at])
            return false;
    return true;
}

#ifdef __SSE2__
/// Eight characters of a text in ASCII, as units.
inline __m128i eightUnits(char const * ascii)
{
    return _mm_unpacklo_epi8(_mm_loadl_epi64(reinterpret_cast<__m128i const *>(ascii)), _mm_setzero_si128());
}
#endif

/// Whether the units are those of a text in ASCII of the same length.
inline bool areSame(char16_t const * units, char const * ascii, std::size_t count)
{
#ifdef __SSE2__
    if (count >= 8) {
        auto const differ = [&](std::size_t at) {
            __m128i const others = _mm_loadu_si128(reinterpret_cast<__m128i const *>(units + at));
            return _mm_movemask_epi8(_mm_cmpeq_epi16(eightUnits(ascii + at), others)) != 0xFFFF;
        };
        for (std::size_t at = 0; at + 8 < count; at += 8)
            if (differ(at))
                return false;
        return !differ(count - 8); // which may overlap the eight before
    }
#endif
    for (std::size_t at = 0; at < count; ++at)
        if (units[at] != static_cast<char16_t>(ascii[at]))
            return false;
    return true;
}

/// Copies a text in ASCII.
inline void widen(char16_t * to, char const * ascii, std::size_t count)
{
#ifdef __SSE2__
    if (count >= 8) {
        auto const copy = [&](std::size_t at) {
            _mm_storeu_si128(reinterpret_cast<__m128i *>(to + at), eightUnits(ascii + at));
        };
        for (std::size_t at = 0; at + 8 < count; at += 8)
            copy(at);
        return copy(count - 8);
    }
#endif
    for (std::size_t at = 0; at < count; ++at)
        to[at] = static_cast<char16_t>(ascii[at]);
}

/// `memcpy` for the few bytes of a key, without a call.
inline void copyShort(char * to, char const * from, std::size_t count)
{
    auto const copy = [&](std::size_t at, auto word) {
        std::memcpy(&word, from + at, sizeof word);
        std::memcpy(to + at, &word, sizeof word);
    };
    // The last word overlaps the one before it.
    if (count >= 8) {
        for (std::size_t at = 0; at + 8 < count; at += 8)
            copy(at, std::uint64_t());
        return copy(count - 8, std::uint64_t());
    }
    if (count >= 4) {
        copy(0, std::uint32_t());
        return copy(count - 4, std::uint32_t());
    }
    for (std::size_t at = 0; at < count; ++at)
        to[at] = from[at];
}

/// The first byte that is no blank, or the end.
inline char const * endOfBlanks(char const * begin, char const * end)
{
#ifdef __SSE2__
    for (; end - begin >= 16; begin += 16) {
        __m128i const bytes = _mm_loadu_si128(reinterpret_cast<__m128i const *>(begin));
        unsigned const blanks = static_cast<unsigned>(_mm_movemask_epi8(_mm_cmpeq_epi8(bytes, _mm_set1_epi8(' '))));
        if (blanks != 0xFFFF)
            return begin + __builtin_ctz(~blanks);
    }
#endif
    while (begin != end && *begin == ' ')
        ++begin;
    return begin;
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
    auto const copyEight = [&](std::size_t at) {
        __m128i const units = _mm_loadu_si128(reinterpret_cast<__m128i const *>(from + at));
        // As signed numbers, those from 0x8000 are less than a space.
        __m128i const other = _mm_or_si128(_mm_or_si128(_mm_cmplt_epi16(units, space), _mm_cmpgt_epi16(units, last)),
            _mm_or_si128(_mm_cmpeq_epi16(units, quote), _mm_cmpeq_epi16(units, backslash)));
        if (_mm_movemask_epi8(other) != 0)
            return false;
        _mm_storel_epi64(reinterpret_cast<__m128i *>(to + at), _mm_packus_epi16(units, units));
        return true;
    };
    while (count - index >= 8 && copyEight(index))
        index += 8;
    // The last eight may overlap those before.
    if (count >= 8 && count - index < 8 && copyEight(count - 8))
        return count;
#endif
    for (; index < count && isPlain(from[index]); ++index)
        to[index] = static_cast<char>(from[index]);
    return index;
}

} // namespace Serialize::Json
