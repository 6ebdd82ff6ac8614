#include "Decimal.h"

#include <array>
#include <cstring>
#include <limits>

namespace Serialize::Json {

namespace {

static_assert(std::numeric_limits<double>::is_iec559 && std::numeric_limits<double>::digits == 53);

// Of GCC and clang; pedantry forbids the plain name.
__extension__ typedef unsigned __int128 Wide;

constexpr std::uint64_t lower(Wide number)
{
    return static_cast<std::uint64_t>(number);
}

constexpr std::uint64_t upper(Wide number)
{
    return static_cast<std::uint64_t>(number >> 64);
}

/// 1 / 5^n.
struct Reciprocal
{
    Wide scaled;  ///< 2^(128 + exponent) / 5^n, rounded down; the uppermost bit is set
    int exponent; ///< largest for which 2^exponent is at most 5^n
};

constexpr unsigned maxPlaces = 27; // 5^27 is the last that 64 bits hold

constexpr std::array<Reciprocal, maxPlaces + 1> reciprocals()
{
    std::array<Reciprocal, maxPlaces + 1> table{};
    std::uint64_t power = 1;
    for (unsigned places = 1; places <= maxPlaces; ++places) {
        power *= 5;
        Reciprocal & entry = table[places];
        while (entry.exponent < 63 && power >> (entry.exponent + 1) != 0)
            ++entry.exponent;
        // Long division. 2^exponent is less than the power, so that the first 128 bits behind the point are the result.
        Wide rest = Wide(1) << entry.exponent;
        for (int bit = 0; bit < 128; ++bit) {
            rest <<= 1;
            entry.scaled <<= 1;
            if (rest >= power) {
                rest -= power;
                entry.scaled |= 1;
            }
        }
    }
    return table;
}

constexpr auto table = reciprocals();

} // namespace

bool decimal(std::uint64_t digits, unsigned places, double & value)
{
    static constexpr double powers[] = {1e0, 1e1, 1e2, 1e3, 1e4, 1e5, 1e6, 1e7, 1e8, 1e9, 1e10, 1e11, 1e12, 1e13, 1e14,
        1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr unsigned maxExactPlaces = 22; // 5^22 is the last that 53 bits hold
    if (digits <= std::uint64_t(1) << 53 && places <= maxExactPlaces) {
        // Both are exact in a double, so that the quotient is rounded once.
        value = static_cast<double>(digits) / powers[places];
        return true;
    }
    if (places == 0) {
        value = static_cast<double>(digits);
        return true;
    }
    if (places > maxPlaces)
        return false;

    // The uppermost 128 bits of the product of `digits`, shifted up to the top, and the reciprocal. The exact product
    // is more, by less than two units: one for the rest of the reciprocal, one for the bits that are dropped.
    Reciprocal const & reciprocal = table[places];
    int const zeros = __builtin_clzll(digits);
    std::uint64_t const factor = digits << zeros;
    Wide product = Wide(factor) * upper(reciprocal.scaled) + upper(Wide(factor) * lower(reciprocal.scaled));
    bool const isShort = product >> 127 == 0;
    if (isShort)
        product <<= 1;

    constexpr int dropped = 11; // 53 of the upper 64 bits remain
    constexpr std::uint64_t half = std::uint64_t(1) << (dropped - 1);
    std::uint64_t const rest = upper(product) & (2 * half - 1);
    constexpr std::uint64_t error = 4; // as `isShort` doubles it
    if (rest == half - 1 && lower(product) > ~error)
        return false; // it may be half way, or beyond
    std::uint64_t const mantissa = (upper(product) >> dropped) + (rest >= half ? 1 : 0);
    // A mantissa that was rounded up to 2^53 carries into the exponent. None is small or large enough for a special
    // one.
    constexpr int bias = 1023;
    int const exponent = dropped - (isShort ? 1 : 0) - reciprocal.exponent - zeros - static_cast<int>(places);
    std::uint64_t const bits =
        (static_cast<std::uint64_t>(exponent + 52 + bias - 1) << 52) + mantissa; // the mantissa's first bit adds one
    std::memcpy(&value, &bits, sizeof value);
    return true;
}

} // namespace Serialize::Json
