#pragma once

// The lines of a file of the disk, one after the other, with a block of it in memory.

#include "platform/platform.h"
#include "tools/batch_reading/line_source.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

class file_lines {
public:
    // False if there is no such file, or it cannot be read. At most once.
    bool open(const std::string& file_name, std::size_t block = line_source::usual_block);

    // The next line without its end, CR LF or LF; valid till the next call. False behind the last one, and for one that
    // is longer than line_source::longest_line, which ends the reading.
    bool next(std::string_view& line) {
        if (!lines)
            return false;
        if (count > 0)
            lines->advance();
        if (lines->at_end() || is_too_long())
            return false;
        count = lines->number();
        line = lines->line();
        return true;
    }

    // Of the line that was given last, from 1.
    std::uint64_t number() const { return count; }
    bool is_too_long() const { return lines && lines->cut_lines() > 0; }

private:
    struct opened_file : byte_source {
        std::size_t read(char* into, std::size_t size) override { return file.read(into, size); }
        platform::file file;
    };

    opened_file source;
    std::optional<line_source> lines;
    std::uint64_t count = 0;
};
