#pragma once

// The hash SHA-256 as FIPS 180-4 defines it: what sha256sum prints for a file.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

class sha256 {
public:
    // Takes the next bytes, in pieces of any size.
    void add(std::string_view bytes);
    // Of all that was added, as 64 hexadecimal digits of lower case. Nothing may be added behind it.
    std::string digest();

private:
    void take_block(const unsigned char* block);

    static constexpr std::size_t block_size = 64;
    std::array<std::uint32_t, 8> state = {0x6a09e667, 0xbb67ae85, 0x3c6ef372, 0xa54ff53a,
                                          0x510e527f, 0x9b05688c, 0x1f83d9ab, 0x5be0cd19};
    std::array<unsigned char, block_size> gathered{};
    std::size_t gathered_size = 0;
    std::uint64_t total = 0; // bytes
};
