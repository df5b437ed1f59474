#include "tools/raster/rasterizer.h"

#include "image/encode_picture.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace {

constexpr double nearest = 1e-3;        // depth at which triangles are cut off
constexpr double same_depth = 1e-6;     // relative: of surfaces that lie upon each other the first drawn shows
constexpr double line_in_front = 0.003; // relative: so much nearer than what it lies on is a line

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

double between(double a, double b, double share) {
    return a + share * (b - a);
}

std::uint8_t byte_of(double channel) {
    return static_cast<std::uint8_t>(std::lround(255 * std::clamp(channel, 0.0, 1.0)));
}

// The pixel, 0 to size - 1, at a coordinate that repeats with 1.
std::uint32_t tiled(double coordinate, std::uint32_t size) {
    const double share = coordinate - std::floor(coordinate);
    return std::min(static_cast<std::uint32_t>(share * size), size - 1);
}

struct texel {
    color paint;
    double opacity = 1;
};

texel sample(const image::picture& picture, double u, double v) {
    if (!std::isfinite(u) || !std::isfinite(v))
        return {};
    const std::uint32_t x = tiled(u, picture.width());
    const std::uint32_t y = picture.height() - 1 - tiled(v, picture.height());
    const std::uint8_t* pixel = picture.row(y) + x * picture.bytes_per_pixel();
    return {{pixel[2] / 255.0, pixel[1] / 255.0, pixel[0] / 255.0}, picture.has_alpha() ? pixel[3] / 255.0 : 1};
}

std::size_t inside(double value, std::size_t size) {
    return static_cast<std::size_t>(std::clamp(value, 0.0, static_cast<double>(size)));
}

} // namespace

rasterizer::rasterizer(const view& from, std::size_t width, std::size_t height, std::size_t samples,
                       const std::optional<color>& background, std::uint64_t most_work)
    : camera(from), samples_(samples), width_(width * samples), height_(height * samples),
      depths(width_ * height_, std::numeric_limits<double>::infinity()), work_left(most_work), is_clear(!background),
      points(channels * width_ * height_) {
    const color behind = background.value_or(color{0, 0, 0});
    for (std::size_t i = 0; i < points.size(); i += channels) {
        points[i] = byte_of(behind.red);
        points[i + 1] = byte_of(behind.green);
        points[i + 2] = byte_of(behind.blue);
        points[i + 3] = byte_of(is_clear ? 0 : 1);
    }
    forward = unit(minus(camera.target, camera.eye));
    right = unit(cross(forward, camera.up));
    upward = cross(right, forward);
    const double across = static_cast<double>(camera.fov_is_vertical ? height_ : width_);
    scale = camera.perspective ? across / 2 / std::tan(camera.field_of_view * std::numbers::pi / 360)
                               : static_cast<double>(height_) / camera.height;
}

vec rasterizer::in_camera(const vec& world) const {
    const vec offset = minus(world, camera.eye);
    return {dot(offset, right), dot(offset, upward), dot(offset, forward)};
}

rasterizer::screen_point rasterizer::on_screen(const corner& c) const {
    const double shrink = camera.perspective ? 1 / c.position[2] : 1;
    return {static_cast<double>(width_) / 2 + scale * c.position[0] * shrink,
            static_cast<double>(height_) / 2 - scale * c.position[1] * shrink, c.position[2], c.point};
}

// The part of a polygon, or of a line given as two corners, in front of the nearest depth; all of it in a parallel
// view.
std::vector<rasterizer::corner> rasterizer::cut_off_behind(const std::vector<corner>& polygon) const {
    if (!camera.perspective)
        return polygon;
    std::vector<corner> kept;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const corner& a = polygon[i];
        const corner& b = polygon[(i + 1) % polygon.size()];
        if (a.position[2] >= nearest)
            kept.push_back(a);
        if ((a.position[2] >= nearest) == (b.position[2] >= nearest))
            continue;
        const double share = (nearest - a.position[2]) / (b.position[2] - a.position[2]);
        corner crossing;
        for (std::size_t k = 0; k < 3; ++k)
            crossing.position[k] = between(a.position[k], b.position[k], share);
        crossing.point = {between(a.point.u, b.point.u, share), between(a.point.v, b.point.v, share),
                          between(a.point.q, b.point.q, share)};
        kept.push_back(crossing);
    }
    return kept;
}

