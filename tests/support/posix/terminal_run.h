#pragma once

// Runs a program on a pseudo terminal, and what a terminal shows of the bytes that it gets.

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include <pty.h>
#include <sys/wait.h>
#include <unistd.h>

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

// One argument of a command line, quoted for the shell.
inline std::string shell_quoted(const std::string& argument) {
    std::string quoted = "'";
    for (const char c : argument)
        quoted += c == '\'' ? std::string("'\\''") : std::string(1, c);
    return quoted + "'";
}

// What stands on a terminal of 100 columns when the command has ended that was started there, keys typed among it.
// command: for the shell. keys: typed ahead. Throws if there is no pseudo terminal.
inline std::vector<std::string> rows_left_on_terminal(const std::string& command, std::string_view keys = {}) {
    const winsize size{24, 100, 0, 0};
    int terminal = -1;
    const pid_t child = forkpty(&terminal, nullptr, nullptr, &size);
    if (child == 0) {
        execl("/bin/sh", "sh", "-c", command.c_str(), nullptr);
        _exit(127);
    }
    if (child < 0 || write(terminal, keys.data(), keys.size()) != static_cast<ssize_t>(keys.size()))
        throw std::runtime_error("no pseudo terminal");
    terminal_screen screen(size.ws_col);
    std::array<char, 4096> bytes;
    std::string all;
    for (ssize_t count = 0; (count = read(terminal, bytes.data(), bytes.size())) > 0;) // fails when the child has ended
        all.append(bytes.data(), static_cast<std::size_t>(count));
    close(terminal);
    waitpid(child, nullptr, 0);
    screen.show(all);
    return screen.rows();
}
