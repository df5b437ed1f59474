#include "image/decode_picture.h"
#include "tests/image/made_files.h"
#include "tests/image/pictures.h"

#include <gtest/gtest.h>

using image::decode_picture;

namespace {

void expect_colour(const std::vector<std::uint8_t>& file, int blue, int green, int red) {
    const auto decoded = decode_picture(file);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->extent().bits_per_pixel, 24);
    EXPECT_NEAR(decoded->row(1)[0], blue, 3);
    EXPECT_NEAR(decoded->row(1)[1], green, 3);
    EXPECT_NEAR(decoded->row(1)[2], red, 3);
}

} // namespace

TEST(JpegCodec, widens_greys) {
    expect_colour(grey_jpeg(8, 8, 77), 77, 77, 77);
}

TEST(JpegCodec, mixes_inks_stored_plainly_or_inverted) {
    for (const bool is_inverted : {false, true}) {
        expect_colour(ink_jpeg({255, 0, 0, 0}, is_inverted), 255, 255, 0); // full cyan
        // Yellow 255 and black 51: blue 0, the others 255 - 51 = 204.
        expect_colour(ink_jpeg({0, 0, 255, 51}, is_inverted), 0, 204, 204);
    }
}

TEST(JpegCodec, reads_progressive_files) {
    const image::picture source = gradient(50, 40);
    const auto decoded = decode_picture(progressive_jpeg(source));
    ASSERT_TRUE(decoded);
    EXPECT_LE(greatest_difference(*decoded, source), 12); // colours are stored at half the resolution
}
