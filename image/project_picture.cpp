#include "image/project_picture.h"

#include <algorithm>
#include <cmath>

namespace image {
namespace {

// Places at which the colour of one pixel is looked up.
constexpr int most_taps = 8;

// Pixels of a row that are drawn in equal steps where the perspective bends them by no more than most_bent, a part of
// the longer of a pixel of the source and a step, and where the homogeneous part changes by no more than most_change.
constexpr std::uint32_t span = 16;
constexpr double most_bent = 1.0 / 32;
constexpr double most_change = 1.0 / 8;

// Beyond this many repetitions a place has no digits left for the pixel.
constexpr double farthest_place = 1e9;

// A place or a step in the source, in its width and height.
struct plain_place {
    double x;
    double y;
};

plain_place plain(const projected_place& p) {
    return {p.x / p.q, p.y / p.q};
}
plain_place operator+(const plain_place& a, const plain_place& b) {
    return {a.x + b.x, a.y + b.y};
}
plain_place operator-(const plain_place& a, const plain_place& b) {
    return {a.x - b.x, a.y - b.y};
}
plain_place operator*(const plain_place& a, double factor) {
    return {a.x * factor, a.y * factor};
}

bool is_near(const plain_place& p) {
    return std::abs(p.x) + std::abs(p.y) < farthest_place; // and a number
}

projected_place moved(const projected_place& p, const projected_place& by, double factor) {
    return {p.x + by.x * factor, p.y + by.y * factor, p.q + by.q * factor};
}

// The whole number next to one that is not negative. std::lround would be a call into the library.
inline std::int64_t nearest_whole(double number) {
    constexpr double half = 0.5;
    return static_cast<std::int64_t>(number + half);
}

// Along a row or a column of a level: 0x10000 parts to each pixel.
constexpr int part_bits = 16;
constexpr std::int64_t one_pixel = 1 << part_bits;

// A level as the taps need it.
struct tapped_level {
    explicit tapped_level(const picture& level)
        : bytes(level.row(0)), row(level.bytes_per_row()), parts_across(one_pixel * level.width()),
          parts_down(one_pixel * level.height()) {}
    const std::uint8_t* bytes;
    std::size_t row;
    std::int64_t parts_across;
    std::int64_t parts_down;
};

// A place or a step on a level in parts of its pixels, at least 0 and less than all of them.
struct tap_place {
    std::int64_t x;
    std::int64_t y;
};

// place: in pictures. shift: in parts, less than a pixel.
std::int64_t parts_of(double place, std::int64_t all, std::int64_t shift) {
    const double part = place - std::floor(place);
    const std::int64_t parts = nearest_whole(part * static_cast<double>(all)) + shift;
    return parts < 0 ? parts + all : parts >= all ? parts - all : parts;
}

tap_place step_on(const tapped_level& level, const plain_place& step) {
    return {parts_of(step.x, level.parts_across, 0), parts_of(step.y, level.parts_down, 0)};
}

// A pixel's colour stands at its middle, so that is where its parts begin. Weights have 8 bits: the second half rounds.
tap_place place_on(const tapped_level& level, const plain_place& place) {
    constexpr std::int64_t shift = -one_pixel / 2 + one_pixel / 256 / 2;
    return {parts_of(place.x, level.parts_across, shift), parts_of(place.y, level.parts_down, shift)};
}

inline tap_place moved_on(const tapped_level& level, const tap_place& place, const tap_place& step) {
    const std::int64_t x = place.x + step.x;
    const std::int64_t y = place.y + step.y;
    return {x >= level.parts_across ? x - level.parts_across : x, y >= level.parts_down ? y - level.parts_down : y};
}

// A colour in two registers, or a sum of colours with weights: a channel in each half, so that two are weighted at
// once. No sum reaches 32 bits: there are 8 taps at most, whose weights add up to 0x10000.
struct wide_colour {
    std::uint64_t even; // blue and red
    std::uint64_t odd;  // green and alpha
};

template<std::size_t channels>
inline wide_colour widened(const std::uint8_t* pixel) {
    wide_colour wide = {pixel[0] | std::uint64_t{pixel[2]} << 32, pixel[1]};
    if constexpr (channels == 4)
        wide.odd |= std::uint64_t{pixel[3]} << 32;
    return wide;
}

inline wide_colour operator+(const wide_colour& a, const wide_colour& b) {
    return {a.even + b.even, a.odd + b.odd};
}

inline wide_colour operator*(const wide_colour& c, std::uint64_t weight) {
    return {c.even * weight, c.odd * weight};
}

// `to_byte` makes a channel of a sum.
template<std::size_t channels, class ToByte>
inline void put(const wide_colour& c, std::uint8_t* pixel, ToByte to_byte) {
    pixel[0] = to_byte(static_cast<std::uint32_t>(c.even));
    pixel[1] = to_byte(static_cast<std::uint32_t>(c.odd));
    pixel[2] = to_byte(static_cast<std::uint32_t>(c.even >> 32));
    if constexpr (channels == 4)
        pixel[3] = to_byte(static_cast<std::uint32_t>(c.odd >> 32));
}

// 0x10000 times the colour at a place.
template<std::size_t channels>
inline wide_colour tap(const tapped_level& level, const tap_place& at) {
    const std::size_t left = static_cast<std::size_t>(at.x >> part_bits) * channels;
    const std::size_t right = at.x >= level.parts_across - one_pixel ? 0 : left + channels;
    const std::uint8_t* upper = level.bytes + static_cast<std::size_t>(at.y >> part_bits) * level.row;
    const std::uint8_t* lower = at.y >= level.parts_down - one_pixel ? level.bytes : upper + level.row;
    const auto right_part = static_cast<std::uint64_t>(at.x >> (part_bits - 8) & 255);
    const auto lower_part = static_cast<std::uint64_t>(at.y >> (part_bits - 8) & 255);
    const wide_colour above =
        widened<channels>(upper + left) * (256 - right_part) + widened<channels>(upper + right) * right_part;
    const wide_colour below =
        widened<channels>(lower + left) * (256 - right_part) + widened<channels>(lower + right) * right_part;
    return above * (256 - lower_part) + below * lower_part;
}

// On which level an area is looked up, and at how many places along its two sides.
struct tap_grid {
    std::size_t level;
    int across;
    int down;
};

// One tap for each pixel of an area of these lengths in pixels of level 0. Each further level halves the lengths, until
// the taps suffice; on the last level all places are alike.
tap_grid grid_for(double pixels_across, double pixels_down, std::size_t last_level) {
    for (std::size_t level = 0; level < last_level; ++level) {
        if (pixels_across < most_taps + 0.5 && pixels_down < most_taps + 0.5) {
            const int across = std::max(static_cast<int>(nearest_whole(pixels_across)), 1);
            const int down = std::max(static_cast<int>(nearest_whole(pixels_down)), 1);
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
        : through_(through), width_squared_(std::pow(source.level(0).width(), 2)),
          height_squared_(std::pow(source.level(0).height(), 2)) {
        for (std::size_t i = 0; i < source.level_count(); ++i)
            levels_.emplace_back(source.level(i));
    }

    void draw(picture& target) const {
        for (std::uint32_t y = 0; y < target.height(); ++y) {
            const projected_place left = moved(through_.start, through_.down, (y + 0.5) / target.height());
            for (std::uint32_t x = 0; x < target.width(); x += span)
                draw_span(left, target, x, std::min(span, target.width() - x), target.row(y) + x * channels);
        }
    }

private:
    // Some pixels of the row that begins at `left`, from pixel x on.
    void draw_span(const projected_place& left, const picture& target, std::uint32_t x, std::uint32_t count,
                   std::uint8_t* pixel) const {
        const double across = 1.0 / target.width();
        const auto place = [&](double column) { return moved(left, through_.across, (column + 0.5) * across); };
        const projected_place first = place(x);
        const projected_place last = place(x + count - 1.0);
        const projected_place middle = place(x + (count - 1.0) / 2);
        const plain_place from = plain(first);
        const plain_place way = plain(last) - from;
        const plain_place step = count == 1 ? plain_place{0, 0} : way * (1.0 / (count - 1));
        const plain_place bend = plain(middle) - from - way * 0.5;
        const double longest = std::max(1.0, pixels_squared(step));
        if (std::abs(last.q - first.q) <= most_change * std::abs(first.q) &&
            pixels_squared(bend) <= most_bent * most_bent * longest)
            return put_means(middle, from, step, target, count, pixel);
        for (std::uint32_t i = 0; i < count; ++i, pixel += channels) {
            const projected_place alone = place(x + i);
            put_means(alone, plain(alone), {0, 0}, target, 1, pixel);
        }
    }

    // How far the place moves there from a pixel of the target to the next: the derivative of a quotient.
    static plain_place movement(const projected_place& at, const projected_place& along, double part) {
        const plain_place here = plain(at);
        return {(along.x - here.x * along.q) / at.q * part, (along.y - here.y * along.q) / at.q * part};
    }

    // Pixels `step` apart, whose areas are all like that of the one at `middle`: the parallelogram that the steps to
    // the next pixel and the next row span.
    void put_means(const projected_place& middle, const plain_place& from, const plain_place& step,
                   const picture& target, std::uint32_t count, std::uint8_t* pixel) const {
        const plain_place across = movement(middle, through_.across, 1.0 / target.width());
        const plain_place down = movement(middle, through_.down, 1.0 / target.height());
        if (!is_near(from + step * count) || !is_near(across) || !is_near(down))
            return put_mean_of_all(count, pixel);
        const tap_grid grid =
            grid_for(std::sqrt(pixels_squared(across)), std::sqrt(pixels_squared(down)), levels_.size() - 1);
        const tapped_level& level = levels_[grid.level];
        const plain_place column = across * (1.0 / grid.across);
        const plain_place row = down * (1.0 / grid.down);
        const plain_place corner = from + (column - across + row - down) * 0.5;
        put_taps(level, grid, place_on(level, corner), step_on(level, step), step_on(level, column),
                 step_on(level, row), count, pixel);
    }

    static void put_taps(const tapped_level& level, const tap_grid& grid, tap_place corner, const tap_place& step,
                         const tap_place& column, const tap_place& row, std::uint32_t count, std::uint8_t* pixel) {
        if (grid.across * grid.down == 1) {
            for (std::uint32_t i = 0; i < count; ++i, corner = moved_on(level, corner, step), pixel += channels)
                put<channels>(tap<channels>(level, corner), pixel,
                              [](std::uint32_t sum) { return static_cast<std::uint8_t>((sum + 0x8000) >> 16); });
            return;
        }
        const double share = 1.0 / (0x10000 * grid.across * grid.down);
        for (std::uint32_t i = 0; i < count; ++i, corner = moved_on(level, corner, step), pixel += channels) {
            wide_colour sum = {0, 0};
            tap_place first = corner;
            for (int k = 0; k < grid.down; ++k, first = moved_on(level, first, row)) {
                tap_place at = first;
                for (int j = 0; j < grid.across; ++j, at = moved_on(level, at, column))
                    sum = sum + tap<channels>(level, at);
            }
            put<channels>(sum, pixel, [share](std::uint32_t channel) {
                return static_cast<std::uint8_t>(nearest_whole(channel * share));
            });
        }
    }

    void put_mean_of_all(std::uint32_t count, std::uint8_t* pixel) const {
        for (std::uint32_t i = 0; i < count; ++i, pixel += channels)
            std::copy_n(levels_.back().bytes, channels, pixel);
    }

    double pixels_squared(const plain_place& step) const {
        return step.x * step.x * width_squared_ + step.y * step.y * height_squared_;
    }

    perspective through_;
    double width_squared_;
    double height_squared_;
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
