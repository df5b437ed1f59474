#pragma once

#include <cstdint>
#include <span>
#include <string_view>

namespace image {

// Formats of picture files that are told apart. TGA, GIF and PSD are read and not written.
enum class picture_format { unknown, png, jpeg, bmp, tiff, tga, gif, psd };

// The format of a file by its first bytes. TGA has no signature: bytes count as TGA if no other format claims them and
// they begin with a sound TGA header.
picture_format format_of_bytes(std::span<const std::uint8_t> file);

// The format in which a file of this name is written: png; jpg, jpeg; bmp; tif, tiff, in any case. Unknown for any
// other extension and for a name without one.
picture_format format_of_name(std::string_view file_name);

} // namespace image
