#pragma once

// The pages of the documentation, taken apart: examples between fences, rows of tables.

#include "tests/support/temporary_folder.h"

#include <cstddef>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace pages {

// file: from the root of the project, as "docs/checker.md".
inline std::string text_of(const std::string& file) {
    return text_of_file(std::string(TESSALINE_SOURCE_DIR) + "/" + file);
}

inline std::vector<std::string> lines_of(const std::string& text) {
    std::vector<std::string> lines;
    std::istringstream stream(text);
    for (std::string line; std::getline(stream, line);)
        lines.push_back(line);
    return lines;
}

// What stands between "```language" and "```".
struct example {
    std::string language;
    std::size_t line = 0;           // of its first line in the page, from 1
    std::vector<std::string> lines; // without their ends

    std::string text(std::string_view end) const {
        std::string all;
        for (const std::string& line_of_it : lines)
            all.append(line_of_it).append(end);
        return all;
    }
};

// The examples of a language, in the order of the page; all of them if none is named.
inline std::vector<example> examples_of(const std::string& file, std::string_view language) {
    constexpr std::string_view fence = "```";
    std::vector<example> found;
    bool is_inside = false;
    std::size_t number = 0;
    for (const std::string& line : lines_of(text_of(file))) {
        ++number;
        if (line.starts_with(fence)) {
            is_inside = !is_inside;
            if (is_inside)
                found.push_back({line.substr(fence.size()), number + 1, {}});
        } else if (is_inside) {
            found.back().lines.push_back(line);
        }
    }
    if (!language.empty())
        std::erase_if(found, [language](const example& one) { return one.language != language; });
    return found;
}

using row = std::vector<std::string>; // cells, without the blanks around them

inline row cells_of(std::string_view line) {
    row cells;
    while (line.size() > 1) {
        line.remove_prefix(1); // the bar in front of the cell
        const std::string_view cell = line.substr(0, line.find('|'));
        line.remove_prefix(cell.size());
        const std::size_t first = cell.find_first_not_of(' ');
        const std::size_t last = cell.find_last_not_of(' ');
        cells.emplace_back(first == std::string_view::npos ? std::string_view() : cell.substr(first, last - first + 1));
    }
    return cells;
}

// The rows, without the two of the head, of all tables of the page whose first column has that head.
inline std::vector<row> rows_under(const std::string& file, const std::string& head) {
    std::vector<row> rows;
    bool is_in_table = false;
    bool is_under_head = false;
    for (const std::string& line : lines_of(text_of(file))) {
        const bool is_row = line.starts_with('|');
        if (is_row && !is_in_table)
            is_under_head = cells_of(line).at(0) == head;
        else if (is_row && is_under_head && !line.starts_with("|---"))
            rows.push_back(cells_of(line));
        is_in_table = is_row;
    }
    return rows;
}

// What stands between the backticks of a text, each pair for itself.
inline std::vector<std::string> codes_in(std::string_view text) {
    std::vector<std::string> codes;
    while (true) {
        const std::size_t begin = text.find('`');
        const std::size_t end = begin == std::string_view::npos ? begin : text.find('`', begin + 1);
        if (end == std::string_view::npos)
            return codes;
        codes.emplace_back(text.substr(begin + 1, end - begin - 1));
        text.remove_prefix(end + 1);
    }
}

} // namespace pages
