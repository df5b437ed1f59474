#include "image/decode_picture.h"
#include "tests/image/made_files.h"

#include <gtest/gtest.h>

using image::decode_picture;
using bytes = std::vector<std::uint8_t>;

namespace {

// The two headers of a file; what follows them is the caller's. numbers: as the file has them, least byte first.
std::string headers(const std::string& pixels_at, const std::string& size, const std::string& depth_and_packing,
                    const std::string& palette_entries = "00 00 00 00") {
    return "42 4D 00 00 00 00 00 00 00 00" + pixels_at + "28 00 00 00" + size + "01 00" + depth_and_packing +
           "00 00 00 00 00 00 00 00 00 00 00 00" + palette_entries + "00 00 00 00";
}

bytes pixels_of(const std::string& hexadecimal) {
    const auto decoded = decode_picture(bytes_of(hexadecimal));
    return decoded ? decoded->bytes() : bytes();
}

} // namespace

TEST(BmpCodec, reads_one_bit_a_pixel_through_the_palette_with_rows_from_the_bottom) {
    const std::string file = headers("3E 00 00 00", "02 00 00 00 02 00 00 00", "01 00 00 00 00 00");
    EXPECT_EQ(pixels_of(file + "0A 0B 0C 00 01 02 03 00" + "80 00 00 00" + "40 00 00 00"),
              bytes_of("0A 0B 0C 01 02 03  01 02 03 0A 0B 0C"));
}

TEST(BmpCodec, reads_four_bits_a_pixel_and_takes_an_entry_that_the_palette_lacks_for_black) {
    const std::string file = headers("3E 00 00 00", "03 00 00 00 01 00 00 00", "04 00 00 00 00 00", "02 00 00 00");
    EXPECT_EQ(pixels_of(file + "0A 0B 0C 00 01 02 03 00" + "10 F0 00 00"), bytes_of("01 02 03 0A 0B 0C 00 00 00"));
}

TEST(BmpCodec, reads_rows_from_the_top_if_the_height_is_negative) {
    const std::string file = headers("36 00 00 00", "01 00 00 00 FE FF FF FF", "18 00 00 00 00 00");
    EXPECT_EQ(pixels_of(file + "01 02 03 00 04 05 06 00"), bytes_of("01 02 03 04 05 06"));
}

TEST(BmpCodec, widens_five_bit_channels) {
    const std::string file = headers("36 00 00 00", "02 00 00 00 01 00 00 00", "10 00 00 00 00 00");
    // 0 11111 00000 10000: red 31, green 0, blue 16, which is 16 x 255 / 31 = 131.
    EXPECT_EQ(pixels_of(file + "10 7C 00 00"), bytes_of("83 00 FF 00 00 00"));
}

TEST(BmpCodec, reads_channels_through_masks) {
    const std::string file = headers("42 00 00 00", "01 00 00 00 01 00 00 00", "10 00 03 00 00 00");
    // Five, six and five bits: 11111 100000 00000. Green is 32 x 255 / 63 = 129.
    EXPECT_EQ(pixels_of(file + "00 F8 00 00 E0 07 00 00 1F 00 00 00" + "00 FC 00 00"), bytes_of("00 81 FF"));
}

TEST(BmpCodec, takes_the_fourth_byte_for_alpha_only_if_a_mask_says_so) {
    const std::string plain = headers("36 00 00 00", "01 00 00 00 01 00 00 00", "20 00 00 00 00 00");
    EXPECT_EQ(pixels_of(plain + "01 02 03 04"), bytes_of("01 02 03"));
    const std::string masks = "00 00 FF 00 00 FF 00 00 FF 00 00 00 00 00 00 FF";
    const std::string masked = headers("46 00 00 00", "01 00 00 00 01 00 00 00", "20 00 06 00 00 00");
    EXPECT_EQ(pixels_of(masked + masks + "01 02 03 04"), bytes_of("01 02 03 04"));
}

TEST(BmpCodec, reads_the_oldest_header) {
    EXPECT_EQ(pixels_of("42 4D 00 00 00 00 00 00 00 00 1A 00 00 00 0C 00 00 00 01 00 01 00 01 00 18 00 07 08 09"),
              bytes_of("07 08 09"));
}

TEST(BmpCodec, unpacks_runs_of_eight_bits) {
    const auto decoded = decode_picture(rle8_bmp());
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->bytes(), bytes_of("00 00 FF 00 00 FF 00 FF 00 00 00 00"
                                         "00 FF 00 00 FF 00 00 FF 00 00 FF 00"));
}

TEST(BmpCodec, unpacks_runs_of_four_bits_and_jumps) {
    const std::string file = headers("3E 00 00 00", "04 00 00 00 02 00 00 00", "04 00 02 00 00 00", "02 00 00 00");
    const std::string palette = "00 00 00 00 01 02 03 00";
    // Three of 1 0 1; a jump one right and one up would leave the picture to the right: nothing is drawn there. Then
    // the end.
    EXPECT_EQ(pixels_of(file + palette + "03 10 00 02 01 01 02 11 00 01"),
              bytes_of("00 00 00 00 00 00 00 00 00 00 00 00 01 02 03 00 00 00 01 02 03 00 00 00"));
    // Two pixels as they are, padded to an even number of bytes.
    EXPECT_EQ(pixels_of(file + palette + "00 03 01 10 00 01"),
              bytes_of("00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 01 02 03 01 02 03 00 00 00"));
}

TEST(BmpCodec, refuses_what_is_no_plain_picture) {
    const std::string size = "01 00 00 00 01 00 00 00";
    const std::string pixel = "01 02 03 04";
    EXPECT_TRUE(pixels_of(headers("36 00 00 00", size, "18 00 04 00 00 00") + pixel).empty()) << "JPEG inside";
    EXPECT_TRUE(pixels_of(headers("36 00 00 00", size, "07 00 00 00 00 00") + pixel).empty()) << "seven bits";
    EXPECT_TRUE(pixels_of(headers("36 00 00 00", size, "18 00 01 00 00 00") + pixel).empty()) << "runs of 24 bits";
    EXPECT_TRUE(pixels_of(headers("FF FF FF FF", size, "18 00 00 00 00 00") + pixel).empty()) << "pixels elsewhere";
    EXPECT_TRUE(pixels_of(headers("36 00 00 00", "00 00 00 00 01 00 00 00", "18 00 00 00 00 00") + pixel).empty());
    EXPECT_TRUE(pixels_of(headers("36 00 00 00", "01 00 00 00 00 00 00 80", "18 00 00 00 00 00") + pixel).empty());
    EXPECT_FALSE(pixels_of(headers("36 00 00 00", size, "18 00 00 00 00 00") + pixel).empty()) << "sound";
}
