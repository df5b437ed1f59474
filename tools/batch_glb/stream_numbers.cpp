#include "tools/batch_glb/stream_numbers.h"

#include <charconv>
#include <cmath>
#include <cstdint>

namespace {

// Exact as doubles, all of them; a whole number below 2^53 divided by one of them is rounded once.
constexpr double powers_of_ten[] = {1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
constexpr int most_digits = 15; // 10^15 is below 2^53

bool is_digit(char c) {
    return c >= '0' && c <= '9';
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
    const char* const first = at;
    while (at != end && is_digit(*at))
        digits = digits * 10 + static_cast<std::uint64_t>(*at++ - '0');
    auto count = at - first;
    auto behind_point = count - count;
    if (at != end && *at == '.' && count > 0) {
        const char* const point = ++at;
        while (at != end && is_digit(*at))
            digits = digits * 10 + static_cast<std::uint64_t>(*at++ - '0');
        behind_point = at - point;
        count += behind_point;
    }
    const bool plain = count > 0 && count <= most_digits && (at == end || (*at != 'e' && *at != 'E'));
    if (!plain)
        return take_slowly(text, number);
    const double value = static_cast<double>(digits) / powers_of_ten[behind_point];
    number = negative ? -value : value;
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
