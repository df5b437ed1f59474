#include "sketchup/model/straighten_texture.h"

#include "image/project_picture.h"
#include "sketchup/model/loop_corners.h"
#include "sketchup/model/straightened_side.h"
#include "sketchup/model/vector_math.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace sketchup {
namespace {

// A hundredth of a pixel more than a whole number is the noise of stored mappings and of the corners' places.
constexpr double noise_in_pixels = 0.01;

// Where the texture lies on the picture of the face's extent.
image::perspective perspective_of(const model& m, const face& f, face_side side) {
    const plane_extent extent = extent_in_plane(m, f);
    const plane_axes axes = axes_of_plane(f.plane.normal());
    const vec3 origin = f.plane.normal() * -f.plane.d; // the point of the plane where u and v are 0
    const side_coordinates coordinates = coordinates_of_side(m, f, side);
    const auto at = [&](double u, double v) {
        const uvq place = coordinates.at(origin + axes.u * (extent.u + u) + axes.v * (extent.v + v));
        return image::projected_place{place.u, place.q - place.v, place.q}; // y downwards
    };
    const auto between = [](const image::projected_place& from, const image::projected_place& to) {
        return image::projected_place{to.x - from.x, to.y - from.y, to.q - from.q};
    };
    const image::projected_place start = at(0, extent.height);
    return {start, between(start, at(extent.width, extent.height)), between(start, at(0, 0))};
}

// Pixels of the source along the whole picture in the direction of `step`, if they lay as close as at a place.
double pixels_along(const image::projected_place& at, const image::projected_place& step,
                    const image::picture_extent& source) {
    return std::hypot((step.x - at.x / at.q * step.q) / at.q * source.width,
                      (step.y - at.y / at.q * step.q) / at.q * source.height);
}

// The pixels that the face asks for: those of the source along the picture's sides at the corner where they lie
// closest; endless if corners lie on both sides of the horizon.
std::array<double, 2> wanted_pixels(const image::perspective& through, const model& m, const face& f,
                                    const image::picture_extent& source) {
    const plane_extent extent = extent_in_plane(m, f);
    const plane_axes axes = axes_of_plane(f.plane.normal());
    const index_range outline = f.loops.count == 0 ? index_range{} : m.loops[f.loops.first].uses;
    std::array<double, 2> wanted = {0, 0};
    bool before_horizon = false;
    bool behind_horizon = false;
    for (index corner = outline.first; corner < outline.first + outline.count; ++corner) {
        const vec3 p = corner_position(m, corner);
        const double x = extent.width == 0 ? 0 : (dot(p, axes.u) - extent.u) / extent.width;
        const double y = extent.height == 0 ? 0 : 1 - (dot(p, axes.v) - extent.v) / extent.height;
        const auto mixed = [&](double image::projected_place::*part) {
            return through.start.*part + x * through.across.*part + y * through.down.*part;
        };
        const image::projected_place at = {mixed(&image::projected_place::x), mixed(&image::projected_place::y),
                                           mixed(&image::projected_place::q)};
        before_horizon = before_horizon || at.q >= 0;
        behind_horizon = behind_horizon || at.q <= 0;
        const double width = pixels_along(at, through.across, source);
        const double height = pixels_along(at, through.down, source);
        if (std::isfinite(width) && std::isfinite(height))
            wanted = {std::max(wanted[0], width), std::max(wanted[1], height)};
    }
    constexpr double endless = std::numeric_limits<double>::infinity();
    return before_horizon && behind_horizon ? std::array<double, 2>{endless, endless} : wanted;
}

std::uint32_t pixels_for(double wanted, std::uint32_t longest_side) {
    if (!(wanted > 1)) // or no number
        return 1;
    return static_cast<std::uint32_t>(std::min(std::ceil(wanted - noise_in_pixels), static_cast<double>(longest_side)));
}

} // namespace

image::picture_extent straightened_extent(double width, double height, const image::picture_extent& source,
                                          std::uint32_t longest_side) {
    image::picture_extent result = {pixels_for(width, longest_side), pixels_for(height, longest_side),
                                    source.bits_per_pixel};
    const std::uint64_t most = std::uint64_t{4} * source.width * source.height;
    if (std::uint64_t{result.width} * result.height <= most)
        return result;
    const auto equal = static_cast<std::uint32_t>(std::sqrt(static_cast<double>(most)));
    const std::uint32_t shorter = std::min({result.width, result.height, equal});
    const auto longer = shorter == equal ? equal : static_cast<std::uint32_t>(most / shorter);
    result.width = std::min(result.width, longer);
    result.height = std::min(result.height, longer);
    return result;
}

image::picture straighten_texture(const image::picture_pyramid& source, const model& m, const face& f, face_side side,
                                  std::uint32_t longest_side) {
    const image::picture_extent& stored = source.level(0).extent();
    const image::perspective through = perspective_of(m, f, side);
    const std::array<double, 2> wanted = wanted_pixels(through, m, f, stored);
    const image::picture_extent extent = straightened_extent(wanted[0], wanted[1], stored, longest_side);
    return image::project_picture(source, through, extent.width, extent.height);
}

} // namespace sketchup
