#include "tools/single_run/setting_line.h"

#include "qlw/settings_table.h"
#include "qlw/trimmed.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <vector>

namespace {

constexpr std::int32_t white = 0xffffff;

const setting_row* row_of(std::string_view name) {
    const auto rows = settings_table();
    const auto found =
        std::find_if(rows.begin(), rows.end(), [name](const setting_row& row) { return row.name == name; });
    return found == rows.end() ? nullptr : &*found;
}

template<class Number>
bool reads_as(std::string_view text, Number& number) {
    const auto answer = std::from_chars(text.data(), text.data() + text.size(), number);
    return answer.ec == std::errc() && answer.ptr == text.data() + text.size();
}

bool is_whole(std::string_view text, std::int32_t lowest, std::int32_t highest) {
    std::int32_t number = 0;
    return reads_as(text, number) && number >= lowest && number <= highest;
}

bool is_real(std::string_view text) {
    double number = 0;
    return reads_as(text, number) && std::isfinite(number);
}

bool is_point(std::string_view text) {
    if (text.starts_with('(') && text.ends_with(')'))
        text = text.substr(1, text.size() - 2);
    std::vector<std::string_view> parts;
    for (std::size_t comma = 0; comma != std::string_view::npos;) {
        comma = text.find(',');
        parts.push_back(trimmed(text.substr(0, comma)));
        text.remove_prefix(comma == std::string_view::npos ? text.size() : comma + 1);
    }
    return parts.size() == 3 && std::all_of(parts.begin(), parts.end(), is_real);
}

bool is_flag(std::string_view text) {
    return text == "0" || text == "1" || text == "true" || text == "false";
}

// What the value has to be and is not; empty if it is.
std::string_view missing_kind(setting_kind kind, std::string_view value) {
    switch (kind) {
    case setting_kind::boolean:
        return is_flag(value) ? "" : "0, 1, true or false";
    case setting_kind::integer:
        return is_whole(value, INT32_MIN, INT32_MAX) ? "" : "a whole number of 32 bits";
    case setting_kind::real:
        return is_real(value) ? "" : "a number";
    case setting_kind::color:
        return is_whole(value, 0, white) ? "" : "a colour from 0 to 16777215";
    case setting_kind::point:
        return is_point(value) ? "" : "a point (x, y, z)";
    case setting_kind::text:
        return value == trimmed(value) ? "" : "a text on one line without blanks at its ends";
    }
    return "";
}

} // namespace

std::string complaint_about_setting(std::string_view name, std::string_view value) {
    const setting_row* const row = row_of(name);
    if (row == nullptr)
        return "there is no setting " + std::string(name);
    if (value.find_first_of("\r\n") != std::string_view::npos)
        return "the setting " + std::string(name) + " takes one line";
    const std::string_view missing = missing_kind(row->kind, value);
    if (missing.empty())
        return {};
    return "the setting " + std::string(name) + " takes " + std::string(missing) + ", not " + std::string(value);
}

std::string setting_line(std::string_view name, std::string_view value) {
    const setting_row* const row = row_of(name);
    std::string written;
    if (row != nullptr && row->kind == setting_kind::boolean)
        written = value == "1" || value == "true" ? "1" : "0";
    else
        for (const char letter : value)
            written += row != nullptr && row->kind == setting_kind::text && letter == '\\' ? std::string("\\\\")
                                                                                           : std::string(1, letter);
    return std::string(name) + "; " + written + "\r\n";
}
