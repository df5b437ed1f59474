#pragma once

// The lines of a file of any size, one after the other, out of a buffer that is as large as the longest of them.

#include "tools/batch_reading/byte_source.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>
#include <vector>

class line_source {
public:
    static constexpr std::size_t usual_block = std::size_t{1} << 18U;   // bytes
    static constexpr std::size_t longest_line = std::size_t{64} << 20U; // bytes; longer ones are cut

    // from: must outlive this. block: bytes that are read at once, at least 1.
    explicit line_source(byte_source& from, std::size_t block = usual_block, std::size_t longest = longest_line);

    // ---- looking; what is given holds until the next call of advance() or next_is()
    bool at_end() const { return is_at_end; }
    std::string_view line() const { return {buffer.data() + begin, size}; } // without its end
    bool at(std::string_view text) const { return !is_at_end && line() == text; }
    bool at_tag(std::string_view tag) const { return !is_at_end && line().starts_with(tag); }
    // Whether there is a line behind this one and it is this.
    bool next_is(std::string_view text);
    std::size_t number() const { return line_number; } // from 1; one behind the last at the end

    void advance() {
        begin = after;
        ++line_number;
        const void* feed = std::memchr(buffer.data() + begin, '\n', filled - begin);
        if (feed == nullptr)
            feed = feed_behind_buffer();
        settle(static_cast<const char*>(feed));
    }

    // ---- what was wrong with line ends so far
    std::size_t wrong_ends() const { return wrong_end_count; }
    std::size_t first_wrong_end() const { return first_wrong; } // its line
    std::size_t cut_lines() const { return cut_count; }

    std::uint64_t bytes_read() const { return read_count; }

private:
    // Reads until the buffer holds a line feed at or behind `begin`, the file ends, or the line is too long.
    const char* feed_behind_buffer();
    // The same for a line that is too long: its end moves up to what is kept of it.
    const char* feed_behind_cut_line();
    bool read_more();
    void settle(const char* feed) {
        if (feed == nullptr)
            return settle_without_feed();
        const char* start = buffer.data() + begin;
        after = static_cast<std::size_t>(feed - buffer.data()) + 1;
        size = static_cast<std::size_t>(feed - start);
        if (size > 0 && feed[-1] == '\r')
            --size;
        else
            note_wrong_end();
    }
    void settle_without_feed();
    void note_wrong_end();

    byte_source& source;
    std::size_t block_size;
    std::size_t longest_size;
    std::vector<char> buffer;
    std::size_t filled = 0; // bytes of the buffer that hold something
    std::size_t begin = 0;  // of the line
    std::size_t size = 0;
    std::size_t after = 0; // behind its line feed
    std::size_t line_number = 0;
    bool is_at_end = false;
    bool source_is_at_end = false;
    std::size_t wrong_end_count = 0;
    std::size_t first_wrong = 0;
    std::size_t cut_count = 0;
    std::uint64_t read_count = 0;
};
