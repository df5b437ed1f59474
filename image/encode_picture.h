#pragma once

// From pixels to a picture file.

#include "image/picture.h"
#include "image/picture_format.h"

#include <span>
#include <string>

namespace image {

// The bytes of a file in that format. None for an empty picture, for a format that is not written (anything but PNG,
// JPEG, BMP and TIFF) and for a side that the format cannot hold. PNG and TIFF keep alpha, JPEG and BMP drop it.
// The same picture always gives the same bytes.
std::vector<std::uint8_t> encode_picture(const picture& source, picture_format format);

// Writes the picture in the format of the name's extension; an old file is replaced. False, and no new file is left, if
// the extension is of no known format, the picture cannot be encoded, or the file cannot be written.
bool write_picture(const std::string& file_name, const picture& source);

// Writes a whole file; an old one is replaced. False, and no file is left, if that fails.
bool write_picture_file(const std::string& file_name, std::span<const std::uint8_t> bytes);

} // namespace image
