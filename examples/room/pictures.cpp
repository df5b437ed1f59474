// The pictures of the room, drawn pixel by pixel.

#include "image/encode_picture.h"
#include "room_parts.h"

#include <algorithm>

namespace {

struct color {
    int red, green, blue;
};

class canvas {
public:
    canvas(std::uint32_t width, std::uint32_t height) : pixels(image::picture::make({width, height, 24}).value()) {}

    std::uint32_t width() const { return pixels.width(); }
    std::uint32_t height() const { return pixels.height(); }
    void set(std::uint32_t x, std::uint32_t y, color c) {
        const auto byte = [](int value) { return static_cast<std::uint8_t>(std::clamp(value, 0, 255)); };
        std::uint8_t* const pixel = pixels.row(y) + 3 * x;
        pixel[0] = byte(c.blue);
        pixel[1] = byte(c.green);
        pixel[2] = byte(c.red);
    }
    std::vector<std::uint8_t> file() const { return image::encode_picture(pixels, image::picture_format::bmp); }

private:
    image::picture pixels;
};

color lighter(color c, int by) {
    return {c.red + by, c.green + by, c.blue + by};
}

// The same unrest for the same number everywhere.
int noise(std::uint32_t seed, int range) {
    seed = (seed ^ 61U) ^ (seed >> 16);
    seed *= 9U;
    seed ^= seed >> 4;
    seed *= 0x27d4eb2dU;
    seed ^= seed >> 15;
    return static_cast<int>(seed % static_cast<std::uint32_t>(2 * range + 1)) - range;
}

} // namespace

// Four rows of planks, shifted against one another, with a dark joint between them.
std::vector<std::uint8_t> floor_picture() {
    constexpr std::uint32_t plank_height = 16;
    constexpr std::uint32_t plank_width = 64;
    constexpr color oak = {176, 128, 78};
    constexpr color joint = {92, 62, 36};
    canvas c(64, 64);
    for (std::uint32_t y = 0; y < c.height(); ++y)
        for (std::uint32_t x = 0; x < c.width(); ++x) {
            const std::uint32_t row = y / plank_height;
            const std::uint32_t along = (x + row * 22) % plank_width;
            const bool is_joint = y % plank_height == 0 || along == 0;
            const int grain = noise(row * 131 + y % plank_height * 7 + along / 24, 9);
            c.set(x, y, is_joint ? joint : lighter(oak, noise(row + 40, 14) + grain));
        }
    return c.file();
}

// A low sun over the sea, a shore and the sail of a boat.
std::vector<std::uint8_t> harbour_picture() {
    canvas c(60, 40);
    constexpr int horizon = 22;
    for (std::uint32_t row = 0; row < c.height(); ++row)
        for (std::uint32_t column = 0; column < c.width(); ++column) {
            const int x = static_cast<int>(column);
            const int y = static_cast<int>(row);
            color at = {90 + 7 * y, 130 + 3 * y, 190 - 3 * y}; // sky
            if ((x - 42) * (x - 42) + (y - 14) * (y - 14) < 30)
                at = {255, 232, 150}; // sun
            if (y >= horizon)
                at = lighter({40, 84, 120}, y % 3 == 0 && (x + y) % 5 < 2 ? 40 : 0); // sea
            if (y >= horizon && x > 37 && x < 47 && (x + y) % 3 != 0)
                at = {232, 196, 120}; // its reflection
            if (y > 34 + noise(column / 3, 1))
                at = {88, 72, 50}; // shore
            if (y >= 8 && y < 26 && x >= 16 && x <= 16 + (y - 8) / 2)
                at = {245, 240, 230}; // sail
            if (y >= 26 && y < 29 && x >= 11 + (y - 26) && x <= 28 - (y - 26))
                at = {120, 40, 30}; // hull
            c.set(column, row, at);
        }
    return c.file();
}
