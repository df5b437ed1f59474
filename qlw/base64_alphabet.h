#pragma once

// The letters of base64. Its users differ in what else they allow in a text, and in where they let it end.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace base64_detail {

constexpr std::array<std::int8_t, 256> values_of_letters() {
    constexpr std::string_view alphabet = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
    std::array<std::int8_t, 256> values{};
    values.fill(-1);
    for (std::size_t i = 0; i != alphabet.size(); ++i)
        values[static_cast<unsigned char>(alphabet[i])] = static_cast<std::int8_t>(i);
    return values;
}

inline constexpr std::array<std::int8_t, 256> letter_values = values_of_letters();

} // namespace base64_detail

// The six bits that a letter stands for, 0 to 63; -1 if it is none of the alphabet.
constexpr int base64_value(char letter) {
    return base64_detail::letter_values[static_cast<unsigned char>(letter)];
}
