// PSD, read only: the picture of all layers together, grey, palette or colour, of 8 or 16 bits, plain or run-length
// packed.

#include "image/codecs.h"

#include <algorithm>
#include <array>

namespace image {
namespace {

constexpr std::size_t header_bytes = 26;
constexpr std::size_t palette_entries = 256; // all reds, all greens, all blues

// Most byte first; 0 beyond the end.
std::uint64_t number(byte_view file, std::uint64_t at, int bytes) {
    std::uint64_t value = 0;
    for (int i = 0; i < bytes; ++i, ++at)
        value = value << 8 | (at < file.size() ? file[static_cast<std::size_t>(at)] : 0u);
    return value;
}

enum class colours : std::uint64_t { grey = 1, indexed = 2, rgb = 3 };

struct psd_header {
    picture_extent extent;
    colours mode = colours::rgb;
    std::size_t channels = 0;     // stored
    std::size_t used = 0;         // of these, colours and alpha
    std::size_t sample_bytes = 1; // most byte first
    bool is_packed = false;
    std::size_t palette = 0; // offset
    std::size_t pixels = 0;  // offset: of the lengths of the rows if they are packed
};

std::optional<psd_header> read_header(byte_view file) {
    constexpr std::uint64_t widest = 30000;
    psd_header header;
    const std::uint64_t height = number(file, 14, 4), width = number(file, 18, 4), bits = number(file, 22, 2);
    header.channels = number(file, 12, 2);
    header.mode = static_cast<colours>(number(file, 24, 2));
    header.sample_bytes = bits / 8;
    header.palette = header_bytes + 4;
    const std::uint64_t resources = header.palette + number(file, header_bytes, 4);
    const std::uint64_t layers = resources + 4 + number(file, resources, 4);
    const std::uint64_t packing = layers + 4 + number(file, layers, 4);
    const bool is_grey = header.mode == colours::grey, is_indexed = header.mode == colours::indexed;
    const std::size_t shades = is_grey || is_indexed ? 1 : 3;
    // A negative number of layers says that the first channel behind the colours is what shines through all of them.
    const bool tells_alpha = number(file, layers, 4) >= 6 && (number(file, layers + 8, 2) & 0x8000) != 0;
    header.used = tells_alpha && !is_indexed && header.channels > shades ? shades + 1 : shades;
    const bool is_sound =
        number(file, 4, 2) == 1 && header.channels >= header.used && header.channels <= 56 && width >= 1 &&
        width <= widest && height >= 1 && height <= widest && (bits == 8 || (bits == 16 && !is_indexed)) &&
        (is_grey || header.mode == colours::rgb || (is_indexed && resources >= header.palette + 3 * palette_entries)) &&
        number(file, packing, 2) <= 1 && packing + 2 < file.size();
    if (!is_sound)
        return std::nullopt;
    header.extent = {static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height),
                     header.used > shades ? 32 : 24};
    header.is_packed = number(file, packing, 2) == 1;
    header.pixels = static_cast<std::size_t>(packing) + 2;
    return header;
}

// Unpacks runs into a row that they must fill; a length byte below 128 is followed by so many bytes and one more, one
// above 128 by a byte that stands 257 times less so many.
bool unpack_row(byte_view packed, std::vector<std::uint8_t>& row) {
    std::size_t at = 0, done = 0;
    while (done < row.size() && at < packed.size()) {
        const unsigned length = packed[at++];
        if (length == 128)
            continue;
        const std::size_t count = std::min<std::size_t>(length < 128 ? length + 1 : 257 - length, row.size() - done);
        if (at + (length < 128 ? count : 1) > packed.size())
            return false;
        if (length < 128)
            std::copy_n(packed.begin() + static_cast<std::ptrdiff_t>(at), count,
                        row.begin() + static_cast<std::ptrdiff_t>(done));
        else
            std::fill_n(row.begin() + static_cast<std::ptrdiff_t>(done), count, packed[at]);
        at += length < 128 ? count : 1;
        done += count;
    }
    return done == row.size();
}

// Gives the rows of all channels, one after the other.
class row_reader {
public:
    row_reader(byte_view file, const psd_header& header)
        : file_(file), header_(header), row_(header.extent.width * header.sample_bytes), lengths_(header.pixels),
          at_(header.pixels) {
        if (header.is_packed)
            at_ += 2 * header.channels * header.extent.height;
    }

    // Null if the bytes end before the row does.
    const std::vector<std::uint8_t>* next() {
        const std::size_t length =
            header_.is_packed ? static_cast<std::size_t>(number(file_, lengths_, 2)) : row_.size();
        lengths_ += 2;
        if (at_ > file_.size() || length > file_.size() - at_)
            return nullptr;
        const byte_view stored = file_.subspan(at_, length);
        at_ += length;
        if (!header_.is_packed)
            std::copy(stored.begin(), stored.end(), row_.begin());
        else if (!unpack_row(stored, row_))
            return nullptr;
        return &row_;
    }

private:
    byte_view file_;
    const psd_header& header_;
    std::vector<std::uint8_t> row_;
    std::size_t lengths_;
    std::size_t at_;
};

// Spreads the samples of a channel over a row of pixels.
void put_channel(byte_view file, const psd_header& header, std::size_t channel, const std::vector<std::uint8_t>& row,
                 picture& target, std::uint32_t y) {
    const std::size_t pixel_bytes = target.bytes_per_pixel();
    std::uint8_t* pixel = target.row(y);
    for (std::uint32_t x = 0; x < target.width(); ++x, pixel += pixel_bytes) {
        const std::uint8_t sample = row[x * header.sample_bytes];
        if (header.mode == colours::rgb)
            pixel[channel < 3 ? 2 - channel : 3] = sample;
        else if (channel == 1)
            pixel[3] = sample;
        else
            for (std::size_t shade = 0; shade < 3; ++shade)
                pixel[2 - shade] =
                    header.mode == colours::grey ? sample : file[header.palette + shade * palette_entries + sample];
    }
}

} // namespace

std::optional<picture_extent> psd_extent(byte_view file) {
    const std::optional<psd_header> header = read_header(file);
    return header ? std::optional(header->extent) : std::nullopt;
}

std::optional<picture> decode_psd(byte_view file, std::uint64_t limit) {
    const std::optional<psd_header> header = read_header(file);
    std::optional<picture> decoded = header ? picture::make(header->extent, limit) : std::nullopt;
    if (!decoded)
        return std::nullopt;
    row_reader rows(file, *header);
    for (std::size_t channel = 0; channel < header->used; ++channel)
        for (std::uint32_t y = 0; y < decoded->height(); ++y) {
            const std::vector<std::uint8_t>* row = rows.next();
            if (!row)
                return std::nullopt;
            put_channel(file, *header, channel, *row, *decoded, y);
        }
    return decoded;
}

} // namespace image
