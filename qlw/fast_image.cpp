// A picture whose pixels are reached through the row that was touched last, so that a walk row by row costs no more
// than the bytes themselves.

#include "qlw/fast_image.h"

#include "image/encode_picture.h"
#include "qlw/trace_state.h"

#include <algorithm>

namespace {

constexpr int bits_of_color = 24;
constexpr int bits_with_alpha = 32;

bool is_depth(int bits_per_pixel) {
    constexpr int depths[] = {1, 4, 8, bits_of_color, bits_with_alpha};
    return std::find(std::begin(depths), std::end(depths), bits_per_pixel) != std::end(depths);
}

} // namespace

bool cl_fast_image::create(int width, int height, int bits_per_pixel) {
    pixels = image::picture();
    fast_bits = row_pointer = pixel_pointer = nullptr;
    current_row = -1;
    fast_bpp = 0;
    if (width < 1 || height < 1 || !is_depth(bits_per_pixel))
        return false;
    const int stored_bits = std::max(bits_per_pixel, bits_of_color);
    auto made =
        image::picture::make({static_cast<std::uint32_t>(width), static_cast<std::uint32_t>(height), stored_bits});
    if (!made)
        return false;
    pixels = std::move(*made);
    fast_bpp = bits_per_pixel;
    if (bits_per_pixel < bits_of_color)
        return true;
    fast_bits = pixels.row(0);
    bytes_per_pixel = static_cast<int>(pixels.bytes_per_pixel());
    fast_pitch = static_cast<std::ptrdiff_t>(pixels.bytes_per_row());
    return true;
}

void cl_fast_image::move_to_row(int y) {
    current_row = y;
    row_pointer = pixel_pointer = fast_bits + y * fast_pitch;
}

void cl_fast_image::move_to_pixel(int x, int y) {
    if (y != current_row)
        move_to_row(y);
    pixel_pointer = row_pointer + std::ptrdiff_t{x} * bytes_per_pixel;
}

std::uint8_t* cl_fast_image::row(int y) {
    if (!fast_bits)
        return nullptr;
    move_to_row(y);
    return row_pointer;
}

std::uint32_t cl_fast_image::get_pixel(int x, int y) {
    if (x < 0 || y < 0 || x >= width() || y >= height()) {
        trace_state().desktop->message_box("", "Error in GetPixel");
        return default_color;
    }
    if (!fast_bits)
        return 0;
    move_to_pixel(x, y);
    return pixel_pointer[2] | std::uint32_t{pixel_pointer[1]} << 8U | std::uint32_t{pixel_pointer[0]} << 16U;
}

void cl_fast_image::set_pixel(int x, int y, std::uint32_t color) {
    if (!fast_bits)
        return;
    move_to_pixel(x, y);
    pixel_pointer[0] = static_cast<std::uint8_t>(color >> 16U);
    pixel_pointer[1] = static_cast<std::uint8_t>(color >> 8U);
    pixel_pointer[2] = static_cast<std::uint8_t>(color);
}

std::uint8_t cl_fast_image::get_alpha(int x, int y) {
    constexpr std::uint8_t opaque = 255;
    if (fast_bpp < bits_with_alpha)
        return opaque;
    move_to_pixel(x, y);
    return pixel_pointer[3];
}

bool cl_fast_image::copy_from(cl_fast_image& other) {
    if (other.width() < 1 || !create(other.width(), other.height(), std::max(other.fast_bpp, bits_of_color)))
        return false;
    for (int y = 0; y < height(); ++y)
        for (int x = 0; x < width(); ++x) {
            set_pixel(x, y, other.get_pixel(x, y));
            if (fast_bpp == bits_with_alpha)
                pixel_pointer[3] = other.get_alpha(x, y);
        }
    return true;
}

bool cl_fast_image::save(const std::string& path) const {
    return image::write_picture(path, pixels);
}
