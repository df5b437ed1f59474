#pragma once

// How much of what a stream declares and places is kept to its end. A stream can name a thing in ten bytes and copy the
// name of the last one a million times, so that what it takes in memory is bounded here and not by its size.

#include <cstddef>
#include <cstdint>
#include <string>

class kept_records {
public:
    static constexpr std::size_t usual_records = std::size_t{1} << 20U;
    static constexpr std::size_t usual_text = std::size_t{1} << 25U;

    // records: that may be kept. text: bytes of all their texts together.
    explicit kept_records(std::size_t records = usual_records, std::size_t text = usual_text);

    // Counts one more record with texts of so many bytes. False, and it counts as left out, if that would be too much.
    bool keep(std::size_t text);

    // How many have been left out, in words; empty if none has.
    std::string note() const;

private:
    std::size_t most_records;
    std::size_t most_text;
    std::size_t records_kept = 0;
    std::size_t text_kept = 0;
    std::uint64_t left_out = 0;
};