void rasterizer::draw(const std::array<vec, 3>& corners, const color& paint, double opacity) {
    draw({{in_camera(corners[0]), {}}, {in_camera(corners[1]), {}}, {in_camera(corners[2]), {}}},
         {paint, nullptr, opacity});
}

void rasterizer::draw(const std::array<vec, 3>& corners, const std::array<picture_point, 3>& at,
                      const image::picture& picture, double opacity) {
    draw({{in_camera(corners[0]), at[0]}, {in_camera(corners[1]), at[1]}, {in_camera(corners[2]), at[2]}},
         {{}, &picture, opacity});
}

void rasterizer::draw(const std::vector<corner>& whole, const surface& with) {
    const std::vector<corner> polygon = cut_off_behind(whole);
    for (std::size_t i = 2; i < polygon.size(); ++i)
        fill({on_screen(polygon[0]), on_screen(polygon[i - 1]), on_screen(polygon[i])}, with);
}

// Depth is linear over the screen in a parallel view, its reciprocal in perspective; so are u, v, q and u, v, q over
// depth.
void rasterizer::fill(const std::array<screen_point, 3>& p, const surface& with) {
    const auto edge = [](const screen_point& a, const screen_point& b, double x, double y) {
        return (b.x - a.x) * (y - a.y) - (b.y - a.y) * (x - a.x);
    };
    const double area = edge(p[0], p[1], p[2].x, p[2].y);
    if (area == 0 || !std::isfinite(area))
        return;
    const auto [left, rightmost] = std::minmax({p[0].x, p[1].x, p[2].x});
    const auto [top, bottom] = std::minmax({p[0].y, p[1].y, p[2].y});
    const std::size_t first_x = inside(std::floor(left), width_);
    const std::size_t end_x = inside(std::ceil(rightmost) + 1, width_);
    const std::size_t first_y = inside(std::floor(top), height_);
    const std::size_t end_y = inside(std::ceil(bottom) + 1, height_);
    if (!may_do(static_cast<double>(end_x - first_x) * static_cast<double>(end_y - first_y)))
        return;
    for (std::size_t y = first_y; y < end_y; ++y)
        for (std::size_t x = first_x; x < end_x; ++x) {
            const double cx = static_cast<double>(x) + 0.5;
            const double cy = static_cast<double>(y) + 0.5;
            std::array<double, 3> share = {edge(p[1], p[2], cx, cy) / area, edge(p[2], p[0], cx, cy) / area, 0};
            share[2] = 1 - share[0] - share[1];
            if (share[0] >= 0 && share[1] >= 0 && share[2] >= 0)
                fill_point(p, share, x, y, with);
        }
}

// The depth comes first: most points of a deep picture are hidden, and need no picture looked up.
void rasterizer::fill_point(const std::array<screen_point, 3>& p, const std::array<double, 3>& share, std::size_t x,
                            std::size_t y, const surface& with) {
    std::array<double, 3> weights = share;
    double depth = 0;
    for (std::size_t i = 0; i < 3; ++i) {
        weights[i] = camera.perspective ? share[i] / p[i].depth : share[i];
        depth += camera.perspective ? weights[i] : weights[i] * p[i].depth;
    }
    depth = camera.perspective ? 1 / depth : depth;
    if (is_hidden(x, y, depth))
        return;
    texel seen{with.paint};
    if (with.picture) {
        picture_point at{0, 0, 0};
        for (std::size_t i = 0; i < 3; ++i) {
            at.u += weights[i] * p[i].point.u;
            at.v += weights[i] * p[i].point.v;
            at.q += weights[i] * p[i].point.q;
        }
        seen = sample(*with.picture, at.u / at.q, at.v / at.q);
    }
    put(x, y, depth, seen.paint, seen.opacity * with.opacity);
}

// Whatever is drawn counts for one point at least, so that things beside the picture come to an end too.
bool rasterizer::may_do(double work) {
    const double wanted = work + 1;
    cut_short = cut_short || wanted > static_cast<double>(work_left);
    if (cut_short)
        return false;
    work_left -= static_cast<std::uint64_t>(wanted);
    return true;
}

