#pragma once

// Files that travel as hexadecimal text in attributes of a model.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

// Takes the frame "[name][nnnnnnnn]x" off a text and decodes the hexadecimal digits behind it.
class cl_hex_encode {
public:
    // name: what must stand in the frame. framed_text: the frame and the digits, two for each byte, high digit first,
    // either case. Gives the number of bytes in `data`: half the number in the frame, whose digits are read as far as
    // they are digits. A frame that does not fit is reported and gives 0, with no data. A fault among the digits leaves
    // the bytes from there on zero.
    std::int32_t decode_hex_string(std::string_view name, std::string_view framed_text);

    std::string hex_name;
    std::vector<std::uint8_t> data;
    std::int32_t hex_length = 0; // digits, as the frame says
};

// Decodes digits into the front of `target`, two for each byte. False if there are more pairs than `target` has room
// for, or at the first character that is no digit; the bytes in front of that are set.
bool decode_hex_digits(std::string_view digits, std::vector<std::uint8_t>& target);
