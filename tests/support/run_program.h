#pragma once

// Runs a program of the build and takes what it prints and how it ends.

#include <cstdint>
#include <optional>
#include <string>
#include <utility>
#include <vector>

// A variable and its value; no value takes it away.
using environment_change = std::pair<std::string, std::optional<std::string>>;

// Makes a program keep its settings below a folder, neither reading nor writing those of whoever runs the tests.
inline std::vector<environment_change> settings_in(const std::string& folder) {
    return {{"XDG_CONFIG_HOME", folder + "/.config"}, {"HOME", folder}, {"APPDATA", folder + "/.config"}};
}

struct program_start {
    std::string program; // full name
    std::vector<std::string> arguments = {};
    std::string folder = {};                          // the current folder; that of the caller if empty
    std::vector<environment_change> environment = {}; // what differs from that of the caller
    int seconds = 600;                                // what takes longer is ended
};

struct program_result {
    int status = -1;              // -1 if it did not end by itself
    std::string end = {};         // why it did not, in words
    std::string output = {};      // what it printed, with a line feed at the end of each line
    std::string errors = {};      // to standard error; on Windows also what its dialogs and message boxes said, as the
                                  // console shows them; each is closed with OK
    std::uint64_t most_bytes = 0; // of memory that it has occupied
};

// Its standard input is empty. Nothing is thrown.
program_result run_program(const program_start& start);