void rasterizer::draw_line(const vec& from, const vec& to, const color& paint) {
    const std::vector<corner> line = cut_off_behind({{in_camera(from), {}}, {in_camera(to), {}}});
    if (line.size() < 2)
        return;
    const screen_point a = on_screen(line[0]);
    const screen_point b = on_screen(line[1]);
    constexpr double most_steps = 1e5; // a line that runs far beyond the picture is drawn coarsely
    const double steps = std::clamp(std::ceil(std::hypot(b.x - a.x, b.y - a.y)), 1.0, most_steps);
    if (!may_do(steps * static_cast<double>(samples_ * samples_)))
        return;
    for (double i = 0; i <= steps; ++i) {
        const double x = between(a.x, b.x, i / steps);
        const double y = between(a.y, b.y, i / steps);
        const double depth = camera.perspective ? 1 / between(1 / a.depth, 1 / b.depth, i / steps)
                                                : between(a.depth, b.depth, i / steps);
        if (x >= 0 && y >= 0 && x < static_cast<double>(width_) && y < static_cast<double>(height_))
            put_pixel(static_cast<std::size_t>(x), static_cast<std::size_t>(y), depth - line_in_front * std::abs(depth),
                      paint);
    }
}

void rasterizer::put_pixel(std::size_t x, std::size_t y, double depth, const color& paint) {
    const std::size_t before = (samples_ - 1) / 2;
    const std::size_t left = x - std::min(x, before);
    const std::size_t top = y - std::min(y, before);
    for (std::size_t at_y = top; at_y < std::min(top + samples_, height_); ++at_y)
        for (std::size_t at_x = left; at_x < std::min(left + samples_, width_); ++at_x)
            put(at_x, at_y, depth, paint, 1);
}

bool rasterizer::is_hidden(std::size_t x, std::size_t y, double depth) const {
    return depth >= depths[y * width_ + x] - same_depth * std::abs(depth);
}

void rasterizer::put(std::size_t x, std::size_t y, double depth, const color& paint, double opacity) {
    constexpr double least_opacity = 1.0 / 255;
    if (opacity < least_opacity || is_hidden(x, y, depth))
        return;
    if (opacity > 1 - least_opacity)
        depths[y * width_ + x] = depth;
    std::uint8_t* point = &points[channels * (y * width_ + x)];
    for (const double channel : {paint.red, paint.green, paint.blue, 1.0}) {
        *point = byte_of(between(*point / 255.0, channel, opacity));
        ++point;
    }
}

bool rasterizer::sees_front(const std::array<vec, 3>& corners) const {
    const vec normal = cross(minus(corners[1], corners[0]), minus(corners[2], corners[0]));
    return dot(normal, camera.perspective ? minus(corners[0], camera.eye) : forward) <= 0;
}

image::picture rasterizer::drawn() const {
    const auto width = static_cast<std::uint32_t>(width_ / samples_);
    const auto height = static_cast<std::uint32_t>(height_ / samples_);
    auto result = image::picture::make({width, height, is_clear ? 32 : 24});
    if (!result)
        return {};
    for (std::uint32_t y = 0; y < height; ++y)
        for (std::uint32_t x = 0; x < width; ++x) {
            const std::array<std::size_t, channels> sums = sums_of(x, y);
            const std::size_t all = is_clear ? sums[3] : samples_ * samples_ * 255;
            std::uint8_t* pixel = result->row(y) + x * result->bytes_per_pixel();
            for (std::size_t i = 0; i < 3; ++i)
                pixel[i] =
                    static_cast<std::uint8_t>(all == 0 ? 0 : std::min<std::size_t>(255, sums[2 - i] * 255 / all));
            if (is_clear)
                pixel[3] = static_cast<std::uint8_t>(sums[3] / (samples_ * samples_));
        }
    return *std::move(result);
}

// Of the points of a pixel, channel by channel.
std::array<std::size_t, rasterizer::channels> rasterizer::sums_of(std::size_t x, std::size_t y) const {
    std::array<std::size_t, channels> sums{};
    for (std::size_t point = 0; point < samples_ * samples_; ++point) {
        const std::size_t row = y * samples_ + point / samples_;
        const std::size_t column = x * samples_ + point % samples_;
        for (std::size_t i = 0; i < channels; ++i)
            sums[i] += points[channels * (row * width_ + column) + i];
    }
    return sums;
}

bool rasterizer::write_png(const std::string& file_name) const {
    const std::vector<std::uint8_t> bytes = image::encode_picture(drawn(), image::picture_format::png);
    return !bytes.empty() && image::write_picture_file(file_name, bytes);
}
