#include "image/decode_picture.h"
#include "tests/image/made_files.h"

#include <gtest/gtest.h>

using image::decode_picture;
using bytes = std::vector<std::uint8_t>;

namespace {

// A picture of 2 × 1 pixels. channels, bits, mode: of two bytes each.
std::string head(const std::string& channels, const std::string& bits, const std::string& mode) {
    return "38 42 50 53 00 01 00 00 00 00 00 00 " + channels + " 00 00 00 01 00 00 00 02 " + bits + " " + mode + " ";
}

const std::string nothing = "00 00 00 00 "; // an empty section

bytes pixels_of(const std::string& hexadecimal) {
    const auto decoded = decode_picture(bytes_of(hexadecimal));
    return decoded ? decoded->bytes() : bytes();
}

} // namespace

TEST(PsdCodec, unpacks_runs_of_each_channel) {
    const auto decoded = decode_picture(packed_psd());
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->extent(), (image::picture_extent{2, 1, 24}));
    EXPECT_EQ(decoded->bytes(), bytes_of("0D 0B 0A 0D 0C 0A"));
}

TEST(PsdCodec, reads_plain_channels_behind_sections_of_any_size) {
    EXPECT_EQ(pixels_of(head("00 03", "00 08", "00 03") + nothing + "00 00 00 02 AA BB " + "00 00 00 01 CC " +
                        "00 00 01 02 03 04 05 06"),
              bytes_of("05 03 01 06 04 02"));
}

TEST(PsdCodec, keeps_the_upper_half_of_sixteen_bits) {
    EXPECT_EQ(pixels_of(head("00 03", "00 10", "00 03") + nothing + nothing + nothing +
                        "00 00 01 FF 02 FF 03 FF 04 FF 05 FF 06 FF"),
              bytes_of("05 03 01 06 04 02"));
}

TEST(PsdCodec, has_alpha_if_the_number_of_layers_is_negative) {
    const std::string channels = "00 00 01 02 03 04 05 06 80 FF";
    EXPECT_EQ(
        pixels_of(head("00 04", "00 08", "00 03") + nothing + nothing + "00 00 00 06 00 00 00 02 FF FF " + channels),
        bytes_of("05 03 01 80 06 04 02 FF"));
    EXPECT_EQ(
        pixels_of(head("00 04", "00 08", "00 03") + nothing + nothing + "00 00 00 06 00 00 00 02 00 01 " + channels),
        bytes_of("05 03 01 06 04 02"));
}

TEST(PsdCodec, widens_greys_and_palettes) {
    EXPECT_EQ(pixels_of(head("00 01", "00 08", "00 01") + nothing + nothing + nothing + "00 00 07 09"),
              bytes_of("07 07 07 09 09 09"));
    bytes indexed = bytes_of(head("00 01", "00 08", "00 02") + "00 00 03 00");
    for (const int shade : {0x10, 0x20, 0x30}) // entry 1 of the reds, the greens, the blues; all others are 0
        for (int entry = 0; entry < 256; ++entry)
            indexed.push_back(static_cast<std::uint8_t>(entry == 1 ? shade : 0));
    const bytes rest = bytes_of(nothing + nothing + "00 00 01 02");
    indexed.insert(indexed.end(), rest.begin(), rest.end());
    const auto decoded = decode_picture(indexed);
    ASSERT_TRUE(decoded);
    EXPECT_EQ(decoded->bytes(), bytes_of("30 20 10 00 00 00"));
}

TEST(PsdCodec, refuses_other_kinds_and_pictures_that_end_early) {
    const std::string sections = nothing + nothing + nothing;
    EXPECT_EQ(pixels_of(head("00 04", "00 08", "00 04") + sections + "00 00 01 02 03 04 05 06 07 08"), bytes()); // inks
    EXPECT_EQ(pixels_of(head("00 02", "00 08", "00 03") + sections + "00 00 01 02 03 04"), bytes());
    EXPECT_EQ(pixels_of(head("00 03", "00 08", "00 03") + sections + "00 02 01 02 03 04 05 06"), bytes()); // packing 2
    EXPECT_EQ(pixels_of(head("00 03", "00 08", "00 03") + sections + "00 00 01 02 03 04 05"), bytes());
    EXPECT_EQ(pixels_of(head("00 01", "00 08", "00 01") + sections + "00 01 00 02 FE 07"),
              bytes_of("07 07 07 07 07 07")); // a run of three for a row of two is cut
    EXPECT_EQ(pixels_of(head("00 01", "00 08", "00 01") + sections + "00 01 00 02 00 07"), bytes());
    EXPECT_EQ(pixels_of(head("00 01", "00 08", "00 02") + "00 00 00 03 01 02 03 " + nothing + nothing + "00 00 00 00"),
              bytes()); // a palette that is too short
}
