#include "sketchup/skp/text_encoding.h"

#include <algorithm>
#include <cstddef>

namespace skp {

namespace {

constexpr char32_t replacement = 0xFFFD;

struct decoded {
    char32_t point;
    std::size_t length; // bytes used
};

// The sequence at the beginning of a text that is not empty, by the table of well-formed sequences of the Unicode
// standard (no overlong forms, no surrogates, nothing above U+10FFFF).
decoded first_point(std::string_view text) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned lead = byte(0);
    if (lead < 0x80)
        return {lead, 1};
    const std::size_t length = lead >= 0xF0 ? 4 : lead >= 0xE0 ? 3 : 2;
    if (lead < 0xC2 || lead > 0xF4 || text.size() < length)
        return {replacement, 1};
    char32_t point = lead & (0x7FU >> length);
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(i) & 0xC0U) != 0x80U)
            return {replacement, 1};
        point = (point << 6U) | (byte(i) & 0x3FU);
    }
    constexpr char32_t smallest[] = {0, 0, 0x80, 0x800, 0x10000};
    const bool surrogate = point >= 0xD800 && point <= 0xDFFF;
    if (point < smallest[length] || surrogate || point > 0x10FFFF)
        return {replacement, 1};
    return {point, length};
}

} // namespace

std::u16string utf16_from_utf8(std::string_view text) {
    std::u16string units;
    units.reserve(text.size());
    while (!text.empty()) {
        const decoded next = first_point(text);
        text.remove_prefix(next.length);
        if (next.point < 0x10000) {
            units.push_back(static_cast<char16_t>(next.point));
        } else {
            units.push_back(static_cast<char16_t>(0xD800 + ((next.point - 0x10000) >> 10U)));
            units.push_back(static_cast<char16_t>(0xDC00 + ((next.point - 0x10000) & 0x3FFU)));
        }
    }
    return units;
}

std::string well_formed_utf8(std::string_view text) {
    constexpr std::string_view replacement_utf8 = "\xEF\xBF\xBD";
    std::string result;
    result.reserve(text.size());
    while (!text.empty()) {
        // Attributes may carry whole files as letters and digits.
        const auto plain = std::ranges::find_if(text, [](char c) { return static_cast<unsigned char>(c) >= 0x80; });
        result.append(text.begin(), plain);
        text.remove_prefix(static_cast<std::size_t>(plain - text.begin()));
        if (text.empty())
            break;
        const decoded next = first_point(text);
        const bool is_wrong = next.length == 1 && next.point == replacement;
        result += is_wrong ? replacement_utf8 : text.substr(0, next.length);
        text.remove_prefix(next.length);
    }
    return result;
}

} // namespace skp
