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

bool decode_hex_digits(std::string_view text, std::int32_t digit_count, std::span<std::uint8_t> target,
                       std::int32_t& byte_count) {
    if (!text.data() || !target.data() || byte_count < digit_count / 2)
        return false;
    std::size_t written = 0;
    for (std::int32_t at = 0; at < digit_count; at += 2, ++written) {
        const auto from = static_cast<std::size_t>(at);
        const int high = from < text.size() ? digit_value(text[from]) : -1;
        const int low = from + 1 < text.size() ? digit_value(text[from + 1]) : -1;
        if (high < 0 || low < 0 || written == target.size())
            return false;
        target[written] = static_cast<std::uint8_t>(16 * high + low);
    }
    byte_count = static_cast<std::int32_t>(written);
    return true;
}

std::int32_t cl_hex_encode::decode_hex_string(std::string_view name, std::string_view framed_text) {
    data.clear();
    data_size = 0;
    hex_length = 0;
    hex_name = name;
    text_length = static_cast<std::int32_t>(framed_text.size());
    if (const char* const fault = frame_fault(name, framed_text)) {
        cl_trace::here("cl_hex_encode::decode_hex_string", trace_level::developer_error)
            .report(fault, hex_name, framed_text.substr(0, 20));
        return 0;
    }
    const std::string length_text(framed_text.substr(name.size() + 3, length_digits));
    hex_length = std::max(0, std::atoi(length_text.c_str()));
    data_size = hex_length / 2;
    const std::string_view digits = framed_text.substr(std::min(name.size() + 13, framed_text.size()));
    const std::size_t announced = static_cast<std::size_t>(data_size) + 1; // an odd last digit makes a byte more
    data.resize(std::min(announced, digits.size() / 2));
    decode_hex_digits(digits, hex_length, data, data_size);
    data.resize(std::min(data.size(), static_cast<std::size_t>(data_size)));
    return data_size;
}
