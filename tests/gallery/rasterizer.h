#pragma once

// Draws triangles into a picture with a depth buffer; for looking at results, not for tests.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

using vec = std::array<double, 3>;

struct view {
    vec eye{};
    vec target{};
    vec up{0, 0, 1};
    bool perspective = true;
    double field_of_view = 35; // degrees, vertical
    double height = 0;         // of a parallel view, in the units of the points
};

struct color {
    double red = 0; // 0 to 1
    double green = 0;
    double blue = 0;
};

class rasterizer {
public:
    rasterizer(const view& from, std::size_t width, std::size_t height);

    // Draws one triangle in one colour; both of its sides show. What lies behind the eye is cut off.
    void draw(const std::array<vec, 3>& corners, const color& paint);

    // Writes the picture as a PNG file. False if that fails.
    bool write_png(const std::string& file_name) const;

private:
    struct screen_point {
        double x, y, depth;
    };
    vec in_camera(const vec& world) const;
    screen_point on_screen(const vec& in_camera) const;
    void fill(const std::array<screen_point, 3>& p, const color& paint);

    view camera;
    vec right{}, upward{}, forward{};
    std::size_t width_, height_;
    double scale; // pixels for one unit at distance 1 (perspective) or anywhere (parallel)
    std::vector<double> depths;
    std::vector<std::uint8_t> pixels; // red, green, blue; rows from the top
};
