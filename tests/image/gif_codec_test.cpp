#include "image/decode_picture.h"
#include "tests/image/made_files.h"

#include <gtest/gtest.h>

using image::decode_picture;
using bytes = std::vector<std::uint8_t>;

namespace {

const std::string palette_of_4 = " 00 00 00 FF 00 00 00 FF 00 00 00 FF "; // black, red, green, blue

std::string screen(const std::string& size) {
    return "47 49 46 38 39 61 " + size + " 81 00 00" + palette_of_4;
}

} // namespace

TEST(GifCodec, looks_codes_up_that_grow_with_the_table) {
    const auto decoded = decode_picture(small_gif());
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->extent(), (image::picture_extent{2, 2, 24}));
    EXPECT_EQ(decoded->bytes(), bytes_of("00 00 00 00 00 FF  00 FF 00 FF 00 00"));
}

TEST(GifCodec, takes_a_code_that_is_just_being_made_for_the_last_string_and_its_first_pixel) {
    // Codes 4 (clear) 1 6 1 of 3 bits, 5 (end) of 4: 6 is made by itself, 1 and 1 again.
    const auto decoded =
        decode_picture(bytes_of(screen("04 00 01 00") + "2C 00 00 00 00 04 00 01 00 00 02 02 8C 53 00 3B"));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->bytes(), bytes_of("00 00 FF 00 00 FF 00 00 FF 00 00 FF"));
}

TEST(GifCodec, has_alpha_if_an_entry_is_transparent_or_the_frame_leaves_part_of_the_screen) {
    const std::string pixels = " 02 03 44 34 05 00 3B";
    const auto transparent = decode_picture(
        bytes_of(screen("02 00 02 00") + "21 F9 04 01 00 00 02 00 2C 00 00 00 00 02 00 02 00 00" + pixels)); // entry 2
    ASSERT_TRUE(transparent);
    EXPECT_EQ(transparent->bytes(), bytes_of("00 00 00 FF 00 00 FF FF  00 FF 00 00 FF 00 00 FF"));
    const auto smaller = decode_picture(bytes_of(screen("03 00 02 00") + "2C 01 00 00 00 02 00 02 00 00" + pixels));
    ASSERT_TRUE(smaller);
    EXPECT_EQ(smaller->extent(), (image::picture_extent{3, 2, 32}));
    EXPECT_EQ(smaller->bytes(), bytes_of("00 00 00 00 00 00 00 FF 00 00 FF FF  00 00 00 00 00 FF 00 FF FF 00 00 FF"));
}

TEST(GifCodec, puts_interlaced_rows_where_they_belong) {
    // Four rows of one pixel, stored as 0, 2, 1, 3 by the passes: every 8th from 0, from 4, every 4th from 2, every
    // 2nd from 1. The codes give 0 1 2 3 in the order of storing.
    const auto decoded =
        decode_picture(bytes_of(screen("01 00 04 00") + "2C 00 00 00 00 01 00 04 00 40 02 03 44 34 05 00 3B"));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->bytes(), bytes_of("00 00 00  00 FF 00  00 00 FF  FF 00 00"));
}

TEST(GifCodec, takes_a_frames_own_palette_before_that_of_the_screen) {
    const auto decoded = decode_picture(bytes_of(screen("02 00 02 00") + "2C 00 00 00 00 02 00 02 00 81 " +
                                                 "01 02 03 04 05 06 07 08 09 0A 0B 0C 02 03 44 34 05 00 3B"));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->bytes(), bytes_of("03 02 01 06 05 04  09 08 07 0C 0B 0A"));
}

TEST(GifCodec, takes_entries_that_the_palette_lacks_for_black) {
    const auto decoded = decode_picture(
        bytes_of("47 49 46 38 39 61 02 00 02 00 80 00 00 01 02 03 04 05 06 2C 00 00 00 00 02 00 02 00 00 "
                 "02 03 44 34 05 00 3B"));
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->bytes(), bytes_of("03 02 01 06 05 04  00 00 00 00 00 00"));
}

TEST(GifCodec, refuses_codes_that_stand_for_nothing_and_pictures_that_end_early) {
    // Code 7 when 6 is the next to be made: 4 (clear) 1 7, least bit first 001 100 111.
    EXPECT_FALSE(decode_picture(bytes_of(screen("04 00 01 00") + "2C 00 00 00 00 04 00 01 00 00 02 02 CC 01 00 3B")));
    // The end after one pixel of four: 4 1 5 are 001 100 101.
    EXPECT_FALSE(decode_picture(bytes_of(screen("04 00 01 00") + "2C 00 00 00 00 04 00 01 00 00 02 02 4C 01 00 3B")));
    EXPECT_FALSE(decode_picture(bytes_of(screen("04 00 01 00") + "3B")));
    EXPECT_FALSE(decode_picture(bytes_of(screen("04 00 01 00") + "2C 00 00 00 00 00 00 01 00 00 02 02 8C 53 00 3B")));
}
