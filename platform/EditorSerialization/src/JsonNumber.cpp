#include "JsonNumber.h"

#include <cmath>
#include <cstring>
#include <string_view>

#include <nlohmann/json.hpp>

#include "JsonForms.h"

namespace Serialize::Json {

namespace {

namespace grisu = nlohmann::detail::dtoa_impl;
using grisu::diyfp;

// Of GCC and clang; pedantry forbids the plain name.
__extension__ typedef unsigned __int128 Wide;

constexpr std::uint32_t eightZeros = 100'000'000;

constexpr char digitPairs[] = "00010203040506070809101112131415161718192021222324252627282930313233343536373839"
                              "40414243444546474849505152535455565758596061626364656667686970717273747576777879"
                              "8081828384858687888990919293949596979899";

/// As `grisu::compute_boundaries`, whose normalisation needs no loop here: the width of the mantissa is known.
grisu::boundaries boundariesOf(double number)
{
    constexpr int width = std::numeric_limits<double>::digits - 1; // of the stored mantissa
    constexpr std::uint64_t hidden = std::uint64_t(1) << width;
    std::uint64_t bits = 0;
    std::memcpy(&bits, &number, sizeof bits);
    auto const biased = static_cast<int>(bits >> width);
    if (biased <= 1)
        return grisu::compute_boundaries(number);
    std::uint64_t const mantissa = (bits & (hidden - 1)) + hidden;
    constexpr int shift = 63 - width; // from a mantissa to one of 64 bits
    int const exponent = biased - (std::numeric_limits<double>::max_exponent - 1) - width - shift;
    std::uint64_t const halfStep = std::uint64_t(1) << (shift - 1);
    std::uint64_t const number64 = mantissa << shift;
    // Below a power of two the step is half as wide.
    std::uint64_t const below = mantissa == hidden ? halfStep / 2 : halfStep;
    return {diyfp(number64, exponent), diyfp(number64 - below, exponent), diyfp(number64 + halfStep, exponent)};
}

/// Eight digits, with zeros in front.
void writeEight(char * to, std::uint32_t number)
{
    std::uint32_t const high = number / 10'000;
    std::uint32_t const low = number % 10'000;
    std::memcpy(to, digitPairs + high / 100 * 2, 2);
    std::memcpy(to + 2, digitPairs + high % 100 * 2, 2);
    std::memcpy(to + 4, digitPairs + low / 100 * 2, 2);
    std::memcpy(to + 6, digitPairs + low % 100 * 2, 2);
}

/// The product, rounded to its upper 64 bits: that of the library, in one multiplication.
diyfp product(diyfp const & a, diyfp const & b)
{
    Wide const wide = Wide(a.f) * b.f;
    return {static_cast<std::uint64_t>(wide >> 64) + (static_cast<std::uint64_t>(wide) >> 63), a.e + b.e + 64};
}

/// `grisu2_digit_gen` of the library, but with eight digits of the fraction at once where the text is that long. There
/// it stops after the first digit at which the remainder is not more than `delta`. Both grow tenfold with each digit,
/// the remainder by less where a digit is taken off; so a remainder that is more than `delta` after eight digits was so
/// after each of them.
void writeDigits(char * to, int & length, int & exponent, diyfp const & least, diyfp const & number, diyfp const & most)
{
    int const shift = -most.e;
    std::uint64_t const one = std::uint64_t(1) << shift;
    std::uint64_t delta = most.f - least.f;
    std::uint64_t fraction = most.f & (one - 1);
    Wide const product = Wide(fraction) * eightZeros;
    std::uint64_t const rest = static_cast<std::uint64_t>(product) & (one - 1);
    Wide const restDelta = Wide(delta) * eightZeros;
    if (fraction <= delta || rest <= restDelta) // it may end before the ninth digit of the fraction
        return grisu::grisu2_digit_gen(to, length, exponent, least, number, most);

    length += static_cast<int>(writeNumber(to, static_cast<std::uint32_t>(most.f >> shift)) - to);
    writeEight(to + length, static_cast<std::uint32_t>(product >> shift));
    length += 8;
    int places = 8;
    fraction = rest;
    delta = static_cast<std::uint64_t>(restDelta);
    std::uint64_t distance = (most.f - number.f) * eightZeros;
    do {
        fraction *= 10;
        delta *= 10;
        distance *= 10;
        to[length++] = static_cast<char>('0' + (fraction >> shift));
        fraction &= one - 1;
        ++places;
    } while (fraction > delta);
    exponent -= places;
    grisu::grisu2_round(to, length, distance, delta, fraction, one);
}

/// Copies a fixed number of bytes, which may overlap their new place.
template <std::size_t count> void move(char * to, char const * from)
{
    char bytes[count];
    std::memcpy(bytes, from, count);
    std::memcpy(to, bytes, count);
}

/// As `grisu::format_buffer`, with fixed numbers of bytes to move where there are few.
char * format(char * to, int length, int exponent)
{
    constexpr int leastExponent = -4;
    constexpr int mostExponent = std::numeric_limits<double>::digits10;
    int const point = length + exponent; // behind the first digit at 1
    if (0 < point && point < length && point <= mostExponent) {
        static_assert(std::numeric_limits<double>::max_digits10 <= 17);
        if (point <= 8)
            move<16>(to + point + 1, to + point);
        else
            move<8>(to + point + 1, to + point);
        to[point] = '.';
        return to + length + 1;
    }
    if (leastExponent < point && point <= 0) {
        move<8>(to + 2 - point + 16, to + 16);
        move<16>(to + 2 - point, to);
        static_assert(leastExponent == -4, "three zeros at most");
        for (int index = 0; index < 2 - point; ++index)
            to[index] = "0.000"[index];
        return to + 2 - point + length;
    }
    return grisu::format_buffer(to, length, exponent, leastExponent, mostExponent);
}

} // namespace

char * writeNumber(char * to, double number)
{
    if (!std::isfinite(number)) {
        std::string_view const text = std::isnan(number) ? Forms::notANumber
                                      : number > 0       ? Forms::infinity
                                                         : Forms::minusInfinity;
        *to++ = '"';
        to += text.copy(to, text.size());
        *to++ = '"';
        return to;
    }
    if (std::signbit(number)) {
        number = -number;
        *to++ = '-';
    }
    if (std::fpclassify(number) == FP_ZERO) {
        std::memcpy(to, "0.0", 3);
        return to + 3;
    }
    // As `nlohmann::detail::to_chars`, whose steps these are.
    grisu::boundaries const around = boundariesOf(number);
    grisu::cached_power const power = grisu::get_cached_power_for_binary_exponent(around.plus.e);
    diyfp const scale(power.f, power.e);
    diyfp const least = product(around.minus, scale);
    diyfp const most = product(around.plus, scale);
    int length = 0;
    int exponent = -power.k;
    writeDigits(to, length, exponent, {least.f + 1, least.e}, product(around.w, scale), {most.f - 1, most.e});
    return format(to, length, exponent);
}

} // namespace Serialize::Json
