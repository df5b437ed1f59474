#pragma once

// What the headers of a BMP file say.

#include "image/codecs.h"

#include <array>

namespace image {

enum class bmp_packing { none, rle8, rle4 };

// Which bits of a pixel of 16 or 32 bits hold a channel. All zero: the channel is missing.
struct bmp_channel {
    std::uint32_t mask = 0;
    // The channel of a pixel, widened to 0 to 255. Only for a channel that is there.
    std::uint8_t of(std::uint32_t pixel) const;
};

struct bmp_header {
    picture_extent extent; // 32 bits only if the file tells which bits are alpha
    bool is_top_down = false;
    unsigned bits = 24; // stored for each pixel: 1, 4, 8, 16, 24 or 32
    bmp_packing packing = bmp_packing::none;
    std::array<bmp_channel, 4> channels; // blue, green, red, alpha; of 16 and 32 bits
    std::size_t palette = 0;             // offset of the first entry
    std::size_t palette_entry_bytes = 4;
    std::size_t palette_entries = 0; // all of them lie within the file
    std::size_t pixels = 0;          // offset
};

// Nothing if the headers are damaged, or of a kind that is no plain picture (JPEG or PNG inside, Huffman codes).
std::optional<bmp_header> read_bmp_header(byte_view file);

} // namespace image
