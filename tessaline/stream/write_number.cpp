// How a number becomes text: an exact path in integers for the magnitudes that geometry has, and the standard library
// for all others.

#include "tessaline/stream/write_number.h"

#include "qlw/text_numbers.h"

#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>

// The digits are formed in one word whose low byte is the first digit, and stored at once.
static_assert(std::endian::native == std::endian::little,
              "digit words are stored with the first digit in the low byte");

namespace {

__extension__ using uint128 = unsigned __int128;

// The fast path covers [fast_from, fast_below). Below it 5^k would leave 64 bits; from the upper bound on, nine digits
// round to 1e+09, which has exponent form.
constexpr double fast_from = 1e-19;
constexpr double fast_below = 999999999.5;

constexpr std::uint64_t sign_bit = 0x8000000000000000;
constexpr std::uint64_t bits_of_one = 0x3FF0000000000000;

constexpr int least_exponent = -19; // of fast_from
constexpr int most_power = 8 - least_exponent;

constexpr std::array<std::uint64_t, most_power + 1> powers_of_five = [] {
    std::array<std::uint64_t, most_power + 1> powers{};
    std::uint64_t power = 1; // 5^27 is below 2^63, so no step overflows
    for (auto& p : powers) {
        p = power;
        power *= 5;
    }
    return powers;
}();

// 10^(i + least_exponent), each the nearest double. The last is above the fast range: no value reaches it.
constexpr std::array<double, 29> powers_of_ten = {1e-19, 1e-18, 1e-17, 1e-16, 1e-15, 1e-14, 1e-13, 1e-12, 1e-11, 1e-10,
                                                  1e-9,  1e-8,  1e-7,  1e-6,  1e-5,  1e-4,  1e-3,  1e-2,  1e-1,  1e0,
                                                  1e1,   1e2,   1e3,   1e4,   1e5,   1e6,   1e7,   1e8,   1e9};

struct decimal {
    std::uint32_t digits; // nine: 100000000 to 999999999
    int exponent;         // of the first digit
};

// The nine significant digits of a magnitude of the fast range, rounded half to even.
// With value = m 2^(e-52) the digits are m 5^k 2^(e-52+k), k = 8 - exponent. m is below 2^53 and 5^k below 2^63, so the
// product fits 128 bits and is exact; the shift is 23 to 89, never 0.
inline decimal nine_digits(double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const int e = static_cast<int>(bits >> 52) - 1023;
    const std::uint64_t m = (bits & 0xFFFFFFFFFFFFF) | 0x10000000000000;

    int exponent = (1233 * e) >> 12; // floor(e log10 2), right for |e| below 93; at most one too low for value
    exponent += value >= powers_of_ten[static_cast<unsigned>(exponent + 1 - least_exponent)] ? 1 : 0;
    const auto k = static_cast<unsigned>(8 - exponent);
    const auto shift = static_cast<unsigned>(52 - e) - k;

    const uint128 sum = static_cast<uint128>(m) * powers_of_five[k] + (static_cast<uint128>(1) << (shift - 1));
    auto digits = static_cast<std::uint32_t>(sum >> shift);
    const bool was_tie = (sum & ((static_cast<uint128>(1) << shift) - 1)) == 0;
    digits &= ~static_cast<std::uint32_t>(was_tie);
    if (digits == 1000000000) // the nine nines rounded up
        return {100000000, exponent + 1};
    return {digits, exponent};
}

// The eight decimal digits of a number below 10^8, one a byte, the first in the low byte. Each step halves the lanes:
// x / 100 is x * 10486 >> 20 for x below 10^4, x / 10 is x * 103 >> 10 for x below 100.
inline std::uint64_t digit_bytes(std::uint32_t number) {
    const std::uint64_t fours = number / 10000 | static_cast<std::uint64_t>(number % 10000) << 32;
    const std::uint64_t hundreds = (fours * 10486 >> 20) & 0x0000007F0000007F;
    const std::uint64_t twos = hundreds | (fours - 100 * hundreds) << 16;
    const std::uint64_t tens = (twos * 103 >> 10) & 0x000F000F000F000F;
    return tens | (twos - 10 * tens) << 8;
}

inline void store(char* out, std::uint64_t bytes) {
    std::memcpy(out, &bytes, sizeof bytes);
}

// Writes a magnitude of the fast range. Vertices mix zeros, whole numbers and fractions of any size, so what can be
// done without a branch is: zero comes as 1.0 with is_zero and gets another first digit, and the places of digits and
// point are computed.
inline char* write_fast(char* out, double magnitude, bool is_zero) {
    const decimal number = nine_digits(magnitude);
    const char first = static_cast<char>('0' + number.digits / 100000000 - static_cast<unsigned>(is_zero));
    const std::uint64_t bytes = digit_bytes(number.digits % 100000000);
    const std::uint64_t text = bytes | 0x3030303030303030;
    // Significant digits behind the first: the bytes up to the highest that is not 0. The bit put in keeps the count
    // defined.
    const int further = static_cast<int>((std::bit_width(bytes << 1 | 1) + 6) / 8);
    const int d = number.exponent;

    if (d < -4) [[unlikely]] {
        out[0] = first;
        out[1] = '.';
        store(out + 2, text);
        out += further == 0 ? 1 : further + 2;
        std::memcpy(out, "e-", 2);
        out[2] = static_cast<char>('0' + -d / 10);
        out[3] = static_cast<char>('0' + -d % 10);
        return out + 4;
    }
    // Masks instead of conditions: the compiler would turn those into jumps that vertices make unpredictable.
    const int below_one = d >> 31;                        // all bits set if there are zeros in front
    const int has_fraction = (d - further) >> 31;         // all bits set if digits stand behind the point
    const int whole = d & ~below_one;                     // digits before the point, less one
    const int start = (1 - d) & below_one;                // where the first digit stands
    const int behind = ((d ^ below_one) - below_one) + 2; // where the digits behind the point stand, |d| + 2
    std::memcpy(out, "0.000000", 8);
    out[start] = first;
    store(out + start + 1, text);
    out[whole + 1] = '.';
    store(out + behind, text >> (8 * whole & 63)); // for d = 8 there are none, and the length leaves them out
    const int digits_or_places = d ^ ((d ^ further) & has_fraction); // the larger of further and d
    return out + digits_or_places + 1 - has_fraction - (d & below_one);
}

} // namespace

char* write_number(char* out, double value) {
    const auto bits = std::bit_cast<std::uint64_t>(value);
    const std::uint64_t magnitude_bits = bits & ~sign_bit;
    const bool is_zero = magnitude_bits == 0;
    const auto magnitude = std::bit_cast<double>(magnitude_bits | (is_zero ? bits_of_one : 0));
    if (magnitude >= fast_from && magnitude < fast_below) [[likely]] {
        *out = '-';
        return write_fast(out + (bits >> 63), magnitude, is_zero);
    }
    if (std::isnan(value))
        return std::copy(not_a_number_text.begin(), not_a_number_text.end(), out);
    return std::to_chars(out, out + number_room, value, std::chars_format::general, 9).ptr;
}

char* write_integer(char* out, int value) {
    return std::to_chars(out, out + number_room, value).ptr;
}
