#pragma once

// The codecs behind decode_picture and encode_picture, one .cpp a format.
//
// …_extent: what the header announces, without decoding; nothing if the header is damaged. The size is not limited.
// decode_…: the whole picture; nothing if the file is damaged or announces more than `limit` pixels.
// encode_…: the bytes of a file; none if the format cannot hold the picture. The same picture always gives the same
//           bytes.

#include "image/picture.h"

#include <optional>
#include <span>

namespace image {

using byte_view = std::span<const std::uint8_t>;
using byte_list = std::vector<std::uint8_t>;

std::optional<picture_extent> png_extent(byte_view file);
std::optional<picture> decode_png(byte_view file, std::uint64_t limit);
byte_list encode_png(const picture& source);

std::optional<picture_extent> jpeg_extent(byte_view file);
// A file that ends early or holds damaged blocks gives what can be seen of it, as viewers show it.
std::optional<picture> decode_jpeg(byte_view file, std::uint64_t limit);
byte_list encode_jpeg(const picture& source); // alpha is dropped

std::optional<picture_extent> bmp_extent(byte_view file);
std::optional<picture> decode_bmp(byte_view file, std::uint64_t limit);
byte_list encode_bmp(const picture& source); // alpha is dropped

std::optional<picture_extent> tiff_extent(byte_view file);
std::optional<picture> decode_tiff(byte_view file, std::uint64_t limit);
byte_list encode_tiff(const picture& source);

std::optional<picture_extent> tga_extent(byte_view file);
std::optional<picture> decode_tga(byte_view file, std::uint64_t limit);

std::optional<picture_extent> gif_extent(byte_view file); // of the first frame and the screen around it
std::optional<picture> decode_gif(byte_view file, std::uint64_t limit);

std::optional<picture_extent> psd_extent(byte_view file);
std::optional<picture> decode_psd(byte_view file, std::uint64_t limit);

} // namespace image
