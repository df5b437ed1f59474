// Reads any bytes as an ini file and edits it, under names that are known and under names and values out of the bytes:
// what is set is read back up to its first line end, and every other line stays.

#include "qlw/ini_text.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

// Without the byte-order mark, which is no part of the first line.
std::vector<std::string_view> lines_of(std::string_view text) {
    std::vector<std::string_view> lines;
    if (text.starts_with("\xEF\xBB\xBF"))
        text.remove_prefix(3);
    while (!text.empty()) {
        const std::size_t end = text.find('\n');
        std::string_view line = text.substr(0, end);
        while (line.ends_with('\r'))
            line.remove_suffix(1);
        lines.push_back(line);
        text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    }
    return lines;
}

// Whether the lines are those of before with at most one changed and at most two added.
bool is_one_edit(std::string_view before, std::string_view after) {
    const auto old_lines = lines_of(before);
    const auto new_lines = lines_of(after);
    if (new_lines.size() < old_lines.size() || new_lines.size() > old_lines.size() + 2)
        return false;
    std::size_t same_in_front = 0;
    while (same_in_front < old_lines.size() && old_lines[same_in_front] == new_lines[same_in_front])
        ++same_in_front;
    std::size_t same_behind = 0;
    while (same_behind < old_lines.size() - same_in_front &&
           old_lines[old_lines.size() - 1 - same_behind] == new_lines[new_lines.size() - 1 - same_behind])
        ++same_behind;
    const bool adds = new_lines.size() > old_lines.size();
    return old_lines.size() - same_in_front - same_behind <= (adds ? 0u : 1u);
}

void check_setting(const std::string& bytes, std::string_view section, std::string_view key, std::string_view value) {
    const std::string stored(value.substr(0, value.find_first_of(std::string_view("\r\n\0", 3))));
    ini_text text(bytes);
    const auto before = text.value(section, key);
    const bool is_set = text.set_value(section, key, value);
    if (!is_set && (text.bytes() != bytes || text.value(section, key) != before))
        std::abort();
    if (is_set && (text.value(section, key) != stored || !is_one_edit(bytes, text.bytes())))
        std::abort();
    if (text.set_value(section, key, value))
        std::abort();
    if (ini_text(text.bytes()).value(section, key) != text.value(section, key))
        std::abort();
}

// Cuts what stands in front of the first "|" off the text, and the mark; all of a text without one.
std::string_view cut_piece(std::string_view& text) {
    const std::size_t end = std::min(text.find('|'), text.size());
    const std::string_view piece = text.substr(0, end);
    text.remove_prefix(std::min(end + 1, text.size()));
    return piece;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string bytes(reinterpret_cast<const char*>(data), size);
    check_setting(bytes, "a", "key", "new");
    check_setting(bytes, "Globals", "svl_name", " in blanks ");
    check_setting(bytes, "Common", "phone", "'\"'");
    std::string_view left = bytes;
    const std::string_view section = cut_piece(left);
    const std::string_view key = cut_piece(left);
    const std::string_view value = cut_piece(left);
    check_setting(std::string(left), section, key, value);
    return 0;
}
