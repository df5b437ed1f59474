#include "tools/single_run/sha256.h"

#include <algorithm>
#include <bit>
#include <cstring>

namespace {

// The first 32 bits of the fractions of the cube roots of the first 64 primes (4.2.2 of the standard).
constexpr std::array<std::uint32_t, 64> constants = {
    0x428a2f98, 0x71374491, 0xb5c0fbcf, 0xe9b5dba5, 0x3956c25b, 0x59f111f1, 0x923f82a4, 0xab1c5ed5,
    0xd807aa98, 0x12835b01, 0x243185be, 0x550c7dc3, 0x72be5d74, 0x80deb1fe, 0x9bdc06a7, 0xc19bf174,
    0xe49b69c1, 0xefbe4786, 0x0fc19dc6, 0x240ca1cc, 0x2de92c6f, 0x4a7484aa, 0x5cb0a9dc, 0x76f988da,
    0x983e5152, 0xa831c66d, 0xb00327c8, 0xbf597fc7, 0xc6e00bf3, 0xd5a79147, 0x06ca6351, 0x14292967,
    0x27b70a85, 0x2e1b2138, 0x4d2c6dfc, 0x53380d13, 0x650a7354, 0x766a0abb, 0x81c2c92e, 0x92722c85,
    0xa2bfe8a1, 0xa81a664b, 0xc24b8b70, 0xc76c51a3, 0xd192e819, 0xd6990624, 0xf40e3585, 0x106aa070,
    0x19a4c116, 0x1e376c08, 0x2748774c, 0x34b0bcb5, 0x391c0cb3, 0x4ed8aa4a, 0x5b9cca4f, 0x682e6ff3,
    0x748f82ee, 0x78a5636f, 0x84c87814, 0x8cc70208, 0x90befffa, 0xa4506ceb, 0xbef9a3f7, 0xc67178f2};

std::uint32_t big_endian(const unsigned char* bytes) {
    return std::uint32_t{bytes[0]} << 24U | std::uint32_t{bytes[1]} << 16U | std::uint32_t{bytes[2]} << 8U | bytes[3];
}

// The message schedule of a block (6.2.2, step 1).
std::array<std::uint32_t, 64> schedule(const unsigned char* block) {
    std::array<std::uint32_t, 64> words;
    for (std::size_t i = 0; i < 16; ++i)
        words[i] = big_endian(block + 4 * i);
    for (std::size_t i = 16; i < 64; ++i) {
        const std::uint32_t near = words[i - 2];
        const std::uint32_t far = words[i - 15];
        const std::uint32_t small_1 = std::rotr(near, 17) ^ std::rotr(near, 19) ^ near >> 10U;
        const std::uint32_t small_0 = std::rotr(far, 7) ^ std::rotr(far, 18) ^ far >> 3U;
        words[i] = small_1 + words[i - 7] + small_0 + words[i - 16];
    }
    return words;
}

} // namespace

void sha256::take_block(const unsigned char* block) {
    const auto words = schedule(block);
    auto [a, b, c, d, e, f, g, h] = state;
    for (std::size_t i = 0; i < 64; ++i) {
        const std::uint32_t large_1 = std::rotr(e, 6) ^ std::rotr(e, 11) ^ std::rotr(e, 25);
        const std::uint32_t first = h + large_1 + ((e & f) ^ (~e & g)) + constants[i] + words[i];
        const std::uint32_t large_0 = std::rotr(a, 2) ^ std::rotr(a, 13) ^ std::rotr(a, 22);
        const std::uint32_t second = large_0 + ((a & b) ^ (a & c) ^ (b & c));
        h = g;
        g = f;
        f = e;
        e = d + first;
        d = c;
        c = b;
        b = a;
        a = first + second;
    }
    const std::array<std::uint32_t, 8> added = {a, b, c, d, e, f, g, h};
    for (std::size_t i = 0; i < state.size(); ++i)
        state[i] += added[i];
}

void sha256::add(std::string_view bytes) {
    total += bytes.size();
    while (!bytes.empty()) {
        if (gathered_size == 0 && bytes.size() >= block_size) {
            take_block(reinterpret_cast<const unsigned char*>(bytes.data()));
            bytes.remove_prefix(block_size);
            continue;
        }
        const std::size_t count = std::min(block_size - gathered_size, bytes.size());
        std::memcpy(gathered.data() + gathered_size, bytes.data(), count);
        gathered_size += count;
        bytes.remove_prefix(count);
        if (gathered_size < block_size)
            return;
        take_block(gathered.data());
        gathered_size = 0;
    }
}

std::string sha256::digest() {
    const std::uint64_t bits = total * 8;
    add("\x80");
    constexpr std::size_t room_for_length = 8;
    while (gathered_size != block_size - room_for_length)
        add(std::string_view("\0", 1));
    for (unsigned shift = 64; shift > 0; shift -= 8) {
        const char byte = static_cast<char>(bits >> (shift - 8) & 0xffU);
        add({&byte, 1});
    }
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    for (const std::uint32_t word : state)
        for (unsigned shift = 32; shift > 0; shift -= 4)
            text += digits[word >> (shift - 4) & 0xfU];
    return text;
}
