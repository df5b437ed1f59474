#include "tests/gallery/rasterizer.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <png.h>

namespace {

constexpr double nearest = 1e-3; // depth at which triangles are cut off
constexpr std::uint8_t background = 235;

vec minus(const vec& a, const vec& b) {
    return {a[0] - b[0], a[1] - b[1], a[2] - b[2]};
}
double dot(const vec& a, const vec& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
vec cross(const vec& a, const vec& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}
vec unit(const vec& a) {
    const double length = std::sqrt(dot(a, a));
    return length > 0 ? vec{a[0] / length, a[1] / length, a[2] / length} : vec{0, 0, 1};
}

vec between(const vec& a, const vec& b, double share) {
    return {a[0] + share * (b[0] - a[0]), a[1] + share * (b[1] - a[1]), a[2] + share * (b[2] - a[2])};
}

// The part of a triangle in front of the nearest depth, as a polygon of up to four corners.
std::vector<vec> cut_off_behind(const std::array<vec, 3>& corners) {
    std::vector<vec> kept;
    for (std::size_t i = 0; i < 3; ++i) {
        const vec& a = corners[i];
        const vec& b = corners[(i + 1) % 3];
        if (a[2] >= nearest)
            kept.push_back(a);
        if ((a[2] >= nearest) != (b[2] >= nearest))
            kept.push_back(between(a, b, (nearest - a[2]) / (b[2] - a[2])));
    }
    return kept;
}

} // namespace

rasterizer::rasterizer(const view& from, std::size_t width, std::size_t height)
    : camera(from), width_(width), height_(height), depths(width * height, std::numeric_limits<double>::infinity()),
      pixels(3 * width * height, background) {
    forward = unit(minus(camera.target, camera.eye));
    right = unit(cross(forward, camera.up));
    upward = cross(right, forward);
    const double half_height = static_cast<double>(height) / 2;
    scale = camera.perspective ? half_height / std::tan(camera.field_of_view * std::numbers::pi / 360)
                               : static_cast<double>(height) / camera.height;
}

vec rasterizer::in_camera(const vec& world) const {
    const vec offset = minus(world, camera.eye);
    return {dot(offset, right), dot(offset, upward), dot(offset, forward)};
}

rasterizer::screen_point rasterizer::on_screen(const vec& p) const {
    const double shrink = camera.perspective ? 1 / p[2] : 1;
    return {static_cast<double>(width_) / 2 + scale * p[0] * shrink,
            static_cast<double>(height_) / 2 - scale * p[1] * shrink, p[2]};
}

void rasterizer::draw(const std::array<vec, 3>& corners, const color& paint) {
    const std::array<vec, 3> seen = {in_camera(corners[0]), in_camera(corners[1]), in_camera(corners[2])};
    std::vector<vec> polygon(seen.begin(), seen.end());
    if (camera.perspective)
        polygon = cut_off_behind(seen);
    for (std::size_t i = 2; i < polygon.size(); ++i)
        fill({on_screen(polygon[0]), on_screen(polygon[i - 1]), on_screen(polygon[i])}, paint);
}

void rasterizer::fill(const std::array<screen_point, 3>& p, const color& paint) {
    const auto edge = [](const screen_point& a, const screen_point& b, double x, double y) {
        return (b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x);
    };
    const double area = edge(p[0], p[1], p[2].x, p[2].y);
    if (area == 0 || !std::isfinite(area))
        return;
    const auto clamp = [](double value, std::size_t size) {
        return static_cast<std::size_t>(std::clamp(value, 0.0, static_cast<double>(size)));
    };
    const auto [left, rightmost] = std::minmax({p[0].x, p[1].x, p[2].x});
    const auto [top, bottom] = std::minmax({p[0].y, p[1].y, p[2].y});
    for (std::size_t y = clamp(std::floor(top), height_); y < clamp(std::ceil(bottom) + 1, height_); ++y)
        for (std::size_t x = clamp(std::floor(left), width_); x < clamp(std::ceil(rightmost) + 1, width_); ++x) {
            const double cx = static_cast<double>(x) + 0.5;
            const double cy = static_cast<double>(y) + 0.5;
            const double a = edge(p[1], p[2], cx, cy) / area;
            const double b = edge(p[2], p[0], cx, cy) / area;
            const double c = 1 - a - b;
            if (a < 0 || b < 0 || c < 0)
                continue;
            const double depth = camera.perspective ? 1 / (a / p[0].depth + b / p[1].depth + c / p[2].depth)
                                                    : a * p[0].depth + b * p[1].depth + c * p[2].depth;
            double& standing = depths[y * width_ + x];
            if (depth >= standing)
                continue;
            standing = depth;
            std::uint8_t* pixel = &pixels[3 * (y * width_ + x)];
            for (const double channel : {paint.red, paint.green, paint.blue})
                *pixel++ = static_cast<std::uint8_t>(std::lround(255 * std::clamp(channel, 0.0, 1.0)));
        }
}

bool rasterizer::write_png(const std::string& file_name) const {
    png_image image = {};
    image.version = PNG_IMAGE_VERSION;
    image.width = static_cast<png_uint_32>(width_);
    image.height = static_cast<png_uint_32>(height_);
    image.format = PNG_FORMAT_RGB;
    return png_image_write_to_file(&image, file_name.c_str(), 0, pixels.data(), 0, nullptr) != 0;
}
