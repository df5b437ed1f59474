#include "sketchup/model/straighten_texture.h"

#include "sketchup/model/loop_corners.h"
#include "sketchup/model/straightened_side.h"
#include "sketchup/model/vector_math.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace sketchup {
namespace {

// Samples along each side of a pixel where the source is finer than the longest side allows.
constexpr std::uint32_t most_samples = 4;

// Where in the picture a point of the face's plane lies.
class plane_mapping {
public:
    plane_mapping(const model& m, const face& f, face_side side, const image::picture& source)
        : extent(extent_in_plane(m, f)), axes_(axes_of_plane(f.plane.normal())), origin_(f.plane.normal() * -f.plane.d),
          coordinates_(coordinates_of_side(m, f, side)), width_(source.width()), height_(source.height()) {}

    vec3 point_at(double u, double v) const { return origin_ + axes_.u * u + axes_.v * v; }

    // In pixels of the source, y upwards from its lower edge; not finite where there is no place.
    std::array<double, 2> place_at(double u, double v) const {
        const uvq at = coordinates_.at(point_at(u, v));
        return {at.u / at.q * width_, at.v / at.q * height_};
    }

    // How many pixels of the source go along an inch of the face's u and v axes there.
    std::array<double, 2> density_at(double u, double v) const {
        const double step = 1e-4 * std::max(extent.width, extent.height);
        const auto here = place_at(u, v);
        const auto right = place_at(u + step, v);
        const auto above = place_at(u, v + step);
        return {std::hypot(right[0] - here[0], right[1] - here[1]) / step,
                std::hypot(above[0] - here[0], above[1] - here[1]) / step};
    }

    const plane_extent extent;

private:
    plane_axes axes_;
    vec3 origin_; // the point of the plane closest to the origin, where u and v are 0
    side_coordinates coordinates_;
    double width_;
    double height_;
};

// The greatest density at the corners of the face, where a perspective has its extremes.
std::array<double, 2> greatest_density(const plane_mapping& mapping, const model& m, const face& f) {
    std::array<double, 2> greatest = {0, 0};
    if (f.loops.count == 0)
        return greatest;
    const plane_axes axes = axes_of_plane(f.plane.normal());
    const index_range outline = m.loops[f.loops.first].uses;
    for (index corner = outline.first; corner < outline.first + outline.count; ++corner) {
        const vec3& p = corner_position(m, corner);
        const std::array<double, 2> here = mapping.density_at(dot(p, axes.u), dot(p, axes.v));
        for (std::size_t i = 0; i < 2; ++i)
            if (std::isfinite(here[i]))
                greatest[i] = std::max(greatest[i], here[i]);
    }
    return greatest;
}

std::uint32_t pixels_for(double wanted, std::uint32_t longest_side) {
    if (!(wanted > 1)) // or no number
        return 1;
    return static_cast<std::uint32_t>(std::min(std::ceil(wanted), static_cast<double>(longest_side)));
}

std::uint32_t samples_for(double wanted, std::uint32_t pixels) {
    return pixels_for(wanted / pixels, most_samples);
}

// Colours of the source between its pixels; the picture repeats itself in all directions.
class sampler {
public:
    explicit sampler(const image::picture& source) : source_(source) {}

    // Adds the colour at a place in pixels, y upwards.
    void add(const std::array<double, 2>& place, std::array<double, 4>& sum) const {
        if (!std::isfinite(place[0]) || !std::isfinite(place[1]))
            return;
        const double x = wrapped(place[0], source_.width()) - 0.5; // a pixel's colour stands at its middle
        const double y = source_.height() - wrapped(place[1], source_.height()) - 0.5;
        const double left = std::floor(x);
        const double top = std::floor(y);
        const double right_part = x - left;
        const double lower_part = y - top;
        const std::size_t columns[] = {column(left), column(left + 1)};
        const std::uint8_t* rows[] = {row(top), row(top + 1)};
        for (std::size_t channel = 0; channel < source_.bytes_per_pixel(); ++channel) {
            const double upper =
                rows[0][columns[0] + channel] * (1 - right_part) + rows[0][columns[1] + channel] * right_part;
            const double lower =
                rows[1][columns[0] + channel] * (1 - right_part) + rows[1][columns[1] + channel] * right_part;
            sum[channel] += upper * (1 - lower_part) + lower * lower_part;
        }
    }

private:
    static double wrapped(double place, double size) { return place - std::floor(place / size) * size; }

    // What lies outside, by one pixel or by a rounding of huge coordinates, is taken from the other edge.
    static std::uint32_t neighbour(double at, std::uint32_t size) {
        return at < 0 ? size - 1 : at >= size ? 0 : static_cast<std::uint32_t>(at);
    }
    std::size_t column(double x) const { return neighbour(x, source_.width()) * source_.bytes_per_pixel(); }
    const std::uint8_t* row(double y) const { return source_.row(neighbour(y, source_.height())); }

    const image::picture& source_;
};

} // namespace

image::picture straighten_texture(const image::picture& source, const model& m, const face& f, face_side side,
                                  std::uint32_t longest_side) {
    const plane_mapping mapping(m, f, side, source);
    const plane_extent& extent = mapping.extent;
    const std::array<double, 2> density = greatest_density(mapping, m, f);
    const double wanted[] = {extent.width * density[0], extent.height * density[1]};
    const std::uint32_t width = pixels_for(wanted[0], longest_side);
    const std::uint32_t height = pixels_for(wanted[1], longest_side);
    const std::uint32_t across = samples_for(wanted[0], width);
    const std::uint32_t down = samples_for(wanted[1], height);
    image::picture straight =
        image::picture::make({width, height, source.extent().bits_per_pixel}).value_or(image::picture());
    const sampler colours(source);
    for (std::uint32_t y = 0; y < straight.height(); ++y)
        for (std::uint32_t x = 0; x < straight.width(); ++x) {
            std::array<double, 4> sum{};
            for (std::uint32_t i = 0; i < across * down; ++i) {
                const std::uint32_t column = i % across;
                const std::uint32_t row = i / across;
                const double from_left = (x + (column + 0.5) / across) / width;
                const double from_top = (y + (row + 0.5) / down) / height;
                colours.add(
                    mapping.place_at(extent.u + from_left * extent.width, extent.v + (1 - from_top) * extent.height),
                    sum);
            }
            std::uint8_t* pixel = straight.row(y) + x * straight.bytes_per_pixel();
            for (std::size_t channel = 0; channel < straight.bytes_per_pixel(); ++channel)
                pixel[channel] = static_cast<std::uint8_t>(std::lround(sum[channel] / (across * down)));
        }
    return straight;
}

} // namespace sketchup
