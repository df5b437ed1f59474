// GIF, read only: the first frame, in its place on the screen of the file.

#include "image/codecs.h"
#include "image/little_endian.h"

#include <algorithm>
#include <array>

namespace image {
namespace {

constexpr std::size_t header_bytes = 13;       // signature and screen
constexpr std::size_t descriptor_bytes = 10;   // of a frame, its mark included
constexpr std::size_t palette_entry_bytes = 3; // red, green, blue
constexpr unsigned no_transparent_entry = 256;

// The offset behind a palette that begins at `at`, as the flags before it tell.
std::size_t behind_palette(unsigned flags, std::size_t at) {
    return (flags & 0x80) != 0 ? at + (palette_entry_bytes << ((flags & 7) + 1)) : at;
}

struct gif_frame {
    picture_extent extent; // of the screen, or of what the frame needs if that is more
    std::uint32_t left = 0;
    std::uint32_t top = 0;
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    bool is_interlaced = false;
    unsigned transparent_entry = no_transparent_entry;
    std::size_t palette = 0; // offset
    std::size_t palette_entries = 0;
    std::size_t data = 0; // offset of the packed pixels
};

// The offset behind a row of blocks that each begin with their size and end with an empty one.
std::size_t behind_blocks(byte_view file, std::size_t at) {
    while (at < file.size() && file[at] != 0)
        at += std::size_t{file[at]} + 1;
    return at + 1;
}

// The frame whose descriptor stands at `at`.
std::optional<gif_frame> read_frame(byte_view file, std::size_t at, unsigned transparent_entry) {
    if (at + descriptor_bytes > file.size())
        return std::nullopt;
    gif_frame frame;
    frame.left = number16(file, at + 1);
    frame.top = number16(file, at + 3);
    frame.width = number16(file, at + 5);
    frame.height = number16(file, at + 7);
    frame.transparent_entry = transparent_entry;
    const unsigned flags = file[at + 9];
    frame.is_interlaced = (flags & 0x40) != 0;
    const bool has_own_palette = (flags & 0x80) != 0;
    frame.palette = has_own_palette ? at + descriptor_bytes : header_bytes;
    frame.data = behind_palette(flags, at + descriptor_bytes);
    const std::size_t palette_end = has_own_palette ? frame.data : behind_palette(file[10], header_bytes);
    frame.palette_entries = (palette_end - frame.palette) / palette_entry_bytes;
    const std::uint32_t screen_width = number16(file, 6);
    const std::uint32_t screen_height = number16(file, 8);
    const bool covers_all =
        frame.left == 0 && frame.top == 0 && frame.width >= screen_width && frame.height >= screen_height;
    const bool has_alpha = !covers_all || transparent_entry != no_transparent_entry;
    frame.extent = {std::max(screen_width, frame.left + frame.width), std::max(screen_height, frame.top + frame.height),
                    has_alpha ? 32 : 24};
    if (frame.width == 0 || frame.height == 0 || frame.data >= file.size())
        return std::nullopt;
    return frame;
}

std::optional<gif_frame> first_frame(byte_view file) {
    constexpr unsigned extension = 0x21, graphic_control = 0xF9, descriptor = 0x2C;
    if (file.size() < header_bytes)
        return std::nullopt;
    unsigned transparent_entry = no_transparent_entry;
    std::size_t at = behind_palette(file[10], header_bytes);
    while (at + 1 < file.size() && file[at] == extension) {
        constexpr std::size_t control_bytes = 8;
        if (file[at + 1] == graphic_control && at + control_bytes <= file.size())
            transparent_entry = (file[at + 3] & 1) != 0 ? file[at + 6] : no_transparent_entry;
        at = behind_blocks(file, at + 2);
    }
    if (at >= file.size() || file[at] != descriptor)
        return std::nullopt;
    return read_frame(file, at, transparent_entry);
}

// The codes that lie in a row of blocks, least bit first.
class code_reader {
public:
    code_reader(byte_view file, std::size_t at) : file_(file), at_(at) {}

    // False at the end.
    bool next(unsigned width, unsigned& code) {
        while (bits_ < width) {
            if (left_ == 0 && !next_block())
                return false;
            held_ |= std::uint32_t{file_[at_++]} << bits_;
            bits_ += 8;
            --left_;
        }
        code = held_ & ((1u << width) - 1);
        held_ >>= width;
        bits_ -= width;
        return true;
    }

private:
    bool next_block() {
        if (at_ >= file_.size() || file_[at_] == 0)
            return false;
        left_ = std::min<std::size_t>(file_[at_], file_.size() - at_ - 1);
        ++at_;
        return left_ > 0;
    }

