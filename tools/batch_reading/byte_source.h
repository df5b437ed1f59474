#pragma once

#include <cstddef>

// The bytes of a file, one after the other, wherever they come from.
class byte_source {
public:
    virtual ~byte_source() = default;
    // Up to `size` bytes; 0 at the end and on an error.
    virtual std::size_t read(char* into, std::size_t size) = 0;
};
