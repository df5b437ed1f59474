#pragma once

// Chance that is the same in every run and on every platform.

#include <cstdint>

// A linear congruential sequence of fixed start, so that a model that is converted again looks as before.
class random_sequence {
public:
    // The next number, 0 to 32767.
    int next() {
        state = state * 214013 + 2531011; // modulo 2^32
        return static_cast<int>(state >> 16 & 0x7fff);
    }

private:
    std::uint32_t state = 1;
};
