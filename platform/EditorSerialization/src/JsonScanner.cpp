#include "JsonScanner.h"

#include <charconv>
#include <cstring>
#include <limits>

#include <QtEndian>

#include "Decimal.h"
#include "JsonForms.h"
#include "Utf8.h"

namespace Serialize::Json {

namespace {

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// The number that up to eight digits spell.
/// @param text    has eight bytes
/// @param number  is that of the digits, 0 without any
/// Returns how many digits there are.
std::size_t upToEightDigits(char const * text, std::uint64_t & number)
{
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, text, sizeof bytes);
    constexpr std::uint64_t upper = 0xF0F0F0F0F0F0F0F0;
    // Nothing in the bytes of digits. What a byte that is none carries goes into later bytes, which do not count.
    std::uint64_t const others = ((bytes & upper) | (((bytes + 0x0606060606060606) & upper) >> 4)) ^ 0x3333333333333333;
    int const count = others ? __builtin_ctzll(others) / 8 : 8;
    number = 0;
    if (count == 0)
        return 0;
    // With zeros in front, as the first digit is in the lowest byte. Pairs, then fours, then all eight, each in one
    // multiplication.
    bytes = (bytes - 0x3030303030303030) << (64 - 8 * count);
    bytes = bytes * 10 + (bytes >> 8);
    constexpr std::uint64_t mask = 0x000000FF000000FF;
    number = ((bytes & mask) * (100 + (std::uint64_t(1'000'000) << 32)) +
                 ((bytes >> 16) & mask) * (1 + (std::uint64_t(10'000) << 32))) >>
             32;
    return static_cast<std::size_t>(count);
}

/// Appends the digits at the beginning of a text to a number, which wraps around where there are too many. Returns
/// their end.
inline char const * readDigits(char const * next, char const * end, std::uint64_t & number)
{
    static constexpr std::uint64_t powers[] = {1, 10, 100, 1'000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000};
    while (Q_BYTE_ORDER == Q_LITTLE_ENDIAN && end - next >= 8) {
        std::uint64_t digits = 0;
        std::size_t const count = upToEightDigits(next, digits);
        number = number * powers[count] + digits;
        next += count;
        if (count < 8)
            return next;
    }
    while (next != end && isDigit(*next))
        number = number * 10 + static_cast<unsigned>(*next++ - '0');
    return next;
}

} // namespace

bool Scanner::integer(std::int64_t & value)
{
    if (!token())
        return false;
    bool const isNegative = *m_next == '-';
    char const * const first = m_next + (isNegative ? 1 : 0);
    std::uint64_t digits = 0;
    m_next = readDigits(first, m_end, digits);
    constexpr std::ptrdiff_t longest = std::numeric_limits<std::int64_t>::digits10; // any number of that many fits
    std::ptrdiff_t const count = m_next - first;
    if (count == 0 || count > longest || (*first == '0' && count > 1))
        return false;
    if (m_next != m_end && (*m_next == '.' || *m_next == 'e' || *m_next == 'E'))
        return false;
    value = isNegative ? -static_cast<std::int64_t>(digits) : static_cast<std::int64_t>(digits);
    return true;
}

bool Scanner::number(double & value)
{
    if (!token())
        return false;
    char const * const begin = m_next;
    char const * const end = m_end;
    bool const isNegative = *begin == '-';
    char const * const first = begin + (isNegative ? 1 : 0);
    char const * next = first;
    std::uint64_t digits = 0;
    while (next != end && isDigit(*next)) // usually one
        digits = digits * 10 + static_cast<unsigned>(*next++ - '0');
    std::ptrdiff_t count = next - first;
    if (count == 0 || (*first == '0' && count > 1))
        return false;
    bool isInteger = true;
    std::ptrdiff_t places = 0;
    if (next != end && *next == '.') {
        isInteger = false;
        char const * const fraction = next + 1;
        next = readDigits(fraction, end, digits);
        places = next - fraction;
        if (places == 0)
            return false;
        count += places;
    }
    bool hasExponent = false;
    if (next != end && (*next == 'e' || *next == 'E')) {
        hasExponent = true;
        ++next;
        if (next != end && (*next == '+' || *next == '-'))
            ++next;
        char const * const exponent = next;
        while (next != end && isDigit(*next))
            ++next;
        if (next == exponent)
            return false;
    }
    m_next = next;
    constexpr std::ptrdiff_t mostDigits = std::numeric_limits<std::uint64_t>::digits10;
    if (!hasExponent && count <= mostDigits && decimal(digits, static_cast<unsigned>(places), value)) {
        // An integer has no negative zero.
        if (isNegative && !(isInteger && digits == 0))
            value = -value;
        return true;
    }
    auto const result = std::from_chars(begin, next, value);
    return result.ec == std::errc() && result.ptr == next;
}

bool Scanner::numberToken(std::string_view & token)
{
    if (!this->token())
        return false;
    char const * const begin = m_next;
    double value = 0;
    if (!number(value))
        return false;
    token = {begin, static_cast<std::size_t>(m_next - begin)};
    return true;
}

bool Scanner::notFinite(double & value)
{
    using Limits = std::numeric_limits<double>;
    std::string_view text;
    if (!string(text))
        return false;
    if (text == Forms::infinity)
        value = Limits::infinity();
    else if (text == Forms::minusInfinity)
        value = -Limits::infinity();
    else if (text == Forms::notANumber)
        value = Limits::quiet_NaN();
    else
        return false;
    return true;
}

bool Scanner::decode(char const * begin, std::string_view & value, bool & isAscii)
{
    m_decoded.assign(begin, m_next);
    isAscii = true;
    while (m_next != m_end) {
        auto const byte = static_cast<unsigned char>(*m_next);
        if (byte == '"') {
            ++m_next;
            value = m_decoded;
            return true;
        }
        if (byte < 0x20)
            return false;
        if (byte == '\\') {
            unsigned code = 0;
            if (!escape(code))
                return false;
            appendUtf8(m_decoded, code);
            isAscii = isAscii && code < 0x80;
            continue;
        }
        int const length = utf8Length(m_next, m_end);
        if (length == 0)
            return false;
        m_decoded.append(m_next, static_cast<std::size_t>(length));
        m_next += length;
        isAscii = isAscii && length == 1;
    }
    return false;
}

bool Scanner::escape(unsigned & code)
{
    if (m_end - ++m_next < 1)
        return false;
    static constexpr char letters[] = "\"\\/bfnrt";
    static constexpr char meanings[] = "\"\\/\b\f\n\r\t";
    char const letter = *m_next++;
    if (letter != 'u') {
        char const * const found = letter ? std::strchr(letters, letter) : nullptr;
        if (!found)
            return false;
        code = static_cast<unsigned>(meanings[found - letters]);
        return true;
    }
    if (!codeUnit(code) || (code >= 0xDC00 && code <= 0xDFFF))
        return false;
    if (code < 0xD800 || code > 0xDBFF)
        return true;
    unsigned low = 0;
    if (!takeExactly("\\u") || !codeUnit(low) || low < 0xDC00 || low > 0xDFFF)
        return false;
    code = 0x10000 + ((code - 0xD800) << 10) + (low - 0xDC00);
    return true;
}

bool Scanner::codeUnit(unsigned & unit)
{
    constexpr int count = 4;
    if (m_end - m_next < count)
        return false;
    auto const result = std::from_chars(m_next, m_next + count, unit, 16);
    if (result.ec != std::errc() || result.ptr != m_next + count)
        return false;
    m_next += count;
    return true;
}

bool Scanner::skip()
{
    int const outside = m_depth;
    std::bitset<maxDocumentDepth> isObject; // of the levels that are open here
    do {
        if (!token())
            return false;
        bool isTaken = false;
        switch (char const first = *m_next) {
        case '{':
        case '[': {
            if (!open(first))
                return false;
            auto const level = static_cast<std::size_t>(m_depth - 1);
            isObject[level] = first == '{';
            if (token() && *m_next == (first == '{' ? '}' : ']')) {
                isTaken = close(*m_next);
                break;
            }
            if (isObject[level] && !key())
                return false;
            continue;
        }
        case '"':
            isTaken = string(m_skipped);
            break;
        case 't':
        case 'f': {
            bool value = false;
            isTaken = boolean(value);
            break;
        }
        case 'n':
            isTaken = null();
            break;
        default: {
            double value = 0;
            isTaken = number(value);
        }
        }
        if (!isTaken)
            return false;
        // The value may have been the last one of those around it.
        while (m_depth > outside && !take(','))
            if (!close(isObject[static_cast<std::size_t>(m_depth - 1)] ? '}' : ']'))
                return false;
        if (m_depth > outside && isObject[static_cast<std::size_t>(m_depth - 1)] && !key())
            return false;
    } while (m_depth > outside);
    return true;
}

} // namespace Serialize::Json
