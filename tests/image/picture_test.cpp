#include "image/picture.h"

#include <gtest/gtest.h>

using image::picture;

TEST(Picture, has_rows_without_padding_from_the_top) {
    picture made = *picture::make({3, 2, 24});
    EXPECT_EQ(made.bytes().size(), 18u);
    EXPECT_EQ(made.bytes_per_row(), 9u);
    EXPECT_EQ(made.row(1) - made.row(0), 9);
    EXPECT_EQ(picture::make({3, 2, 32})->bytes().size(), 24u);
}

TEST(Picture, begins_black_and_transparent) {
    const picture made = *picture::make({5, 5, 32});
    for (const std::uint8_t byte : made.bytes())
        ASSERT_EQ(byte, 0);
}

TEST(Picture, needs_two_sides_and_24_or_32_bits) {
    EXPECT_FALSE(picture::make({0, 1, 24}));
    EXPECT_FALSE(picture::make({1, 0, 24}));
    EXPECT_FALSE(picture::make({1, 1, 8}));
    EXPECT_FALSE(picture::make({1, 1, 16}));
    EXPECT_TRUE(picture().is_empty());
}

TEST(Picture, of_more_pixels_than_the_limit_is_refused_before_memory_is_asked_for) {
    EXPECT_TRUE(picture::make({5, 4, 24}, 20));
    EXPECT_FALSE(picture::make({7, 3, 24}, 20));
    EXPECT_FALSE(picture::make({8193, 8192, 24}));
    EXPECT_FALSE(picture::make({0xFFFFFFFF, 0xFFFFFFFF, 32})); // overflows 64 bits if multiplied by 4
    EXPECT_EQ(image::most_pixels, 8192u * 8192u);
}
