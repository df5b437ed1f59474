#pragma once

// The length-prefixed strings of the classic container, which also begin every newer file.

#include "sketchup/skp/byte_cursor.h"

#include <cstdint>
#include <span>
#include <string>

namespace skp {

// A string as it is stored: 8-bit characters, or UTF-16LE units where wide is set (then the size is even).
struct stored_text {
    bool wide = false;
    std::span<const std::uint8_t> bytes;
};

// Reads the length in any of its forms and the characters. Fails if they are not all there.
stored_text read_stored_text(byte_cursor& in);

// As UTF-8. Narrow characters are Windows-1252, which is what writers of narrow strings ran on; its five holes and
// every unpaired surrogate of a wide string become U+FFFD.
std::string utf8_from(const stored_text& text);

} // namespace skp
