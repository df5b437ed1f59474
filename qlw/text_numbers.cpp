#include "qlw/text_numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace {

constexpr std::string_view white_space = " \t\n\v\f\r"; // what the C library skips in front of a number

constexpr bool is_digit(char letter) {
    return letter >= '0' && letter <= '9';
}

} // namespace

std::int32_t decimal_value(std::string_view text) {
    text.remove_prefix(std::min(text.find_first_not_of(white_space), text.size()));
    const bool is_negative = text.starts_with('-');
    if (is_negative || text.starts_with('+'))
        text.remove_prefix(1);

    constexpr std::uint64_t largest = std::numeric_limits<std::uint32_t>::max();
    std::uint64_t number = 0;
    for (std::size_t i = 0; i < text.size() && is_digit(text[i]); ++i) {
        number = number * 10 + static_cast<std::uint64_t>(text[i] - '0');
        if (number > largest)
            return static_cast<std::int32_t>(largest); // the sign no longer counts
    }
    const auto unsigned_value = static_cast<std::uint32_t>(number);
    return static_cast<std::int32_t>(is_negative ? 0 - unsigned_value : unsigned_value);
}

double double_value(std::string_view text) {
    return std::strtod(std::string(text).c_str(), nullptr);
}

std::string integer_text(std::int32_t number) {
    return std::to_string(number);
}

std::string number_text(double number) {
    if (std::isnan(number))
        return std::string(not_a_number_text);
    char text[24]; // sign, nine digits, point, "e+308": 16 at most
    const auto end = std::to_chars(text, text + sizeof text, number, std::chars_format::general, 9);
    return {text, end.ptr};
}
