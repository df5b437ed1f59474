#include "image/project_picture.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace image {
namespace {

// Places at which the colour of one pixel is looked up.
constexpr int most_taps = 8;

// Beyond this many repetitions a place has no digits left for the pixel.
constexpr double farthest_place = 1e9;

using channel_sums = std::array<std::uint32_t, 4>;

// A level as the taps need it.
struct tapped_level {
    explicit tapped_level(const picture& level)
        : bytes(level.row(0)), row(level.bytes_per_row()), width(level.width()), height(level.height()),
          parts_across(256.0 * level.width()), parts_down(256.0 * level.height()) {}
    const std::uint8_t* bytes;
    std::size_t row;
    std::uint32_t width;
    std::uint32_t height;
    double parts_across; // 256 to a pixel
    double parts_down;
};

// The two columns or rows between which a colour stands, and 256 parts that divide them.
struct neighbours {
    std::uint32_t earlier;
    std::uint32_t later;
    std::uint32_t later_part;
};

inline neighbours neighbours_at(double place, std::uint32_t size, double all_parts) {
    double part = place - static_cast<double>(static_cast<std::int64_t>(place));
    part += part < 0 ? 1 : 0;
    // A pixel's colour stands at its middle. The count starts one pixel before the picture and rounds to the next part.
    const auto parts = static_cast<std::int64_t>(part * all_parts + 128.5);
    const auto pixel = static_cast<std::uint32_t>(parts >> 8);
    return {pixel == 0 ? size - 1 : pixel - 1, pixel == size ? 0 : pixel, static_cast<std::uint32_t>(parts & 255)};
}

// Adds 0x10000 times the colour at a place.
template<std::size_t channels>
inline void add_tap(const tapped_level& level, double at_x, double at_y, channel_sums& sums) {
    const neighbours x = neighbours_at(at_x, level.width, level.parts_across);
    const neighbours y = neighbours_at(at_y, level.height, level.parts_down);
    const std::uint8_t* upper = level.bytes + y.earlier * level.row;
    const std::uint8_t* lower = level.bytes + y.later * level.row;
    const std::size_t left = x.earlier * channels;
    const std::size_t right = x.later * channels;
    const std::uint32_t lower_right = x.later_part * y.later_part;
    const std::uint32_t upper_right = x.later_part * 256 - lower_right;
    const std::uint32_t lower_left = y.later_part * 256 - lower_right;
    const std::uint32_t upper_left = 0x10000 - upper_right - lower_left - lower_right;
    for (std::size_t i = 0; i < channels; ++i)
        sums[i] += upper[left + i] * upper_left + upper[right + i] * upper_right + lower[left + i] * lower_left +
                   lower[right + i] * lower_right;
}

// On which level an area is looked up, and at how many places along its two sides.
struct tap_grid {
    std::size_t level = 0;
    int across = 1;
    int down = 1;
};

// One tap for each pixel of an area of these lengths in pixels of level 0. Each further level halves the lengths, until
// the taps suffice; on the last level all places are alike.
inline tap_grid grid_for(double pixels_across, double pixels_down, std::size_t last_level) {
    for (std::size_t level = 0; level < last_level; ++level) {
        if (pixels_across < most_taps + 0.5 && pixels_down < most_taps + 0.5) {
            const int across = std::max(static_cast<int>(pixels_across + 0.5), 1);
            const int down = std::max(static_cast<int>(pixels_down + 0.5), 1);
            if (across * down <= most_taps)
                return {level, across, down};
        }
        pixels_across /= 2;
        pixels_down /= 2;
    }
    return {last_level, 1, 1};
}

template<std::size_t channels>
class projector {
public:
    projector(const picture_pyramid& source, const perspective& through)
        : through_(through), width_(source.level(0).width()), height_(source.level(0).height()) {
        for (std::size_t i = 0; i < source.level_count(); ++i)
            levels_.emplace_back(source.level(i));
    }

    void draw(picture& target) const {
        const double across = 1.0 / target.width();
        const double down = 1.0 / target.height();
        for (std::uint32_t y = 0; y < target.height(); ++y) {
            const projected_place left = moved(through_.start, through_.down, (y + 0.5) * down);
            std::uint8_t* pixel = target.row(y);
            for (std::uint32_t x = 0; x < target.width(); ++x, pixel += channels)
                draw_pixel(moved(left, through_.across, (x + 0.5) * across), across, down, pixel);
        }
    }

private:
    static projected_place moved(const projected_place& p, const projected_place& by, double factor) {
        return {p.x + by.x * factor, p.y + by.y * factor, p.q + by.q * factor};
    }

    // across, down: how far it is to the next pixel.
    void draw_pixel(const projected_place& at, double across, double down, std::uint8_t* pixel) const {
        const double scale = 1 / at.q;
        const double x = at.x * scale;
        const double y = at.y * scale;
        // How far the place moves from this pixel to the next: the derivative of the quotient.
        const double across_x = (through_.across.x - x * through_.across.q) * scale * across;
        const double across_y = (through_.across.y - y * through_.across.q) * scale * across;
        const double down_x = (through_.down.x - x * through_.down.q) * scale * down;
        const double down_y = (through_.down.y - y * through_.down.q) * scale * down;
        const double reach = std::abs(across_x) + std::abs(across_y) + std::abs(down_x) + std::abs(down_y);
        if (!(std::abs(x) + std::abs(y) + reach < farthest_place)) { // or no number
            std::copy_n(levels_.back().bytes, channels, pixel);
            return;
        }
        const tap_grid grid =
            grid_for(pixels_along(across_x, across_y), pixels_along(down_x, down_y), levels_.size() - 1);
        channel_sums sums{};
        for (int j = 0; j < grid.down; ++j)
            for (int i = 0; i < grid.across; ++i) {
                const double right = (i + 0.5) * part_of[grid.across] - 0.5;
                const double below = (j + 0.5) * part_of[grid.down] - 0.5;
                add_tap<channels>(levels_[grid.level], x + right * across_x + below * down_x,
                                  y + right * across_y + below * down_y, sums);
            }
        const double share = part_of[grid.across] * part_of[grid.down] / 0x10000;
        for (std::size_t i = 0; i < channels; ++i)
            pixel[i] = static_cast<std::uint8_t>(static_cast<std::int32_t>(sums[i] * share + 0.5));
    }

    double pixels_along(double x, double y) const {
        return std::sqrt(x * x * (width_ * width_) + y * y * (height_ * height_));
    }

    static constexpr double part_of[most_taps + 1] = {0,       1,       1 / 2.0, 1 / 3.0, 1 / 4.0,
                                                      1 / 5.0, 1 / 6.0, 1 / 7.0, 1 / 8.0};
    perspective through_;
    double width_;
    double height_;
    std::vector<tapped_level> levels_;
};

} // namespace

picture project_picture(const picture_pyramid& source, const perspective& through, std::uint32_t width,
                        std::uint32_t height) {
    const int depth = source.level(0).extent().bits_per_pixel;
    picture made = picture::make({width, height, depth}).value_or(picture());
    if (source.level(0).has_alpha())
        projector<4>(source, through).draw(made);
    else
        projector<3>(source, through).draw(made);
    return made;
}

} // namespace image
