#pragma once

// From the bytes of a picture file to pixels. The signature tells the format: PNG, JPEG, BMP, TIFF, TGA, GIF, PSD.

#include "image/picture.h"

#include <optional>
#include <span>

namespace image {

// Width, height and depth as the file's header announces them; nothing is decoded, and the numbers may be absurd.
// Nothing for a format that cannot be read and for a damaged header.
std::optional<picture_extent> picture_size(std::span<const std::uint8_t> file);

// The picture. Palettes and greys are widened to 24 bits, with alpha to 32; 16-bit channels are cut to 8.
// Nothing for a format that cannot be read, for damaged bytes, and for more than `limit` pixels.
std::optional<picture> decode_picture(std::span<const std::uint8_t> file, std::uint64_t limit = most_pixels);

} // namespace image
