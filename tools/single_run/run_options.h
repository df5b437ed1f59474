#pragma once

// What a command line asks of a run.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct run_options {
    std::string model;
    std::string folder;                          // of the batch, as it was given
    std::vector<std::string> files;              // of the parent, to be copied into the folder
    std::map<std::string, std::string> settings; // by name; the values as they were given
    bool is_forced = false;
    std::optional<std::int64_t> seconds;
    std::uint64_t memory = 0; // bytes; 0 for no limit
    std::string json;         // name of the file for the report; empty for none
    bool tells_openjd = false;
};

struct read_options {
    run_options options;
    std::string complaint; // one sentence; empty if the command line makes sense
};

// Takes the arguments behind the program's own name. A later value of an option goes before an earlier one; files and
// settings add up.
read_options read_run_options(const std::vector<std::string>& arguments);

// Bytes of a size such as "512M": a whole number above 0 and one of K, M, G, T for powers of 1024, or none. Nothing for
// any other text, and for more than 64 bits hold.
std::optional<std::uint64_t> size_of_text(std::string_view text);
