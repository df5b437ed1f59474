#pragma once

// A number that stands for the bytes of a file, to tell equal ones.

#include <cstdint>
#include <string_view>

namespace batch_check {

// Two texts with the same hash and the same size are taken as equal: FNV-1a of 64 bits, which two files share by
// chance once in 10^19 pairs. It is no defence against files made to collide, and what hangs on it is a note.
inline std::uint64_t content_hash(std::string_view bytes, std::uint64_t hash = 14695981039346656037U) {
    for (const char c : bytes) {
        hash ^= static_cast<unsigned char>(c);
        hash *= 1099511628211U;
    }
    return hash;
}

} // namespace batch_check
