#include "image/decode_picture.h"
#include "tests/image/made_files.h"

#include <gtest/gtest.h>

using image::decode_picture;
using bytes = std::vector<std::uint8_t>;

namespace {

bytes pixels_of(const bytes& file) {
    const auto decoded = decode_picture(file);
    return decoded ? decoded->bytes() : bytes();
}

} // namespace

TEST(PngCodec, widens_a_one_bit_palette_to_24_bits) {
    const png_plan plan{3, 1, 1, 3, false, {10, 20, 30, 40, 50, 60}, {}};
    EXPECT_EQ(pixels_of(made_png(plan, {{0b01000000}})), (bytes{30, 20, 10, 60, 50, 40, 30, 20, 10}));
}

TEST(PngCodec, widens_a_palette_with_transparent_entries_to_32_bits) {
    EXPECT_EQ(pixels_of(small_palette_png()), (bytes{0, 0,   255, 0,   0, 255, 0, 255, 0, 0,   255, 0, //
                                                     0, 255, 0,   255, 0, 255, 0, 255, 0, 255, 0,   255}));
    EXPECT_EQ(image::picture_size(small_palette_png()), (image::picture_extent{3, 2, 32}));
}

TEST(PngCodec, widens_greys_to_24_bits_and_with_alpha_to_32) {
    EXPECT_EQ(pixels_of(made_png({2, 1, 8, 0, false, {}, {}}, {{7, 9}})), (bytes{7, 7, 7, 9, 9, 9}));
    EXPECT_EQ(pixels_of(made_png({2, 1, 2, 0, false, {}, {}}, {{0b01110000}})), (bytes{85, 85, 85, 255, 255, 255}));
    EXPECT_EQ(pixels_of(made_png({1, 1, 8, 4, false, {}, {}}, {{7, 128}})), (bytes{7, 7, 7, 128}));
}

TEST(PngCodec, cuts_channels_of_sixteen_bits_to_eight) {
    const bytes row = {0xFF, 0xFF, 0x80, 0x80, 0x00, 0x00};
    EXPECT_EQ(pixels_of(made_png({1, 1, 16, 2, false, {}, {}}, {row})), (bytes{0, 0x80, 0xFF}));
}

TEST(PngCodec, with_a_wrong_checksum_is_damaged) {
    bytes file = made_png({2, 1, 8, 0, false, {}, {}}, {{7, 9}});
    file[file.size() - 14] ^= 1; // in the checksum of the pixels, before the 12 bytes of the last chunk
    EXPECT_FALSE(decode_picture(file));
}
