#pragma once

// Numbers of 2 and 4 bytes, least byte first, in the headers of BMP and TGA files.

#include <cstdint>
#include <span>
#include <vector>

namespace image {

// at: the first byte; all of the number must lie within the bytes.
inline std::uint16_t number16(std::span<const std::uint8_t> bytes, std::size_t at) {
    return static_cast<std::uint16_t>(bytes[at] | bytes[at + 1] << 8);
}
inline std::uint32_t number32(std::span<const std::uint8_t> bytes, std::size_t at) {
    return number16(bytes, at) | static_cast<std::uint32_t>(number16(bytes, at + 2)) << 16;
}

inline void append16(std::vector<std::uint8_t>& bytes, std::uint32_t number) {
    bytes.push_back(static_cast<std::uint8_t>(number & 255));
    bytes.push_back(static_cast<std::uint8_t>(number >> 8 & 255));
}
inline void append32(std::vector<std::uint8_t>& bytes, std::uint32_t number) {
    append16(bytes, number & 0xFFFF);
    append16(bytes, number >> 16);
}

} // namespace image
