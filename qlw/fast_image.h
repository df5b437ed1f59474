#pragma once

// A picture in memory whose pixels are read and written as bytes, and saved in the format that a file name asks for.

#include "image/picture.h"

#include <cstddef>
#include <cstdint>
#include <string>

// Colours are 0x00BBGGRR. Row 0 is the top one. Pixels lie in memory as blue, green, red and, at 32 bits, alpha.
class cl_fast_image {
public:
    static constexpr std::uint32_t default_color = 0xffffff; // white

    cl_fast_image() = default;
    cl_fast_image(const cl_fast_image&) = delete; // row_pointer leads into its own pixels
    cl_fast_image& operator=(const cl_fast_image&) = delete;
    virtual ~cl_fast_image() = default;

    // Drops what the image held and makes a black one, transparent if it has 32 bits. False, and no image is left, if a
    // side is below 1, the pixels are more than image::most_pixels, or bits_per_pixel is none of 1, 4, 8, 24, 32.
    // Below 24 bits the colour table is black throughout: there is nothing else to be drawn with.
    bool create(int width, int height, int bits_per_pixel);

    int width() const { return static_cast<int>(pixels.width()); } // 0 while there is no image
    int height() const { return static_cast<int>(pixels.height()); }
    int bits_per_pixel() const { return fast_bpp; }

    // Outside the picture default_color, after a message to the user.
    std::uint32_t get_pixel(int x, int y);
    // x, y: within the picture, which is not checked. Alpha stays. Without effect below 24 bits.
    void set_pixel(int x, int y, std::uint32_t color);
    // 0 transparent to 255; 255 below 32 bits. x, y: within the picture, which is not checked.
    std::uint8_t get_alpha(int x, int y);

    // The pixels of a row, to be read or written in one go; null below 24 bits. y: within the picture, which is not
    // checked.
    std::uint8_t* row(int y);

    // Makes this a copy of another image, at 24 bits or, with alpha, at 32. False if the other has no pixels.
    bool copy_from(cl_fast_image& other);

    // Writes the picture in the format of the name's extension, in any case; an old file is replaced. False, without a
    // message, if there is no image, the extension is of no format that can be written, or the file cannot be made.
    bool save(const std::string& path) const;

private:
    void move_to_row(int y);
    void move_to_pixel(int x, int y);

    image::picture pixels;                 // at 24 bits for an image of fewer
    std::uint8_t* fast_bits = nullptr;     // row 0; null below 24 bits
    std::uint8_t* row_pointer = nullptr;   // start of the row that was touched last
    std::uint8_t* pixel_pointer = nullptr; // the pixel that was touched last
    int bytes_per_pixel = 0;
    int current_row = -1;          // where row_pointer stands
    std::ptrdiff_t fast_pitch = 0; // bytes from a row to the next
    int fast_bpp = 0;              // bits per pixel
};
