#pragma once

// The examples in the pages of docs/: what a page shows is what the readers take and the writers give.

#include "tests/support/temporary_folder.h"

#include <cstddef>
#include <cstdint>
#include <sstream>
#include <string>
#include <vector>

// The indented blocks behind a heading of the page, up to the next heading: without the indentation, each line ended by
// CR LF.
inline std::vector<std::string> page_examples(const std::string& page, const std::string& heading = "## Example") {
    std::istringstream text(text_of_file(std::string(TESSALINE_SOURCE_DIR) + "/docs/" + page));
    std::vector<std::string> blocks;
    bool is_behind = false;
    bool in_block = false;
    for (std::string line; std::getline(text, line);) {
        if (line.starts_with('#'))
            is_behind = line == heading;
        const bool is_example = is_behind && line.starts_with("    ");
        if (is_example && !in_block)
            blocks.emplace_back();
        if (is_example)
            blocks.back() += line.substr(4) + "\r\n";
        in_block = is_example;
    }
    return blocks;
}

// The bytes of the page's first example: on each line pairs of hexadecimal digits, and behind two blanks what they
// mean.
inline std::vector<std::uint8_t> page_bytes(const std::string& page) {
    std::vector<std::uint8_t> bytes;
    std::istringstream text(page_examples(page).at(0));
    for (std::string line; std::getline(text, line);) {
        std::istringstream pairs(line.substr(0, line.find("  ")));
        for (std::string pair; pairs >> pair;)
            bytes.push_back(static_cast<std::uint8_t>(std::stoul(pair, nullptr, 16)));
    }
    return bytes;
}
