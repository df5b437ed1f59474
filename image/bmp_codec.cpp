// BMP: a small codec of our own. Reads every depth, the packings RLE8 and RLE4, and channel masks; writes 24 bits.

#include "image/bmp_header.h"
#include "image/little_endian.h"

#include <algorithm>

namespace image {
namespace {

struct palette {
    std::array<std::array<std::uint8_t, 3>, 256> colours{}; // blue, green, red; black where the file has none
};

palette read_palette(byte_view file, const bmp_header& header) {
    palette read;
    for (std::size_t i = 0; i < header.palette_entries; ++i)
        std::copy_n(file.begin() + static_cast<std::ptrdiff_t>(header.palette + i * header.palette_entry_bytes), 3,
                    read.colours[i].begin());
    return read;
}

// Rows are padded to a multiple of 4 bytes.
std::uint64_t stored_row_bytes(std::uint64_t width, unsigned bits) {
    return (width * bits + 31) / 32 * 4;
}

void copy_indexed_row(const std::uint8_t* stored, unsigned bits, const palette& colours, picture& target,
                      std::uint8_t* out) {
    const unsigned pixels_per_byte = 8 / bits;
    for (std::uint32_t x = 0; x < target.width(); ++x, out += 3) {
        const unsigned shift = 8 - bits - x % pixels_per_byte * bits; // the leftmost pixel is in the highest bits
        const unsigned at = stored[x / pixels_per_byte] >> shift & ((1u << bits) - 1);
        std::copy_n(colours.colours[at].begin(), 3, out);
    }
}

void copy_masked_row(const std::uint8_t* stored, const bmp_header& header, picture& target, std::uint8_t* out) {
    const std::size_t bytes = header.bits / 8;
    for (std::uint32_t x = 0; x < target.width(); ++x, stored += bytes) {
        std::uint32_t pixel = 0;
        for (std::size_t i = 0; i < bytes; ++i)
            pixel |= std::uint32_t{stored[i]} << 8 * i;
        for (std::size_t channel = 0; channel < target.bytes_per_pixel(); ++channel)
            *out++ = header.channels[channel].mask ? header.channels[channel].of(pixel) : std::uint8_t{0};
    }
}

bool copy_rows(byte_view file, const bmp_header& header, picture& target) {
    const std::uint64_t stride = stored_row_bytes(target.width(), header.bits);
    const std::uint64_t last_row = (std::uint64_t{target.width()} * header.bits + 7) / 8; // its padding may be missing
    if (header.pixels > file.size() || stride * (target.height() - 1) + last_row > file.size() - header.pixels)
        return false;
    const palette colours = read_palette(file, header);
    for (std::uint32_t y = 0; y < target.height(); ++y) {
        const std::uint8_t* stored = file.data() + header.pixels + y * stride;
        std::uint8_t* out = target.row(header.is_top_down ? y : target.height() - 1 - y);
        if (header.bits <= 8)
            copy_indexed_row(stored, header.bits, colours, target, out);
        else if (header.bits == 24)
            std::copy_n(stored, target.bytes_per_row(), out);
        else
            copy_masked_row(stored, header, target, out);
    }
    return true;
}

// Unpacks runs. The place moves right, up, and by jumps; what lies outside the picture is dropped.
class run_reader {
public:
    run_reader(byte_view file, const bmp_header& header, picture& target)
        : file_(file), at_(header.pixels), is_rle4_(header.packing == bmp_packing::rle4),
          colours_(read_palette(file, header)), target_(target) {}

    // False if the bytes end before the picture does.
    bool read() {
        while (y_ < target_.height() && at_ + 2 <= file_.size()) {
            const unsigned count = file_[at_];
            const unsigned value = file_[at_ + 1];
            at_ += 2;
            if (count > 0)
                put_run(count, value);
            else if (value == end_of_picture)
                return true;
            else if (!obey(value))
                return false;
        }
        return y_ >= target_.height();
    }

private:
    enum escape : unsigned { end_of_row = 0, end_of_picture = 1, jump = 2 }; // more: that many pixels as they are

    void put(unsigned colour) {
        if (x_ < target_.width() && y_ < target_.height())
            std::copy_n(colours_.colours[colour].begin(), 3, target_.row(target_.height() - 1 - y_) + 3 * x_);
        ++x_;
    }

    unsigned nibble(unsigned byte, unsigned i) const { return i % 2 == 0 ? byte >> 4 : byte & 15; }

    void put_run(unsigned count, unsigned value) {
        for (unsigned i = 0; i < count; ++i)
            put(is_rle4_ ? nibble(value, i) : value);
    }

    bool obey(unsigned value) {
        if (value == end_of_row) {
            x_ = 0;
            ++y_;
            return true;
        }
        if (value == jump) {
            if (at_ + 2 > file_.size())
                return false;
            x_ += file_[at_];
            y_ += file_[at_ + 1];
            at_ += 2;
            return true;
        }
        return put_plain(value);
    }

    bool put_plain(unsigned count) {
        const std::size_t bytes = is_rle4_ ? (count + 1) / 2 : count;
        if (at_ + bytes > file_.size())
            return false;
        for (unsigned i = 0; i < count; ++i)
            put(is_rle4_ ? nibble(file_[at_ + i / 2], i) : file_[at_ + i]);
        at_ += bytes + bytes % 2; // padded to an even number
        return true;
    }

    byte_view file_;
    std::size_t at_;
    bool is_rle4_;
    palette colours_;
    picture& target_;
    std::uint64_t x_ = 0;
    std::uint32_t y_ = 0; // from the bottom
};

} // namespace

std::optional<picture_extent> bmp_extent(byte_view file) {
    const std::optional<bmp_header> header = read_bmp_header(file);
    return header ? std::optional(header->extent) : std::nullopt;
}

std::optional<picture> decode_bmp(byte_view file, std::uint64_t limit) {
    const std::optional<bmp_header> header = read_bmp_header(file);
    std::optional<picture> decoded = header ? picture::make(header->extent, limit) : std::nullopt;
    if (!decoded)
        return std::nullopt;
    const bool is_whole = header->packing == bmp_packing::none ? copy_rows(file, *header, *decoded)
                                                               : run_reader(file, *header, *decoded).read();
    return is_whole ? std::move(decoded) : std::nullopt;
}

byte_list encode_bmp(const picture& source) {
    constexpr std::uint32_t header_bytes = 54;
    constexpr std::uint32_t pixels_per_metre = 2835; // 72 in an inch
    const std::uint64_t stride = stored_row_bytes(source.width(), 24);
    const std::uint64_t pixel_bytes = stride * source.height();
    byte_list file = {'B', 'M'};
    file.reserve(static_cast<std::size_t>(header_bytes + pixel_bytes));
    append32(file, static_cast<std::uint32_t>(header_bytes + pixel_bytes));
    for (const std::uint32_t field : {0u, header_bytes, 40u, source.width(), source.height()})
        append32(file, field);
    append16(file, 1); // planes
    append16(file, 24);
    for (const std::uint32_t field :
         {0u, static_cast<std::uint32_t>(pixel_bytes), pixels_per_metre, pixels_per_metre, 0u, 0u})
        append32(file, field);
    for (std::uint32_t y = source.height(); y-- > 0;) {
        const std::uint8_t* pixel = source.row(y);
        for (std::uint32_t x = 0; x < source.width(); ++x, pixel += source.bytes_per_pixel())
            file.insert(file.end(), pixel, pixel + 3);
        file.resize(file.size() + static_cast<std::size_t>(stride - std::uint64_t{source.width()} * 3));
    }
    return file;
}

} // namespace image
