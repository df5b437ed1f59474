#pragma once

// Framed hexadecimal text that is spread over several attribute values, whose length is limited: a header
// "length;chunks;more;" and chunks of 400,000 characters.

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>

inline constexpr std::size_t hex_chunk_length = 400000; // characters of every chunk but the last

struct hex_header {
    std::string total_length; // characters of the whole text, as text
    std::int32_t chunk_count = 0;
    std::string last_field;

    // Takes the three fields off the front of a text. A field whose ";" is missing, or is the first character, stays
    // as it was, and the text with it.
    void read(std::string_view text);
    // Whether the length and the last field are there; the count may still be anything.
    bool is_complete() const { return !total_length.empty() && !last_field.empty(); }
};

using hex_chunks_by_number = std::map<std::int32_t, std::string>; // numbers from 0

// The whole text: each chunk at its number times 400,000, cut at the next such place and at the total length. It ends
// where it has a gap, at a chunk that is missing or too short: the gap is zero bytes, no decoder gets across those,
// and so what a header claims costs no more room than the chunks fill.
std::string assembled_hex_text(const hex_header& header, const hex_chunks_by_number& chunks);
