#include "sketchup/api/utf.h"

namespace sketchup::api {
namespace {

constexpr char32_t replacement = 0xFFFD;
constexpr char32_t first_beyond_basic_plane = 0x10000;
constexpr char32_t last_character = 0x10FFFF;

bool is_continuation(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

bool is_surrogate(char32_t unit) {
    return unit >= 0xD800 && unit <= 0xDFFF;
}

// How many bytes a sequence has by its first one; 0 for a byte that begins none.
std::size_t sequence_length(unsigned char first) {
    if (first < 0x80)
        return 1;
    if (first >= 0xC2 && first <= 0xDF)
        return 2;
    if (first >= 0xE0 && first <= 0xEF)
        return 3;
    return first >= 0xF0 && first <= 0xF4 ? 4 : 0;
}

void append_utf8(std::string& text, char32_t c) {
    const auto byte = [&text](char32_t value) { text.push_back(static_cast<char>(value)); };
    if (c < 0x80) {
        byte(c);
    } else if (c < 0x800) {
        byte(0xC0 | (c >> 6));
        byte(0x80 | (c & 0x3F));
    } else if (c < first_beyond_basic_plane) {
        byte(0xE0 | (c >> 12));
        byte(0x80 | ((c >> 6) & 0x3F));
        byte(0x80 | (c & 0x3F));
    } else {
        byte(0xF0 | (c >> 18));
        byte(0x80 | ((c >> 12) & 0x3F));
        byte(0x80 | ((c >> 6) & 0x3F));
        byte(0x80 | (c & 0x3F));
    }
}

} // namespace

char32_t take_character(std::string_view& utf8) {
    const auto first = static_cast<unsigned char>(utf8.front());
    const std::size_t size = sequence_length(first);
    if (size == 1) {
        utf8.remove_prefix(1);
        return first;
    }
    constexpr char32_t least[] = {0, 0, 0x80, 0x800, first_beyond_basic_plane}; // a longer form than needed is invalid
    char32_t c = size == 0 ? 0 : first & (0x7Fu >> size);
    bool valid = size != 0 && size <= utf8.size();
    for (std::size_t i = 1; valid && i < size; ++i) {
        valid = is_continuation(utf8[i]);
        c = (c << 6) | (static_cast<unsigned char>(utf8[i]) & 0x3F);
    }
    valid = valid && c >= least[size] && c <= last_character && !is_surrogate(c);
    utf8.remove_prefix(valid ? size : 1);
    return valid ? c : replacement;
}

std::size_t utf16_units(char32_t character) {
    return character < first_beyond_basic_plane ? 1 : 2;
}

std::size_t whole_characters(std::string_view utf8, std::size_t limit) {
    if (limit >= utf8.size())
        return utf8.size();
    std::size_t length = limit;
    while (length > 0 && is_continuation(utf8[length]))
        --length;
    return length;
}

std::string utf8_from_utf16(const std::uint16_t* text) {
    std::string result;
    while (*text) {
        const char32_t unit = *text++;
        const bool is_first = unit >= 0xD800 && unit <= 0xDBFF;
        if (is_first && *text >= 0xDC00 && *text <= 0xDFFF) {
            append_utf8(result, first_beyond_basic_plane + ((unit - 0xD800) << 10) + (*text - 0xDC00u));
            ++text;
        } else {
            append_utf8(result, is_surrogate(unit) ? replacement : unit);
        }
    }
    return result;
}

} // namespace sketchup::api
