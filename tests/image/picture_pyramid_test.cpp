#include "image/picture_pyramid.h"

#include "tests/image/pictures.h"

#include <gtest/gtest.h>

using image::picture;
using image::picture_extent;
using image::picture_pyramid;

namespace {

picture made_of(std::uint32_t width, std::uint32_t height, int bits, std::vector<std::uint8_t> bytes) {
    picture made = *picture::make({width, height, bits});
    made.bytes() = std::move(bytes);
    return made;
}

std::vector<std::uint8_t> blue_of(const picture& p) {
    std::vector<std::uint8_t> blue;
    for (std::size_t i = 0; i < p.bytes().size(); i += p.bytes_per_pixel())
        blue.push_back(p.bytes()[i]);
    return blue;
}

picture grey_row(const std::vector<std::uint8_t>& values, std::uint32_t width, std::uint32_t height) {
    std::vector<std::uint8_t> bytes;
    for (const std::uint8_t value : values)
        bytes.insert(bytes.end(), 3, value);
    return made_of(width, height, 24, bytes);
}

} // namespace

TEST(PicturePyramid, of_no_picture_has_no_levels) {
    EXPECT_TRUE(picture_pyramid().is_empty());
    EXPECT_TRUE(picture_pyramid(picture()).is_empty());
    EXPECT_EQ(picture_pyramid(picture()).level_count(), 0u);
}

TEST(PicturePyramid, begins_with_the_picture_and_ends_with_one_pixel) {
    const picture source = noise(20, 3);
    const picture_pyramid levels(source);
    ASSERT_EQ(levels.level_count(), 5u);
    EXPECT_EQ(levels.level(0), source);
    EXPECT_EQ(levels.level(1).extent(), (picture_extent{10, 1, 24}));
    EXPECT_EQ(levels.level(2).extent(), (picture_extent{5, 1, 24}));
    EXPECT_EQ(levels.level(3).extent(), (picture_extent{2, 1, 24}));
    EXPECT_EQ(levels.level(4).extent(), (picture_extent{1, 1, 24}));
    EXPECT_EQ(picture_pyramid(noise(1, 1)).level_count(), 1u);
}

TEST(PicturePyramid, halves_an_even_picture_to_the_means_of_four_channel_by_channel) {
    const picture_pyramid levels(made_of(2, 2, 32, {0, 10, 20, 255, 4, 10, 24, 0, 8, 10, 28, 0, 12, 14, 32, 1}));
    // (0 + 4 + 8 + 12) / 4, (10 + 10 + 10 + 14) / 4, (20 + 24 + 28 + 32) / 4, (255 + 0 + 0 + 1) / 4
    EXPECT_EQ(levels.level(1).bytes(), (std::vector<std::uint8_t>{6, 11, 26, 64}));
}

TEST(PicturePyramid, rounds_halves_to_the_even_number) {
    EXPECT_EQ(blue_of(picture_pyramid(grey_row({0, 1, 1, 2, 2, 3, 3, 4}, 8, 1)).level(1)),
              (std::vector<std::uint8_t>{0, 2, 2, 4})); // 0.5, 1.5, 2.5, 3.5
}

// A row of five becomes two, each 2.5 wide: the middle pixel is shared.
TEST(PicturePyramid, shares_the_pixels_of_an_odd_row_by_area) {
    const picture_pyramid levels(grey_row({10, 20, 50, 100, 200}, 5, 1));
    // (10 + 20 + 25) / 2.5 = 22, (25 + 100 + 200) / 2.5 = 130
    EXPECT_EQ(blue_of(levels.level(1)), (std::vector<std::uint8_t>{22, 130}));
    EXPECT_EQ(blue_of(levels.level(2)), (std::vector<std::uint8_t>{76}));
}

TEST(PicturePyramid, shares_the_pixels_of_an_odd_column_by_area) {
    const picture_pyramid levels(grey_row({10, 20, 60}, 1, 3));
    EXPECT_EQ(blue_of(levels.level(1)), (std::vector<std::uint8_t>{30}));
}