    byte_view file_;
    std::size_t at_;
    std::size_t left_ = 0; // bytes of this block
    std::uint32_t held_ = 0;
    unsigned bits_ = 0;
};

class frame_painter {
public:
    frame_painter(byte_view file, const gif_frame& frame, picture& target)
        : file_(file), frame_(frame), target_(target) {}

    // False when the frame is full.
    bool put(std::uint8_t entry) {
        std::uint8_t* pixel = target_.row(frame_.top + row()) + (frame_.left + column_) * target_.bytes_per_pixel();
        const std::uint8_t* stored =
            entry < frame_.palette_entries ? file_.data() + frame_.palette + entry * palette_entry_bytes : black.data();
        pixel[0] = stored[2];
        pixel[1] = stored[1];
        pixel[2] = stored[0];
        if (target_.has_alpha())
            pixel[3] = entry == frame_.transparent_entry ? 0 : 255;
        if (++column_ < frame_.width)
            return true;
        column_ = 0;
        return ++line_ < frame_.height;
    }

private:
    // Where the stored line of that number lies: interlaced, every 8th row, those between, every 4th, every 2nd.
    std::uint32_t row() const {
        if (!frame_.is_interlaced)
            return line_;
        struct pass {
            std::uint32_t first, step;
        };
        std::uint32_t line = line_;
        for (const pass p : {pass{0, 8}, pass{4, 8}, pass{2, 4}, pass{1, 2}}) {
            const std::uint32_t rows = frame_.height > p.first ? (frame_.height - p.first + p.step - 1) / p.step : 0;
            if (line < rows)
                return p.first + line * p.step;
            line -= rows;
        }
        return 0; // the passes hold every line
    }

    static constexpr std::array<std::uint8_t, 3> black{};
    byte_view file_;
    const gif_frame& frame_;
    picture& target_;
    std::uint32_t column_ = 0;
    std::uint32_t line_ = 0;
};

// The strings that codes stand for, each the string of another code and one byte more.
class code_table {
public:
    explicit code_table(unsigned clear_code) : clear_(clear_code) { clear(); }

    void clear() {
        used = clear_ + 2; // the clear code and the end code stand for nothing
    }
    void add(unsigned before, std::uint8_t last) {
        if (used == most)
            return;
        before_[used] = static_cast<std::uint16_t>(before);
        last_[used++] = last;
    }
    // Stores the string of a code that is in use, last byte first.
    void spell(unsigned code, std::vector<std::uint8_t>& backwards) const {
        backwards.clear();
        for (; code >= clear_; code = before_[code])
            backwards.push_back(last_[code]);
        backwards.push_back(static_cast<std::uint8_t>(code));
    }

    static constexpr unsigned most = 4096;
    unsigned used;

private:
    unsigned clear_;
    std::array<std::uint16_t, most> before_{};
    std::array<std::uint8_t, most> last_{};
};

// False if the codes end or are wrong before the frame is full.
bool unpack(byte_view file, const gif_frame& frame, picture& target) {
    const unsigned first_width = file[frame.data];
    if (first_width < 1 || first_width > 8)
        return false;
    const unsigned clear = 1u << first_width;
    constexpr unsigned none = code_table::most;
    code_table table(clear);
    code_reader codes(file, frame.data + 1);
    frame_painter painter(file, frame, target);
    std::vector<std::uint8_t> backwards;
    unsigned width = first_width + 1, code = 0, previous = none;
    while (codes.next(width, code)) {
        if (code == clear) {
            table.clear();
            width = first_width + 1;
            previous = none;
            continue;
        }
        if (code == clear + 1 || code > table.used || (code == table.used && previous == none))
            return false;
        const bool is_new = code == table.used; // the string before it, and that string's own first byte again
        table.spell(is_new ? previous : code, backwards);
        const std::uint8_t first = backwards.back();
        if (is_new)
            backwards.insert(backwards.begin(), first);
        if (previous != none)
            table.add(previous, first);
        for (auto byte = backwards.rbegin(); byte != backwards.rend(); ++byte)
            if (!painter.put(*byte))
                return true;
        previous = code;
        if (table.used == 1u << width && width < 12)
            ++width;
    }
    return false;
}

} // namespace

std::optional<picture_extent> gif_extent(byte_view file) {
    const std::optional<gif_frame> frame = first_frame(file);
    return frame ? std::optional(frame->extent) : std::nullopt;
}

std::optional<picture> decode_gif(byte_view file, std::uint64_t limit) {
    const std::optional<gif_frame> frame = first_frame(file);
    std::optional<picture> decoded = frame ? picture::make(frame->extent, limit) : std::nullopt;
    if (!decoded || !unpack(file, *frame, *decoded))
        return std::nullopt;
    return decoded;
}

} // namespace image
