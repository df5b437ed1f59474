#include "qlw/text_format.h"

#include "qlw/text_numbers.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

constexpr int largest_field = 500;        // width and precision; no text of the program comes near
constexpr std::size_t longest_real = 900; // sign, 309 digits of the largest double, point, largest_field decimals

struct conversion {
    bool left = false;
    bool plus = false;
    bool blank = false;
    bool zeros = false;
    int width = 0;
    int precision = -1; // -1: not given
    char letter = 0;
};

// Takes a number of at most largest_field off the front of `rest`; 0 if no digit stands there.
bool take_number(std::string_view& rest, int& number) {
    number = 0;
    while (!rest.empty() && rest.front() >= '0' && rest.front() <= '9') {
        number = number * 10 + (rest.front() - '0');
        if (number > largest_field)
            return false;
        rest.remove_prefix(1);
    }
    return true;
}

bool take_flag(char letter, conversion& item) {
    switch (letter) {
    case '-':
        return item.left = true;
    case '+':
        return item.plus = true;
    case ' ':
        return item.blank = true;
    case '0':
        return item.zeros = true;
    default:
        return false;
    }
}

// Takes what stands behind a "%" off the front of `rest`.
bool take_conversion(std::string_view& rest, conversion& item) {
    while (!rest.empty() && take_flag(rest.front(), item))
        rest.remove_prefix(1);
    if (!take_number(rest, item.width))
        return false;
    if (!rest.empty() && rest.front() == '.') {
        rest.remove_prefix(1);
        if (!take_number(rest, item.precision))
            return false;
    }
    while (!rest.empty() && std::string_view("hlz").find(rest.front()) != std::string_view::npos)
        rest.remove_prefix(1);
    if (rest.empty())
        return false;
    item.letter = rest.front();
    rest.remove_prefix(1);
    return true;
}

// Puts sign and digits into the field. zeros_allowed: whether the flag 0 fills between them.
void append_number(std::string& out, const conversion& item, std::string_view sign, std::string_view digits,
                   bool zeros_allowed) {
    const std::size_t length = sign.size() + digits.size();
    const auto width = static_cast<std::size_t>(item.width);
    const std::size_t fill = width > length ? width - length : 0;
    const bool with_zeros = item.zeros && zeros_allowed && !item.left;
    if (!item.left && !with_zeros)
        out.append(fill, ' ');
    out.append(sign);
    if (with_zeros)
        out.append(fill, '0');
    out.append(digits);
    if (item.left)
        out.append(fill, ' ');
}

void append_text(std::string& out, const conversion& item, std::string_view text) {
    if (item.precision >= 0)
        text = text.substr(0, static_cast<std::size_t>(item.precision));
    append_number(out, item, {}, text, false);
}

std::string_view sign_of(bool is_negative, const conversion& item) {
    return is_negative ? "-" : item.plus ? "+" : item.blank ? " " : "";
}

void append_integer(std::string& out, const conversion& item, const text_argument& argument) {
    const bool is_signed = item.letter == 'd' || item.letter == 'i';
    std::uint64_t magnitude = argument.is_wide ? argument.bits : static_cast<std::uint32_t>(argument.bits);
    bool is_negative = false;
    if (is_signed) {
        const auto value = argument.is_wide ? static_cast<std::int64_t>(argument.bits)
                                            : static_cast<std::int64_t>(static_cast<std::int32_t>(argument.bits));
        is_negative = value < 0;
        magnitude = is_negative ? 0 - static_cast<std::uint64_t>(value) : static_cast<std::uint64_t>(value);
    }
    const int base = item.letter == 'x' || item.letter == 'X' ? 16 : item.letter == 'o' ? 8 : 10;
    std::array<char, 64> buffer;
    char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), magnitude, base).ptr;
    std::string digits(buffer.data(), end);
    if (item.precision == 0 && magnitude == 0)
        digits.clear();
    if (item.precision > static_cast<int>(digits.size()))
        digits.insert(0, static_cast<std::size_t>(item.precision) - digits.size(), '0');
    if (item.letter == 'X')
        std::transform(digits.begin(), digits.end(), digits.begin(),
                       [](char c) { return c >= 'a' ? static_cast<char>(c - 'a' + 'A') : c; });
    append_number(out, item, is_signed ? sign_of(is_negative, item) : "", digits, item.precision < 0);
}

void append_real(std::string& out, const conversion& item, double value) {
    const char letter = item.letter < 'a' ? static_cast<char>(item.letter - 'A' + 'a') : item.letter;
    const auto form = letter == 'f'   ? std::chars_format::fixed
                      : letter == 'e' ? std::chars_format::scientific
                                      : std::chars_format::general;
    const int precision = item.precision < 0 ? 6 : item.precision; // printf's own
    std::array<char, longest_real> buffer;
    // The standard defines this call as printf with the same conversion in the C locale.
    char* const end =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::fabs(value), form, precision).ptr;
    const bool is_no_number = std::isnan(value);
    std::string digits = is_no_number ? std::string(not_a_number_text) : std::string(buffer.data(), end);
    if (item.letter != letter)
        std::transform(digits.begin(), digits.end(), digits.begin(),
                       [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
    append_number(out, item, sign_of(std::signbit(value) && !is_no_number, item), digits, std::isfinite(value));
}

std::optional<text_argument::kind> kind_for(char letter) {
    if (letter == 's')
        return text_argument::kind::text;
    if (std::string_view("diuxXoc").find(letter) != std::string_view::npos)
        return text_argument::kind::integer;
    if (std::string_view("fFeEgG").find(letter) != std::string_view::npos)
        return text_argument::kind::real;
    return std::nullopt;
}

void append_argument(std::string& out, const conversion& item, const text_argument& argument) {
    switch (argument.type) {
    case text_argument::kind::text:
        append_text(out, item, argument.text);
        break;
    case text_argument::kind::real:
        append_real(out, item, argument.real);
        break;
    case text_argument::kind::integer:
        if (item.letter == 'c') {
            const char letter = static_cast<char>(argument.bits);
            append_number(out, item, {}, std::string_view(&letter, 1), false);
        } else {
            append_integer(out, item, argument);
        }
        break;
    }
}

} // namespace

bool append_formatted(std::string& out, std::string_view format, std::span<const text_argument> arguments) {
    const std::size_t start = out.size();
    std::size_t used = 0;
    while (!format.empty()) {
        const std::size_t percent = format.find('%');
        out.append(format.substr(0, percent));
        if (percent == std::string_view::npos)
            break;
        format.remove_prefix(percent + 1);
        if (format.starts_with('%')) {
            out += '%';
            format.remove_prefix(1);
            continue;
        }
        conversion item;
        if (!take_conversion(format, item) || used == arguments.size() ||
            kind_for(item.letter) != arguments[used].type) {
            out.resize(start);
            return false;
        }
        append_argument(out, item, arguments[used++]);
    }
    return true;
}
