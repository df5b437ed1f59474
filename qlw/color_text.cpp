#include "qlw/color_text.h"

#include "qlw/text_numbers.h"

#include <cstdlib>

namespace {

constexpr char hexadecimal_digits[] = "0123456789abcdef";
constexpr std::string_view rgb_start = "rgb(";

void append_hexadecimal(std::string& text, color_ref byte) {
    text += hexadecimal_digits[byte >> 4 & 0xF];
    text += hexadecimal_digits[byte & 0xF];
}

// The low byte of the hexadecimal number that two letters at `start` make; 0 where there is none.
color_ref hexadecimal_byte(std::string_view text, std::size_t start) {
    if (start >= text.size())
        return 0;
    const std::string pair(text.substr(start, 2));
    return static_cast<color_ref>(std::strtoul(pair.c_str(), nullptr, 16) & 0xFF);
}

color_ref decimal_byte(std::string_view text) {
    return static_cast<color_ref>(decimal_value(text)) & 0xFF;
}

color_ref color_of_bytes(color_ref red, color_ref green, color_ref blue) {
    return red | green << 8 | blue << 16;
}

// text: what stands behind "rgb(", its last letter being the parenthesis, whatever it is.
color_ref color_of_list(std::string_view text) {
    text.remove_suffix(text.empty() ? 0 : 1);
    const std::size_t first = text.find(',');
    if (first == std::string_view::npos)
        return 0;
    const color_ref red = decimal_byte(text.substr(0, first));
    const std::string_view rest = text.substr(first + 1);
    const std::size_t second = rest.find(',');
    if (second == std::string_view::npos)
        return red;
    return color_of_bytes(red, decimal_byte(rest.substr(0, second)), decimal_byte(rest.substr(second + 1)));
}

} // namespace

std::string color_to_text(color_ref color) {
    std::string text = "#";
    append_hexadecimal(text, color & 0xFF);
    append_hexadecimal(text, color >> 8 & 0xFF);
    append_hexadecimal(text, color >> 16 & 0xFF);
    return text;
}

color_ref text_to_color(std::string_view text) {
    if (text.starts_with('#'))
        return color_of_bytes(hexadecimal_byte(text, 1), hexadecimal_byte(text, 3), hexadecimal_byte(text, 5));
    if (text.starts_with(rgb_start))
        return color_of_list(text.substr(rgb_start.size()));
    return static_cast<color_ref>(decimal_value(text));
}
