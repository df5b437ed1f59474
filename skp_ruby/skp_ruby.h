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
    // either case. Gives the number of bytes in `data`: half the number in the frame, and one more if that is odd and a
    // digit stands behind the last; the number is read as far as it is one. A frame that does not fit is reported and
    // gives 0, with no data. After a fault among the digits there are half as many bytes, zero from there on.
    std::int32_t decode_hex_string(std::string_view name, std::string_view framed_text);

    std::string hex_name;
    std::vector<std::uint8_t> data; // as many bytes as data_size says
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
