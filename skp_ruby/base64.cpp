// How base64 text becomes bytes again.

#include "skp_ruby/base64.h"

#include "qlw/base64_alphabet.h"

#include <cstdint>

std::string decode_base64(std::string_view text) {
    std::string bytes;
    bytes.reserve(text.size() / 4 * 3 + 2);
    std::uint32_t bits = 0;
    int bit_count = 0; // of those in `bits` that stand in no byte yet
    for (const char letter : text) {
        const int value = base64_value(letter);
        if (value < 0)
            break;
        bits = bits << 6 | static_cast<std::uint32_t>(value);
        bit_count += 6;
        if (bit_count < 8)
            continue;
        bit_count -= 8;
        bytes.push_back(static_cast<char>(bits >> bit_count & 0xFF));
    }
    return bytes;
}
