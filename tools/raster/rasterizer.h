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
    // width, height: pixels, at least 1. samples: how many points a side are drawn for each pixel and averaged in the
    // picture. background: nothing leaves the picture clear where nothing is drawn. Takes 12 bytes a point.
    rasterizer(const view& from, std::size_t width, std::size_t height, std::size_t samples = 1,
               const std::optional<color>& background = color{0.92, 0.92, 0.92});

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
    bool is_clear;                    // where nothing is drawn
    std::vector<std::uint8_t> points; // red, green, blue, each times alpha, and alpha; rows from the top
};
