#include "tools/batch_glb/stream_numbers.h"

#include <bit>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {

// Exact as doubles, all of them; a whole number below 2^53 divided by one of them is rounded once.
constexpr double powers_of_ten[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr std::uint64_t whole_powers[] = {1, 10, 100, 1000, 10000, 100000, 1000000, 10000000, 100000000};
constexpr double signs[] = {1, -1}; // a product with one is exact, and no branch that is right half of the time
constexpr int most_digits = 15;     // 10^15 is below 2^53

bool is_digit(char c) {
    return c >= '0' && c <= '9';
}

// How many of eight characters, the first in the lowest byte, are digits before anything else comes. A byte that is
// none gets its highest bit: at once if it is above 127, else from the sum, which is above 127 from 10 on. What a sum
// carries on goes into later characters only.
unsigned leading_digits(std::uint64_t values) {
    constexpr std::uint64_t up_to_128 = 0x7676767676767676; // 128 - 10
    constexpr std::uint64_t highest_bits = 0x8080808080808080;
    return static_cast<unsigned>(std::countr_zero(((values + up_to_128) | values) & highest_bits)) / 8;
}

// The number that eight digits are, 0 to 9 a byte, the first in the lowest: pairs, then fours, then all.
std::uint64_t number_of_digits(std::uint64_t values) {
    const std::uint64_t pairs = (values * 10 + (values >> 8U)) & 0x00ff00ff00ff00ff;
    const std::uint64_t fours = (pairs * 100 + (pairs >> 16U)) & 0x0000ffff0000ffff;
    return (fours * 10000 + (fours >> 32U)) & 0xffffffff;
}

// Takes the digits at the front behind those of a number; gives how many. Eight at a time, for a question after each
// digit is what takes longest in a stream.
std::ptrdiff_t take_digits(const char*& at, const char* end, std::uint64_t& number) {
    static_assert(std::endian::native == std::endian::little, "the first character is the lowest byte");
    const char* const first = at;
    std::uint64_t eight = 0;
    while (end - at >= static_cast<std::ptrdiff_t>(sizeof eight)) {
        std::memcpy(&eight, at, sizeof eight);
        eight ^= 0x3030303030303030; // "00000000"
        const unsigned count = leading_digits(eight);
        // What is no digit falls out at the top, and zeros come in before the digits.
        if (count > 0)
            number = number * whole_powers[count] + number_of_digits(eight << 8 * (8 - count));
        at += count;
        if (count < sizeof eight)
            return at - first;
    }
    while (at != end && is_digit(*at))
        number = number * 10 + static_cast<std::uint64_t>(*at++ - '0');
    return at - first;
}

bool take_slowly(std::string_view& text, double& number) {
    const auto [next, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    if (error != std::errc())
        return false;
    text.remove_prefix(static_cast<std::size_t>(next - text.data()));
    return true;
}

void skip_blanks(std::string_view& text) {
    while (!text.empty() && text.front() == ' ')
        text.remove_prefix(1);
}

} // namespace

bool take_number(std::string_view& text, double& number) {
    const char* at = text.data();
    const char* const end = at + text.size();
    const bool negative = at != end && *at == '-';
    at += negative ? 1 : 0;
    std::uint64_t digits = 0;
    std::ptrdiff_t count = take_digits(at, end, digits);
    std::ptrdiff_t behind_point = 0;
    if (at != end && *at == '.' && count > 0) {
        ++at;
        behind_point = take_digits(at, end, digits);
        count += behind_point;
    }
    const bool plain = count > 0 && count <= most_digits && (at == end || (*at != 'e' && *at != 'E'));
    if (!plain)
        return take_slowly(text, number);
    number = signs[negative ? 1 : 0] * (static_cast<double>(digits) / powers_of_ten[behind_point]);
    text.remove_prefix(static_cast<std::size_t>(at - text.data()));
    return true;
}

std::optional<std::array<double, 3>> read_triple(std::string_view text) {
    if (text.size() < 2 || text.front() != '(' || text.back() != ')')
        return std::nullopt;
    text.remove_prefix(1);
    text.remove_suffix(1);
    std::array<double, 3> result{};
    for (std::size_t i = 0; i < 3; ++i) {
        if (i > 0) {
            if (text.empty() || text.front() != ',')
                return std::nullopt;
            text.remove_prefix(1);
            skip_blanks(text);
        }
        if (!take_number(text, result[i]))
            return std::nullopt;
    }
    return text.empty() ? std::optional(result) : std::nullopt;
}

std::optional<int> read_integer(std::string_view text) {
    int result = 0;
    const auto [next, error] = std::from_chars(text.data(), text.data() + text.size(), result);
    return error == std::errc() && next == text.data() + text.size() ? std::optional(result) : std::nullopt;
}

std::optional<double> read_real(std::string_view text) {
    double result = 0;
    return take_number(text, result) && text.empty() ? std::optional(result) : std::nullopt;
}

void take_real(std::string_view text, double& into, double factor) {
    const auto number = read_real(text);
    if (number && std::isfinite(*number))
        into = *number * factor;
}

std::optional<std::array<int, 3>> read_corners(std::string_view text) {
    std::array<int, 3> result{};
    const char* at = text.data();
    const char* const end = at + text.size();
    for (std::size_t i = 0; i < 3; ++i) {
        if (i > 0) {
            if (at == end || *at != ',')
                return std::nullopt;
            ++at;
            while (at != end && *at == ' ')
                ++at;
        }
        const auto [next, error] = std::from_chars(at, end, result[i]);
        if (error != std::errc())
            return std::nullopt;
        at = next;
    }
    return at == end ? std::optional(result) : std::nullopt;
}
