#include "JsonScanner.h"

#include <charconv>
#include <cstring>
#include <limits>

#include <QtEndian>

#include "JsonForms.h"
#include "Utf8.h"

namespace Serialize::Json {

namespace {

bool isDigit(char byte)
{
    return byte >= '0' && byte <= '9';
}

/// The number that eight digits spell; false if they are not all digits.
bool eightDigits(char const * digits, std::uint64_t & number)
{
    if (Q_BYTE_ORDER != Q_LITTLE_ENDIAN) // the first digit is expected in the lowest byte
        return false;
    std::uint64_t bytes = 0;
    std::memcpy(&bytes, digits, sizeof bytes);
    constexpr std::uint64_t upper = 0xF0F0F0F0F0F0F0F0;
    if (((bytes & upper) | (((bytes + 0x0606060606060606) & upper) >> 4)) != 0x3333333333333333)
        return false;
    // Pairs, then fours, then all eight, each in one multiplication.
    bytes -= 0x3030303030303030;
    bytes = bytes * 10 + (bytes >> 8);
    constexpr std::uint64_t mask = 0x000000FF000000FF;
    number = ((bytes & mask) * (100 + (std::uint64_t(1'000'000) << 32)) +
                 ((bytes >> 16) & mask) * (1 + (std::uint64_t(10'000) << 32))) >>
             32;
    return true;
}

} // namespace

bool Scanner::integer(std::int64_t & value)
{
    if (!token())
        return false;
    bool const isNegative = *m_next == '-';
    if (isNegative)
        ++m_next;
    char const * const first = m_next;
    std::uint64_t digits = 0; // wraps around for numbers that are too long
    while (m_next != m_end && isDigit(*m_next))
        digits = digits * 10 + static_cast<unsigned>(*m_next++ - '0');
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
    bool const isNegative = *m_next == '-';
    if (isNegative)
        ++m_next;
    std::uint64_t digits = 0; // wraps around for more than nineteen, and is then not used
    char const * const first = m_next;
    while (m_next != m_end && isDigit(*m_next))
        digits = digits * 10 + static_cast<unsigned>(*m_next++ - '0');
    std::ptrdiff_t count = m_next - first;
    if (count == 0 || (*first == '0' && count > 1))
        return false;
    bool isInteger = true;
    std::ptrdiff_t places = 0;
    if (m_next != m_end && *m_next == '.') {
        isInteger = false;
        char const * const fraction = ++m_next;
        for (std::uint64_t eight = 0; m_end - m_next >= 8 && eightDigits(m_next, eight); m_next += 8)
            digits = digits * 100'000'000 + eight;
        while (m_next != m_end && isDigit(*m_next))
            digits = digits * 10 + static_cast<unsigned>(*m_next++ - '0');
        places = m_next - fraction;
        if (places == 0)
            return false;
        count += places;
    }
    bool hasExponent = false;
    if (m_next != m_end && (*m_next == 'e' || *m_next == 'E')) {
        hasExponent = true;
        ++m_next;
        if (m_next != m_end && (*m_next == '+' || *m_next == '-'))
            ++m_next;
        char const * const exponent = m_next;
        while (m_next != m_end && isDigit(*m_next))
            ++m_next;
        if (m_next == exponent)
            return false;
    }
    // Both are exact in a double, so that the quotient is rounded once.
    static constexpr double powers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14,
        1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr std::uint64_t exact = std::uint64_t(1) << std::numeric_limits<double>::digits;
    constexpr std::ptrdiff_t mostDigits = std::numeric_limits<std::uint64_t>::digits10;
    if (!hasExponent && count <= mostDigits && digits <= exact) {
        value = static_cast<double>(digits) / powers[places];
        // An integer has no negative zero.
        if (isNegative && !(isInteger && digits == 0))
            value = -value;
        return true;
    }
    auto const result = std::from_chars(begin, m_next, value);
    return result.ec == std::errc() && result.ptr == m_next;
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
