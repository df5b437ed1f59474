#pragma once

// Pictures that tests make for themselves.

#include "image/picture.h"

#include <cstdint>
#include <random>
#include <span>
#include <vector>

// A smooth picture, so that a lossy format keeps it nearly. With 32 bits its alpha runs over all values.
inline image::picture gradient(std::uint32_t width, std::uint32_t height, int bits_per_pixel = 24) {
    image::picture made = *image::picture::make({width, height, bits_per_pixel});
    for (std::uint32_t y = 0; y < height; ++y)
        for (std::uint32_t x = 0; x < width; ++x) {
            std::uint8_t* pixel = made.row(y) + x * made.bytes_per_pixel();
            pixel[0] = static_cast<std::uint8_t>(255 * x / width);
            pixel[1] = static_cast<std::uint8_t>(255 * y / height);
            pixel[2] = static_cast<std::uint8_t>(255 * (x + y) / (width + height));
            if (made.has_alpha())
                pixel[3] = static_cast<std::uint8_t>(255 - 255 * x / width);
        }
    return made;
}

inline image::picture noise(std::uint32_t width, std::uint32_t height, int bits_per_pixel = 24) {
    image::picture made = *image::picture::make({width, height, bits_per_pixel});
    std::minstd_rand random(width * 1000 + height);
    for (std::uint8_t& byte : made.bytes())
        byte = static_cast<std::uint8_t>(random() >> 8);
    return made;
}

// The picture without its alpha, as formats keep it that have none.
inline image::picture without_alpha(const image::picture& source) {
    image::picture made = *image::picture::make({source.width(), source.height(), 24});
    for (std::size_t i = 0; i < made.bytes().size(); ++i)
        made.bytes()[i] = source.bytes()[i / 3 * source.bytes_per_pixel() + i % 3];
    return made;
}

// The greatest difference of two bytes at the same place; 256 if the sizes differ.
inline int greatest_difference(const image::picture& a, const image::picture& b) {
    if (a.extent() != b.extent())
        return 256;
    int greatest = 0;
    for (std::size_t i = 0; i < a.bytes().size(); ++i)
        greatest = std::max(greatest, std::abs(int{a.bytes()[i]} - int{b.bytes()[i]}));
    return greatest;
}
