// How hexadecimal text becomes a file again.

#include "skp_ruby/skp_ruby.h"

#include "qlw/qlw_trace.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>

namespace {

constexpr std::size_t length_digits = 8;

// The value of a digit; -1 if it is none.
int digit_value(char digit) {
    if (digit >= '0' && digit <= '9')
        return digit - '0';
    if (digit >= 'A' && digit <= 'F')
        return digit - 'A' + 10;
    if (digit >= 'a' && digit <= 'f')
        return digit - 'a' + 10;
    return -1;
}

bool has_at(std::string_view text, std::size_t at, char wanted) {
    return at < text.size() && text[at] == wanted;
}

// The report for a frame that does not fit; null if it does.
const char* frame_fault(std::string_view name, std::string_view text) {
    const std::size_t n = name.size();
    if (!has_at(text, 0, '['))
        return "encoded string for %s does not start with '['): ( %s )";
    if (text.substr(1, n) != name)
        return "encoded string hex_name %s does not match: ( %s )";
    if (!has_at(text, n + 1, ']'))
        return "encoded string for %s does not end with ']': ( %s )";
    if (!has_at(text, n + 2, '[') || !has_at(text, n + 11, ']'))
        return "encoded string for %s does not have buffer length: ( %s )";
    return nullptr;
}

} // namespace

bool decode_hex_digits(std::string_view digits, std::vector<std::uint8_t>& target) {
    if (target.size() < digits.size() / 2)
        return false;
    for (std::size_t at = 0; at + 1 < digits.size(); at += 2) {
        const int high = digit_value(digits[at]);
        const int low = digit_value(digits[at + 1]);
        if (high < 0 || low < 0)
            return false;
        target[at / 2] = static_cast<std::uint8_t>(16 * high + low);
    }
    return true;
}

std::int32_t cl_hex_encode::decode_hex_string(std::string_view name, std::string_view framed_text) {
    data.clear();
    hex_length = 0;
    hex_name = name;
    if (const char* const fault = frame_fault(name, framed_text)) {
        cl_trace("skp_ruby", __LINE__, "cl_hex_encode::decode_hex_string", 4, 0)
            .report(fault, hex_name, framed_text.substr(0, 20));
        return 0;
    }
    const std::string length_text(framed_text.substr(name.size() + 3, length_digits));
    hex_length = std::atoi(length_text.c_str());
    const std::size_t digits_from = name.size() + 13;
    const std::string_view digits =
        digits_from < framed_text.size() ? framed_text.substr(digits_from) : std::string_view();
    // Eight decimal digits bound the size to 50 MB, whatever the text holds.
    const std::size_t wanted = static_cast<std::size_t>(std::max(0, hex_length));
    data.assign(wanted / 2, 0);
    decode_hex_digits(digits.substr(0, std::min(digits.size(), wanted)), data);
    return static_cast<std::int32_t>(data.size());
}
