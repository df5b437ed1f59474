#include "image/decode_picture.h"
#include "tests/image/made_files.h"

#include <gtest/gtest.h>

using image::decode_picture;
using bytes = std::vector<std::uint8_t>;

namespace {

bytes pixels_of(const std::string& hexadecimal) {
    const auto decoded = decode_picture(bytes_of(hexadecimal));
    return decoded ? decoded->bytes() : bytes();
}

} // namespace

TEST(TgaCodec, unpacks_runs_from_the_bottom) {
    const auto decoded = decode_picture(packed_tga());
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->bytes(), bytes_of("00 00 FF 00 FF 00 FF FF FF  FF 00 00 FF 00 00 FF 00 00"));
}

TEST(TgaCodec, obeys_the_order_of_rows_and_pixels) {
    const std::string head = "00 00 02 00 00 00 00 00 00 00 00 00 02 00 01 00 18";
    EXPECT_EQ(pixels_of(head + "20 01 02 03 04 05 06"), bytes_of("01 02 03 04 05 06"));
    EXPECT_EQ(pixels_of(head + "10 01 02 03 04 05 06"), bytes_of("04 05 06 01 02 03"));
    const std::string tall = "00 00 02 00 00 00 00 00 00 00 00 00 01 00 02 00 18";
    EXPECT_EQ(pixels_of(tall + "20 01 02 03 04 05 06"), bytes_of("01 02 03 04 05 06"));
    EXPECT_EQ(pixels_of(tall + "00 01 02 03 04 05 06"), bytes_of("04 05 06 01 02 03"));
}

TEST(TgaCodec, has_alpha_only_if_the_header_says_so) {
    const std::string head = "00 00 02 00 00 00 00 00 00 00 00 00 01 00 01 00 20";
    EXPECT_EQ(pixels_of(head + "08 01 02 03 04"), bytes_of("01 02 03 04"));
    EXPECT_EQ(pixels_of(head + "00 01 02 03 04"), bytes_of("01 02 03"));
}

TEST(TgaCodec, reads_greys_palettes_and_fifteen_bits) {
    EXPECT_EQ(pixels_of("00 00 03 00 00 00 00 00 00 00 00 00 01 00 01 00 08 00 4D"), bytes_of("4D 4D 4D"));
    // A palette whose first entry is number 1; entry 0 and entry 9 are not there: black.
    EXPECT_EQ(pixels_of("00 01 01 01 00 01 00 18 00 00 00 00 03 00 01 00 08 00 0A 0B 0C 01 00 09"),
              bytes_of("0A 0B 0C 00 00 00 00 00 00"));
    EXPECT_EQ(pixels_of("00 00 02 00 00 00 00 00 00 00 00 00 01 00 01 00 10 00 00 7C"), bytes_of("00 00 FF"));
}
