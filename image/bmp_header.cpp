#include "image/bmp_header.h"

#include "image/little_endian.h"

#include <algorithm>
#include <bit>

namespace image {
namespace {

constexpr std::size_t file_header_bytes = 14;
constexpr std::size_t core_header_bytes = 12; // the oldest kind, with 16-bit sizes
constexpr std::size_t info_header_bytes = 40; // the usual kind; later ones only add to it
constexpr std::size_t os2_header_bytes = 64;  // numbers its packings otherwise
constexpr std::size_t header_with_alpha_mask = 56;
constexpr std::size_t masks_at = file_header_bytes + info_header_bytes;

enum stored_packing : std::uint32_t { plain = 0, rle8 = 1, rle4 = 2, masks = 3, masks_with_alpha = 6 };

bool read_core_header(byte_view file, bmp_header& header) {
    header.extent = {number16(file, 18), number16(file, 20), 24};
    header.bits = number16(file, 24);
    header.palette_entry_bytes = 3;
    return true;
}

void use_usual_masks(bmp_header& header) {
    if (header.bits == 16)
        header.channels = {{{0x1F}, {0x3E0}, {0x7C00}, {0}}};
    else
        header.channels = {{{0xFF}, {0xFF00}, {0xFF0000}, {0}}};
}

// Reads the masks of a file that has its own. They end the usual header or follow it.
bool read_masks(byte_view file, bool has_alpha, bmp_header& header) {
    const std::size_t count = has_alpha ? 4 : 3;
    if ((header.bits != 16 && header.bits != 32) || file.size() < masks_at + 4 * count)
        return false;
    static constexpr std::size_t channel_of_mask[] = {2, 1, 0, 3}; // red first in the file
    for (std::size_t i = 0; i < count; ++i)
        header.channels[channel_of_mask[i]].mask = number32(file, masks_at + 4 * i);
    if (header.channels[3].mask != 0)
        header.extent.bits_per_pixel = 32;
    return true;
}

bool read_packing(byte_view file, std::size_t header_bytes, bmp_header& header) {
    switch (number32(file, 30)) {
    case plain:
        return true;
    case rle8:
        header.packing = bmp_packing::rle8;
        return header.bits == 8;
    case rle4:
        header.packing = bmp_packing::rle4;
        return header.bits == 4;
    case masks:
        return header_bytes != os2_header_bytes && read_masks(file, header_bytes >= header_with_alpha_mask, header);
    case masks_with_alpha:
        return header_bytes != os2_header_bytes && read_masks(file, true, header);
    default:
        return false;
    }
}

bool read_info_header(byte_view file, std::size_t header_bytes, bmp_header& header) {
    if (file.size() < file_header_bytes + info_header_bytes)
        return false;
    const std::uint32_t stored_height = number32(file, 22);
    header.is_top_down = stored_height >> 31 != 0; // a negative height
    header.extent = {number32(file, 18), header.is_top_down ? 0 - stored_height : stored_height, 24};
    if (header.extent.width >> 31 != 0)
        return false;
    header.bits = number16(file, 28);
    header.palette_entries = number32(file, 46);
    use_usual_masks(header);
    return read_packing(file, header_bytes, header);
}

// The palette follows the header; how long it is must be said only if it is not full.
void locate_palette(byte_view file, std::size_t header_bytes, bmp_header& header) {
    header.palette = file_header_bytes + header_bytes;
    const std::size_t full = header.bits <= 8 ? std::size_t{1} << header.bits : 0;
    if (header.palette_entries == 0 || header.palette_entries > full)
        header.palette_entries = full;
    const std::size_t room = header.palette < file.size() ? file.size() - header.palette : 0;
    header.palette_entries = std::min(header.palette_entries, room / header.palette_entry_bytes);
}

} // namespace

std::uint8_t bmp_channel::of(std::uint32_t pixel) const {
    const int shift = std::countr_zero(mask);
    const std::uint64_t most = mask >> shift;
    return static_cast<std::uint8_t>(std::uint64_t{(pixel & mask) >> shift} * 255 / most);
}

std::optional<bmp_header> read_bmp_header(byte_view file) {
    if (file.size() < file_header_bytes + core_header_bytes)
        return std::nullopt;
    const std::size_t header_bytes = number32(file, 14);
    bmp_header header;
    const bool is_sound = header_bytes == core_header_bytes   ? read_core_header(file, header)
                          : header_bytes >= info_header_bytes ? read_info_header(file, header_bytes, header)
                                                              : false;
    static constexpr unsigned depths[] = {1, 4, 8, 16, 24, 32};
    const bool has_known_depth = std::find(std::begin(depths), std::end(depths), header.bits) != std::end(depths);
    if (!is_sound || !has_known_depth || header.extent.width == 0 || header.extent.height == 0)
        return std::nullopt;
    if (header_bytes == core_header_bytes)
        use_usual_masks(header);
    locate_palette(file, header_bytes, header);
    header.pixels = number32(file, 10);
    return header;
}

} // namespace image
