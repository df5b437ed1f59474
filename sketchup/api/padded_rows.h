#pragma once

// Pixels as they cross the C interface: rows from the top, each padded to a multiple of 4 bytes; blue, green, red(,
// alpha), which is the order of the host on Windows.

#include "image/picture.h"

#include <cstddef>

namespace sketchup::api {

// Bytes of all rows with their padding.
std::size_t padded_size(const image::picture_extent& extent);

// bytes: padded_size(target.extent()) of them.
void copy_from_padded_rows(const unsigned char* bytes, image::picture& target);

// The padding becomes zero. bytes: room for padded_size(source.extent()).
void copy_to_padded_rows(const image::picture& source, unsigned char* bytes);

} // namespace sketchup::api
