#pragma once

// Files that travel as hexadecimal text in attributes of a model.

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

// Takes the frame "[name][nnnnnnnn]x" off a text and decodes the hexadecimal digits behind it.
class cl_hex_encode {
public:
    // name: what must stand in the frame. framed_text: the frame and the digits, two for each byte, high digit first,
    // either case. Gives the number of bytes: half the number in the frame, which is read as far as it is made of
    // digits. Of an odd number the last digit is paired with the character behind it, which is one byte more. A frame
    // that does not fit is reported and gives 0. A fault among the digits leaves the bytes from there on zero, and
    // their number as announced.
    std::int32_t decode_hex_string(std::string_view name, std::string_view framed_text);

    std::string hex_name;
    // The bytes for which the text has digits. Those that data_size counts beyond them are zero and not kept here: a
    // short text may announce 50 MB.
    std::vector<std::uint8_t> data;
    std::int32_t data_size = 0;
    std::int32_t hex_length = 0; // digits, as the frame says; 0 for a number below
    std::int32_t text_length = 0;
};

// Decodes that many digits from the front of `text` into `target`, two for each byte. An odd last digit is paired with
// the character behind it, so that `target` needs room for one byte more than the pairs.
// byte_count: how many bytes are wanted at most; afterwards how many there are, if all went well. False, with the count
// as it was, if there are more pairs than that, at the first character that is no digit, at the end of the text or of
// `target`, and if either of these is null; the bytes in front of a fault are set.
bool decode_hex_digits(std::string_view text, std::int32_t digit_count, std::span<std::uint8_t> target,
                       std::int32_t& byte_count);
