#include "sketchup/model/colorize.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

namespace sketchup {
namespace {

// Colours closer than this count as equal in every comparison of the rule.
constexpr double tolerance = 1e-3;

bool is_zero(double value) {
    return std::abs(value) < tolerance;
}

// The published figures come out only if a channel is rounded to single precision first.
double channel_of(std::uint8_t stored) {
    return static_cast<double>(static_cast<float>(stored) / 255.0f);
}

hue_colour stored_hue_colour(const rgba& c) {
    return hue_colour_of(channel_of(c.red), channel_of(c.green), channel_of(c.blue));
}

bool is_grey(const hue_colour& c) {
    return c.hue < 0;
}

double within_a_turn(double degrees) {
    const double rest = std::fmod(degrees, 360);
    return rest < 0 ? rest + 360 : rest;
}

std::uint8_t stored_channel(double value) {
    return static_cast<std::uint8_t>(std::clamp(value, 0.0, 1.0) * 255);
}

// One channel of the double cone: `low` and `high` are its least and greatest value.
double cone_channel(double low, double high, double degrees) {
    const double hue = within_a_turn(degrees);
    if (hue < 60)
        return low + (high - low) * hue / 60;
    if (hue < 180)
        return high;
    if (hue < 240)
        return low + (high - low) * (240 - hue) / 60;
    return low;
}

rgba stored_color(const hue_colour& c, std::uint8_t alpha) {
    if (is_zero(c.saturation)) {
        const std::uint8_t grey = stored_channel(c.lightness);
        return {grey, grey, grey, alpha};
    }
    const double high =
        c.lightness <= 0.5 ? c.lightness * (1 + c.saturation) : c.lightness + c.saturation - c.lightness * c.saturation;
    const double low = 2 * c.lightness - high;
    return {stored_channel(cone_channel(low, high, c.hue + 120)), stored_channel(cone_channel(low, high, c.hue)),
            stored_channel(cone_channel(low, high, c.hue - 120)), alpha};
}

bool same_channels(const rgba& a, const rgba& b) {
    return a.red == b.red && a.green == b.green && a.blue == b.blue;
}

} // namespace

hue_colour hue_colour_of(double red, double green, double blue) {
    const double high = std::max({red, green, blue});
    const double low = std::min({red, green, blue});
    const double range = high - low;
    hue_colour c;
    c.lightness = (high + low) / 2;
    if (is_zero(range))
        return c;
    c.saturation = range / (c.lightness <= 0.5 ? high + low : 2 - high - low);
    if (red == high)
        c.hue = 60 * (green - blue) / range;
    else if (green == high)
        c.hue = 120 + 60 * (blue - red) / range;
    else
        c.hue = 240 + 60 * (red - green) / range;
    c.hue = within_a_turn(c.hue);
    return c;
}

color_change change_between(const rgba& from, const rgba& to, bool tints) {
    const hue_colour start = stored_hue_colour(from);
    const hue_colour wanted = stored_hue_colour(to);
    color_change change{tints, tints ? wanted.hue : wanted.hue - start.hue, wanted.lightness - start.lightness,
                        wanted.saturation - start.saturation};
    if (is_grey(wanted)) {
        change.hue = 0;
        change.saturation = is_grey(start) ? 0 : -1;
    } else if (is_grey(start)) {
        change.hue = wanted.hue;
        change.saturation = wanted.saturation;
    }
    return change;
}

rgba changed_color(const rgba& color, const color_change& change) {
    hue_colour c = stored_hue_colour(color);
    c.hue = within_a_turn(change.sets_hue ? change.hue : c.hue + change.hue);
    c.saturation = std::clamp(c.saturation + change.saturation, 0.0, 1.0);
    c.lightness = std::clamp(c.lightness + change.lightness, 0.01, 1.0);
    return stored_color(c, color.alpha);
}

void change_colors(image::picture& pixels, const color_change& change) {
    // Neighbours often have one colour, so the last answer is kept.
    std::optional<rgba> last;
    rgba answer;
    const std::size_t step = pixels.bytes_per_pixel();
    std::vector<std::uint8_t>& bytes = pixels.bytes();
    for (std::size_t at = 0; at < bytes.size(); at += step) {
        const rgba color{bytes[at + 2], bytes[at + 1], bytes[at], 255};
        if (color != last) {
            last = color;
            answer = changed_color(color, change);
        }
        bytes[at] = answer.blue;
        bytes[at + 1] = answer.green;
        bytes[at + 2] = answer.red;
    }
}

rgba average_color(const image::picture& pixels) {
    if (pixels.is_empty())
        return {0, 0, 0, 255};
    std::array<std::uint64_t, 3> sums{};
    const std::size_t step = pixels.bytes_per_pixel();
    const std::vector<std::uint8_t>& bytes = pixels.bytes();
    for (std::size_t at = 0; at < bytes.size(); at += step)
        for (std::size_t channel = 0; channel < 3; ++channel)
            sums[channel] += bytes[at + channel];
    const auto mean = [&](std::size_t channel) {
        return static_cast<std::uint8_t>(sums[channel] / (bytes.size() / step));
    };
    return {mean(2), mean(1), mean(0), 255};
}

bool is_recolored(const material& m) {
    return m.type == material_type::colorized;
}

void recolor(image::picture& stored, const texture& t, const material& m) {
    if (!is_recolored(m))
        return;
    const rgba from = same_channels(t.average_color, m.color) ? average_color(stored) : t.average_color;
    constexpr std::uint32_t tint = 1;
    change_colors(stored, change_between(from, m.color, m.colorize_type == tint));
}

} // namespace sketchup
