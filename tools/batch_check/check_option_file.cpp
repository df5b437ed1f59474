#include "tools/batch_check/check_option_file.h"

#include "tools/batch_check/number_forms.h"
#include "tools/batch_check/small_text.h"

#include <array>
#include <charconv>
#include <cstdint>

namespace batch_check {
namespace {

bool is_number(std::string_view text) {
    return shortest_number(text) || is_not_finite(text);
}

// "(x, y, z)"
bool is_point(std::string_view text) {
    if (text.size() < 2 || text.front() != '(' || text.back() != ')')
        return false;
    text = text.substr(1, text.size() - 2);
    for (int i = 0; i < 2; ++i) {
        if (text.find(", ") == std::string_view::npos || !is_number(take_field(text, ", ")))
            return false;
    }
    return is_number(text);
}

// All 32 bits of a colour, as a number with or without a sign.
bool is_color(std::string_view text) {
    std::uint32_t bits = 0;
    const char* const end = text.data() + text.size();
    const auto [behind, error] = std::from_chars(text.data(), end, bits);
    const bool is_unsigned = error == std::errc() && behind == end && (text.size() == 1 || text[0] != '0');
    return is_unsigned || whole_number(text);
}

// Each backslash is doubled or stands ahead of "n".
bool is_text(std::string_view text) {
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '\r')
            return false;
        if (text[i] == '\\' && (++i == text.size() || (text[i] != '\\' && text[i] != 'n')))
            return false;
    }
    return true;
}

bool is_value(char type, std::string_view text) {
    switch (type) {
    case 'b':
        return text == "0" || text == "1";
    case 'i':
        return whole_number(text).has_value();
    case 'r':
        return is_number(text);
    case 'c':
        return is_color(text);
    case 'p':
        return is_point(text);
    default:
        return is_text(text);
    }
}

} // namespace

void check_option_file(const batch_files& files, findings& found) {
    const std::string file = option_file_name;
    const auto text = small_text::read(files, file, code::option_line_end, found);
    if (!text) {
        if (files.size(file))
            found.add(code::option_line, file, 0, "the file cannot be read");
        return;
    }
    constexpr std::string_view types = "birpcs";
    std::string_view name_before;
    for (std::size_t i = 0; i < text->line_count(); ++i) {
        const std::string_view line = text->line(i);
        const std::size_t semicolon = line.find("; ");
        if (semicolon == std::string_view::npos || semicolon == 0 || types.find(line[0]) == std::string_view::npos) {
            found.add(code::option_line, file, i + 1, "no name with a value: " + in_quotes(line));
            continue;
        }
        const std::string_view name = line.substr(0, semicolon);
        if (name <= name_before)
            found.add(code::option_order, file, i + 1, in_quotes(name) + " stands behind " + in_quotes(name_before));
        name_before = name;
        if (!is_value(name[0], line.substr(semicolon + 2)))
            found.add(code::option_value, file, i + 1, "the value is not spelt as its name asks: " + in_quotes(line));
    }
}

} // namespace batch_check
