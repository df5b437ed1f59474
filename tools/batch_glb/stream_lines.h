#pragma once

// The lines of a file, one after the other, with a block of it in memory.

#include "platform/platform.h"

#include <cstdint>
#include <string>
#include <string_view>

class stream_lines {
public:
    static constexpr std::size_t usual_block = std::size_t{1} << 18U;
    static constexpr std::size_t longest_line = std::size_t{1} << 26U; // what is longer ends the reading

    // False if there is no such file, or it cannot be read.
    bool open(const std::string& file_name, std::size_t block = usual_block);

    // The next line without its end, CR LF or LF; valid till the next call. False behind the last one.
    bool next(std::string_view& line);

    // Of the line that was given last, from 1.
    std::uint64_t number() const { return count; }
    bool is_too_long() const { return too_long; }

private:
    bool refill();

    platform::file file;
    std::string buffer;
    std::size_t at = 0;  // where the next line begins
    std::size_t end = 0; // of what has been read
    std::uint64_t count = 0;
    bool at_end = false;
    bool too_long = false;
};
