#pragma once

// What stands in for the views of a model, of a scene or of a definition that files hold as previews.

#include <cstdint>
#include <span>

namespace skp {

// A PNG file: one white pixel.
std::span<const std::uint8_t> blank_preview();

} // namespace skp
