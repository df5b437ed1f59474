// TGA, read only: colour, grey and palette pictures, plain and run-length packed.

#include "image/codecs.h"
#include "image/little_endian.h"

#include <algorithm>
#include <array>

namespace image {
namespace {

constexpr std::size_t header_bytes = 18;

struct tga_header {
    picture_extent extent;
    bool is_packed = false;
    bool has_palette = false;
    bool is_grey = false;
    bool runs_down = false;      // the first stored row is the top one
    bool runs_left = false;      // the first stored pixel of a row is the right one
    std::size_t pixel_bytes = 0; // stored
    std::size_t palette_first = 0;
    std::size_t palette_entries = 0;
    std::size_t palette_entry_bytes = 0;
    std::size_t palette = 0; // offset
    std::size_t pixels = 0;  // offset
};

bool is_colour_depth(unsigned bits) {
    return bits == 15 || bits == 16 || bits == 24 || bits == 32;
}

std::optional<tga_header> read_header(byte_view file) {
    if (file.size() < header_bytes || file[1] > 1 || (file[17] & 0xC0) != 0)
        return std::nullopt;
    enum kind : unsigned { indexed = 1, colour = 2, grey = 3 };
    const unsigned stored_kind = file[2] & ~8u;
    const unsigned bits = file[16];
    const unsigned palette_bits = file[7];
    tga_header header;
    header.is_packed = (file[2] & 8) != 0;
    header.has_palette = stored_kind == indexed;
    header.is_grey = stored_kind == grey;
    const bool is_sound = header.has_palette ? bits == 8 && file[1] == 1 && is_colour_depth(palette_bits)
                          : header.is_grey   ? bits == 8
                                             : stored_kind == colour && is_colour_depth(bits);
    if (!is_sound)
        return std::nullopt;
    const unsigned colour_bits = header.has_palette ? palette_bits : bits;
    constexpr unsigned alpha_count = 15; // how many bits of a pixel are alpha
    const bool has_alpha = colour_bits == 32 && (header.has_palette || (file[17] & alpha_count) == 8);
    header.extent = {number16(file, 12), number16(file, 14), has_alpha ? 32 : 24};
    header.runs_left = (file[17] & 0x10) != 0;
    header.runs_down = (file[17] & 0x20) != 0;
    header.pixel_bytes = (bits + 7) / 8;
    header.palette_first = number16(file, 3);
    header.palette_entries = file[1] == 1 ? number16(file, 5) : std::size_t{0};
    header.palette_entry_bytes = (palette_bits + 7) / 8;
    header.palette = header_bytes + file[0];
    header.pixels = header.palette + header.palette_entries * header.palette_entry_bytes;
    if (header.extent.width == 0 || header.extent.height == 0 || header.pixels >= file.size())
        return std::nullopt;
    return header;
}

using colour = std::array<std::uint8_t, 4>; // blue, green, red, alpha

colour read_colour(const std::uint8_t* stored, std::size_t bytes) {
    if (bytes == 2) {
        const unsigned value = stored[0] | static_cast<unsigned>(stored[1]) << 8;
        const auto widened = [value](unsigned shift) {
            return static_cast<std::uint8_t>((value >> shift & 31) * 255 / 31);
        };
        return {widened(0), widened(5), widened(10), 255};
    }
    return {stored[0], stored[1], stored[2], bytes == 4 ? stored[3] : std::uint8_t{255}};
}

class pixel_reader {
public:
    pixel_reader(byte_view file, const tga_header& header, picture& target)
        : file_(file), header_(header), target_(target), at_(header.pixels) {}

    // False if the bytes end before the picture does.
    bool read() {
        const std::uint64_t count = std::uint64_t{target_.width()} * target_.height();
        while (done_ < count) {
            const std::uint64_t left = count - done_;
            if (!header_.is_packed) {
                if (!put_plain(left))
                    return false;
                continue;
            }
            if (at_ >= file_.size())
                return false;
            const unsigned packet = file_[at_++];
            const std::uint64_t length = std::min<std::uint64_t>((packet & 127) + 1, left);
            if (!((packet & 128) != 0 ? put_run(length) : put_plain(length)))
                return false;
        }
        return true;
    }

private:
    bool has_pixels(std::uint64_t count) const { return count * header_.pixel_bytes <= file_.size() - at_; }

    colour next_colour() {
        const std::uint8_t* stored = file_.data() + at_;
        at_ += header_.pixel_bytes;
        if (header_.is_grey)
            return {*stored, *stored, *stored, 255};
        if (!header_.has_palette)
            return read_colour(stored, header_.pixel_bytes);
        const std::size_t entry = *stored - header_.palette_first; // wraps to a huge number below the first
        if (entry >= header_.palette_entries)
            return {0, 0, 0, 255};
        return read_colour(file_.data() + header_.palette + entry * header_.palette_entry_bytes,
                           header_.palette_entry_bytes);
    }

    void put(const colour& c) {
        const auto column = static_cast<std::uint32_t>(done_ % target_.width());
        const auto line = static_cast<std::uint32_t>(done_ / target_.width());
        const std::uint32_t x = header_.runs_left ? target_.width() - 1 - column : column;
        const std::uint32_t y = header_.runs_down ? line : target_.height() - 1 - line;
        std::copy_n(c.begin(), target_.bytes_per_pixel(), target_.row(y) + x * target_.bytes_per_pixel());
        ++done_;
    }

    bool put_plain(std::uint64_t count) {
        if (!has_pixels(count))
            return false;
        for (std::uint64_t i = 0; i < count; ++i)
            put(next_colour());
        return true;
    }

    bool put_run(std::uint64_t count) {
        if (!has_pixels(1))
            return false;
        const colour c = next_colour();
        for (std::uint64_t i = 0; i < count; ++i)
            put(c);
        return true;
    }

    byte_view file_;
    const tga_header& header_;
    picture& target_;
    std::size_t at_;
    std::uint64_t done_ = 0; // pixels
};

} // namespace

std::optional<picture_extent> tga_extent(byte_view file) {
    const std::optional<tga_header> header = read_header(file);
    return header ? std::optional(header->extent) : std::nullopt;
}

std::optional<picture> decode_tga(byte_view file, std::uint64_t limit) {
    const std::optional<tga_header> header = read_header(file);
    std::optional<picture> decoded = header ? picture::make(header->extent, limit) : std::nullopt;
    if (!decoded || !pixel_reader(file, *header, *decoded).read())
        return std::nullopt;
    return decoded;
}

} // namespace image
