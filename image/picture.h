#pragma once

// A picture in memory: plain bytes that anyone may read and write.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace image {

// The most pixels that a picture in memory may have: 8192 × 8192, which take 256 MiB at 32 bits. A file that announces
// more is refused before memory is asked for; reencode_picture.h says what can be done with it.
inline constexpr std::uint64_t most_pixels = 0x4000000;

// What a picture file announces about itself.
struct picture_extent {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    int bits_per_pixel = 24; // as decoded: 32 with alpha, else 24
    friend bool operator==(const picture_extent&, const picture_extent&) = default;
};

class picture {
public:
    // No pixels.
    picture() = default;

    // A black picture; transparent if it has 32 bits. Nothing if a side is 0, the pixels are more than `limit`, or
    // bits_per_pixel is neither 24 nor 32.
    static std::optional<picture> make(const picture_extent& extent, std::uint64_t limit = most_pixels);

    const picture_extent& extent() const { return extent_; }
    std::uint32_t width() const { return extent_.width; }
    std::uint32_t height() const { return extent_.height; }
    bool has_alpha() const { return extent_.bits_per_pixel == 32; }
    bool is_empty() const { return bytes_.empty(); }

    std::size_t bytes_per_pixel() const { return has_alpha() ? 4 : 3; }
    std::size_t bytes_per_row() const { return extent_.width * bytes_per_pixel(); }

    // The pixels of a row, the first of which is the top one: blue, green, red and, at 32 bits, alpha (0 transparent,
    // colours not multiplied by it). No padding. y: below height().
    std::uint8_t* row(std::uint32_t y) { return bytes_.data() + y * bytes_per_row(); }
    const std::uint8_t* row(std::uint32_t y) const { return bytes_.data() + y * bytes_per_row(); }

    // All rows, one after the other.
    std::vector<std::uint8_t>& bytes() { return bytes_; }
    const std::vector<std::uint8_t>& bytes() const { return bytes_; }

    friend bool operator==(const picture&, const picture&) = default;

private:
    picture_extent extent_;
    std::vector<std::uint8_t> bytes_;
};

} // namespace image
