#pragma once

// A picture file in another format, without the picture in memory.

#include "image/picture_format.h"
#include "image/picture_rows.h"

#include <cstdint>
#include <span>
#include <string>

namespace image {

// The most pixels of a picture that is encoded anew, some ten seconds' work: a file of a few kilobytes may announce as
// many as it likes.
inline constexpr std::uint64_t most_pixels_by_rows = std::uint64_t{1} << 28;

// Encodes a picture file anew, a row at a time: PNG that is not interlaced and JPEG that is not progressive, as PNG or
// JPEG. out: is given the bytes of the new file; they are worth nothing if the result is false.
// False for all other formats, for damaged bytes, for more than `limit` pixels and if `out` gives up.
bool reencode_rows(std::span<const std::uint8_t> file, picture_format wanted, const byte_sink& out,
                   std::uint64_t limit = most_pixels_by_rows);

// The same into a file, in the format of its name's extension; an old one is replaced. No file is left if that fails.
bool write_reencoded(const std::string& file_name, std::span<const std::uint8_t> file,
                     std::uint64_t limit = most_pixels_by_rows);

} // namespace image
