#pragma once

// What a terminal shows of the bytes that it gets.

#include <algorithm>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// A screen of endless height. Knows line ends, wrapping and what a progress bar asks for, and nothing else.
class terminal_screen {
public:
    explicit terminal_screen(std::size_t columns) : width(columns) {}

    void show(std::string_view bytes) {
        while (!bytes.empty()) {
            const std::size_t taken = bytes[0] == '\x1b' ? obey(bytes) : put(bytes[0]);
            bytes.remove_prefix(taken);
        }
    }

    // From the top to the last one that holds anything, without blanks at their ends.
    std::vector<std::string> rows() const {
        std::vector<std::string> kept = lines;
        for (std::string& row : kept)
            row.erase(row.find_last_not_of(' ') + 1);
        while (!kept.empty() && kept.back().empty())
            kept.pop_back();
        return kept;
    }

private:
    std::size_t put(char letter) {
        if (letter == '\r') {
            column = 0;
        } else if (letter == '\n') {
            go_down();
        } else {
            if (column == width && wraps) {
                column = 0;
                go_down();
            }
            column = std::min(column, width - 1);
            std::string& row = lines[line];
            row.resize(std::max(row.size(), column + 1), ' ');
            row[column++] = letter;
        }
        return 1;
    }

    void go_down() {
        line++;
        lines.resize(std::max(lines.size(), line + 1));
    }

    std::size_t obey(std::string_view bytes) {
        for (const std::string_view known : {"\x1b[K", "\x1b[?7l", "\x1b[?7h"}) {
            if (!bytes.starts_with(known))
                continue;
            if (known.ends_with('K'))
                lines[line].resize(std::min(lines[line].size(), column));
            else
                wraps = known.ends_with('h');
            return known.size();
        }
        throw std::runtime_error("no such order to the terminal: " + std::string(bytes.substr(1, 8)));
    }

    std::size_t width;
    std::vector<std::string> lines{1};
    std::size_t line = 0;
    std::size_t column = 0;
    bool wraps = true;
};
