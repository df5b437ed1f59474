#include "qlw/ini_text.h"

#include "text/letter_case.h"

#include <algorithm>
#include <utility>

namespace {

constexpr std::string_view byte_order_mark = "\xEF\xBB\xBF";
constexpr std::string_view blanks = " \t\v\f\r"; // a CR ends a line or stands for nothing
constexpr std::string_view quotation_marks = "'\"";
constexpr std::string_view never_in_a_name("\r\n\0", 3);
constexpr char name_separator = '\n'; // stands in no name

std::string_view without_blanks(std::string_view part) {
    const std::size_t first = part.find_first_not_of(blanks);
    return first == std::string_view::npos ? std::string_view()
                                           : part.substr(first, part.find_last_not_of(blanks) - first + 1);
}

bool is_quoted(std::string_view value) {
    return value.size() >= 2 && value.front() == value.back() &&
           quotation_marks.find(value.front()) != std::string_view::npos;
}

std::string_view without_quotation_marks(std::string_view value) {
    return is_quoted(value) ? value.substr(1, value.size() - 2) : value;
}

// What a reader makes of a value as it stands behind the "=".
std::string_view as_read(std::string_view raw) {
    return without_quotation_marks(without_blanks(raw));
}

// The bytes to put behind the "=" so that a reader finds the value.
std::string as_written(std::string_view value) {
    const std::string text(value.substr(0, value.find_first_of(never_in_a_name)));
    return as_read(text) == text ? text : '"' + text + '"';
}

std::string folded(std::string_view name) {
    return lower_case(without_blanks(name));
}

std::string place_of(std::string_view folded_section, std::string_view key) {
    return std::string(folded_section) + name_separator + folded(key);
}

bool can_be_a_section(std::string_view name) {
    return name.find_first_of(never_in_a_name) == std::string_view::npos && name.find(']') == std::string_view::npos;
}

bool can_be_a_key(std::string_view name) {
    const std::string_view bare = without_blanks(name);
    return !bare.empty() && bare.front() != '[' && bare.front() != ';' && bare.find('=') == std::string_view::npos &&
           bare.find_first_of(never_in_a_name) == std::string_view::npos;
}

} // namespace

ini_text::ini_text(std::string file_bytes) : text(std::move(file_bytes)) {
    is_foreign = text.starts_with("\xFF\xFE") || text.starts_with("\xFE\xFF");
    index();
}

std::optional<std::string> ini_text::value(std::string_view section, std::string_view key) const {
    const auto found = values.find(place_of(folded(section), key));
    if (found == values.end())
        return std::nullopt;
    return std::string(without_quotation_marks(at(found->second)));
}

bool ini_text::set_value(std::string_view section, std::string_view key, std::string_view new_value) {
    if (is_foreign || !can_be_a_section(section) || !can_be_a_key(key))
        return false;
    const std::string written = as_written(new_value);
    const std::string section_name = folded(section);
    if (const auto old = values.find(place_of(section_name, key)); old != values.end()) {
        if (without_quotation_marks(at(old->second)) == without_quotation_marks(written))
            return false;
        text.replace(old->second.begin, old->second.end - old->second.begin, written);
    } else {
        const std::string key_line = std::string(without_blanks(key)) + '=' + written;
        if (const auto known = section_ends.find(section_name); known != section_ends.end())
            insert_line(known->second, key_line);
        else {
            insert_line(text.size(), '[' + std::string(without_blanks(section)) + ']');
            insert_line(text.size(), key_line);
        }
    }
    index();
    return true;
}

// Finds every value, and where a new key of each section would go.
void ini_text::index() {
    values.clear();
    section_ends.clear();
    if (is_foreign)
        return;
    std::string section(1, name_separator); // no section: in front of the first, or a repeated one
    for (std::size_t begin = text.starts_with(byte_order_mark) ? byte_order_mark.size() : 0; begin < text.size();) {
        const std::size_t end = std::min(text.find('\n', begin), text.size());
        index_line({begin, end}, section);
        begin = end + 1;
    }
}

void ini_text::index_line(span line, std::string& section) {
    const std::string_view content = at(trimmed(line));
    if (content.empty() || content.front() == ';')
        return;
    const std::size_t behind_line = std::min(line.end + 1, text.size());
    if (const std::size_t close = content.find(']'); content.front() == '[' && close != std::string_view::npos) {
        section = folded(content.substr(1, close - 1));
        if (!section_ends.emplace(section, behind_line).second)
            section.assign(1, name_separator);
        return;
    }
    const std::size_t equals = text.find('=', line.begin);
    const auto known = section_ends.find(section);
    if (equals >= line.end || known == section_ends.end())
        return;
    const std::string_view key = at(trimmed({line.begin, equals}));
    if (key.empty())
        return;
    known->second = behind_line;
    values.emplace(place_of(section, key), trimmed({equals + 1, line.end}));
}

std::string_view ini_text::at(span part) const {
    return std::string_view(text).substr(part.begin, part.end - part.begin);
}

// The part without blanks at its ends; of nothing but blanks the empty place in front of them.
ini_text::span ini_text::trimmed(span part) const {
    while (part.end > part.begin && blanks.find(text[part.end - 1]) != std::string_view::npos)
        --part.end;
    while (part.begin < part.end && blanks.find(text[part.begin]) != std::string_view::npos)
        ++part.begin;
    return part;
}

std::string_view ini_text::line_end() const {
    const std::size_t first = text.find('\n');
    return first == std::string::npos || (first > 0 && text[first - 1] == '\r') ? "\r\n" : "\n";
}

// position: behind a line, the last of which may lack its end.
void ini_text::insert_line(std::size_t position, const std::string& line) {
    const std::string end(line_end());
    const bool follows_open_line = position > 0 && text[position - 1] != '\n' && text != byte_order_mark;
    text.insert(position, (follows_open_line ? end : "") + line + end);
}
