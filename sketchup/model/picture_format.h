#pragma once

// Which kind of picture file some bytes are.

#include <cstdint>
#include <span>

namespace sketchup {

// The number of the format, as picture::format in model.h has it, from the signature; 0 for a signature that is not
// known. A TGA file has none.
std::uint32_t picture_format(std::span<const std::uint8_t> file);

} // namespace sketchup
