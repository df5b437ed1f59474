#pragma once

// Picture files of kinds that our encoders do not write.

#include "image/picture.h"

#include <cstdint>
#include <initializer_list>
#include <string_view>
#include <vector>

// A PNG as libpng writes it from rows as they are. palette, alphas: of a palette picture; empty for others.
struct png_plan {
    std::uint32_t width = 0;
    std::uint32_t height = 0;
    int bit_depth = 8;
    int color_type = 0; // as the format numbers it: 0 grey, 2 colour, 3 palette, 4 grey with alpha, 6 colour with alpha
    bool is_interlaced = false;
    std::vector<std::uint8_t> palette; // red, green, blue
    std::vector<std::uint8_t> alphas;
};
std::vector<std::uint8_t> made_png(const png_plan& plan, const std::vector<std::vector<std::uint8_t>>& rows);

// 3 × 2 pixels of one bit, interlaced, entry 0 transparent red, entry 1 opaque green.
std::vector<std::uint8_t> small_palette_png();

// A sound header for a colour picture of that size, and no pixels.
std::vector<std::uint8_t> png_that_announces(std::uint32_t width, std::uint32_t height);

std::vector<std::uint8_t> progressive_jpeg(const image::picture& source);
std::vector<std::uint8_t> grey_jpeg(std::uint32_t width, std::uint32_t height, std::uint8_t grey);
// One colour of four inks, stored inverted with the marker that says so, or plainly without it.
std::vector<std::uint8_t> ink_jpeg(std::initializer_list<int> inks, bool is_inverted);
// A progressive file whose second pass is repeated; width and height below 65536.
std::vector<std::uint8_t> jpeg_of_many_scans(std::uint32_t width, std::uint32_t height, int repetitions);

// Bytes from words of hexadecimal digits: "42 4D 00".
std::vector<std::uint8_t> bytes_of(std::string_view hexadecimal);

// 4 × 2 pixels, 8 bits run-length packed. Palette: 0 black, 1 red, 2 green. Top row 1 1 2 0, bottom row 2 2 2 2.
std::vector<std::uint8_t> rle8_bmp();

// 3 × 2 pixels of 24 bits run-length packed, from the bottom: a run of 3 blue, then red, green, white as they are.
std::vector<std::uint8_t> packed_tga();

// 2 × 2 pixels of the palette black, red, green, blue, in that order from the top.
std::vector<std::uint8_t> small_gif();

// 2 × 1 pixels, run-length packed: reds 0A 0A, greens 0B 0C, blues 0D 0D.
std::vector<std::uint8_t> packed_psd();
