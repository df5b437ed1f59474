#pragma once

// Draws triangles and lines into a picture with a depth buffer.

#include "image/picture.h"
#include "tools/raster/view.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

struct color {
    double red = 0; // 0 to 1
    double green = 0;
    double blue = 0;
};

// Where a corner lies in a picture: at u / q and v / q, whole numbers a tile apart, v upwards from the lowest row.
struct picture_point {
    double u = 0;
    double v = 0;
    double q = 1;
};

class rasterizer {
public:
    // Points that triangles and lines may be tried at before the picture counts as done: some three thousand times all
    // points of a picture of 640x480 with nine a pixel.
    static constexpr std::uint64_t usual_work = std::uint64_t{1} << 33U;

    // width, height: pixels, at least 1. samples: how many points a side are drawn for each pixel and averaged in the
    // picture. background: nothing leaves the picture clear where nothing is drawn. Takes 12 bytes a point.
    // most_work: what is drawn when so many points have been tried is left out.
    rasterizer(const view& from, std::size_t width, std::size_t height, std::size_t samples = 1,
               const std::optional<color>& background = color{0.92, 0.92, 0.92}, std::uint64_t most_work = usual_work);

    // Draws one triangle in one colour; both of its sides show. What lies behind the eye is cut off.
    // opacity: 0 clear to 1. What is not opaque hides nothing that is drawn later, so draw it last.
    void draw(const std::array<vec, 3>& corners, const color& paint, double opacity = 1);

    // The same with a picture, tiled and seen in perspective; its alpha counts as opacity.
    // picture: not empty.
    void draw(const std::array<vec, 3>& corners, const std::array<picture_point, 3>& points,
              const image::picture& picture, double opacity = 1);

    // Draws a line as wide as a pixel, a little in front of the surfaces that it lies on.
    void draw_line(const vec& from, const vec& to, const color& paint);

    // Whether the eye sees the corners run counter-clockwise.
    bool sees_front(const std::array<vec, 3>& corners) const;

    // Whether something was left out because the picture would have taken too long.
    bool is_cut_short() const { return cut_short; }

    // The picture; with alpha if it has no background. Empty if it would have more than image::most_pixels.
    image::picture drawn() const;

    // Writes the picture as a PNG file. False, and no file is left, if that fails.
    bool write_png(const std::string& file_name) const;

private:
    static constexpr std::size_t channels = 4;
    struct corner {
        vec position; // right, up, depth
        picture_point point;
    };
    struct screen_point {
        double x, y, depth;
        picture_point point;
    };
    struct surface {
        color paint;
        const image::picture* picture;
        double opacity;
    };
    vec in_camera(const vec& world) const;
    screen_point on_screen(const corner& c) const;
    std::vector<corner> cut_off_behind(const std::vector<corner>& polygon) const;
    void draw(const std::vector<corner>& polygon, const surface& with);
    void fill(const std::array<screen_point, 3>& p, const surface& with);
    // Whether so much work may still be done; if so, it counts as done.
    bool may_do(double work);
    void fill_point(const std::array<screen_point, 3>& p, const std::array<double, 3>& share, std::size_t x,
                    std::size_t y, const surface& with);
    bool is_hidden(std::size_t x, std::size_t y, double depth) const;
    std::array<std::size_t, channels> sums_of(std::size_t x, std::size_t y) const;
    // As many points as a pixel has, around that one.
    void put_pixel(std::size_t x, std::size_t y, double depth, const color& paint);
    void put(std::size_t x, std::size_t y, double depth, const color& paint, double opacity);

    view camera;
    vec right{}, upward{}, forward{};
    std::size_t samples_;
    std::size_t width_, height_; // in points
    double scale;                // points for one unit at distance 1 (perspective) or anywhere (parallel)
    std::vector<double> depths;
    std::uint64_t work_left;
    bool cut_short = false;
    bool is_clear;                    // where nothing is drawn
    std::vector<std::uint8_t> points; // red, green, blue, each times alpha, and alpha; rows from the top
};
