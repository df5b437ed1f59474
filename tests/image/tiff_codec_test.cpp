#include "image/decode_picture.h"
#include "tests/image/made_files.h"

#include <gtest/gtest.h>

using image::decode_picture;
using bytes = std::vector<std::uint8_t>;

namespace {

// A file of 2 × 1 pixels in one strip at the end, most byte first. photometric: 1 grey from black, 2 colour.
std::string plain_file(const std::string& photometric, const std::string& samples, const std::string& strip_bytes) {
    return "4D 4D 00 2A 00 00 00 08 00 08"
           "01 00 00 03 00 00 00 01 00 02 00 00" // width
           "01 01 00 03 00 00 00 01 00 01 00 00" // height
           "01 02 00 03 00 00 00 01 00 08 00 00" // bits of a sample
           "01 03 00 03 00 00 00 01 00 01 00 00" // not packed
           "01 06 00 03 00 00 00 01" +
           photometric + "00 00" +
           "01 11 00 04 00 00 00 01 00 00 00 6E" // the strip at 110
           "01 15 00 03 00 00 00 01" +
           samples + "00 00" + "01 17 00 04 00 00 00 01" + strip_bytes + "00 00 00 00";
}

bytes pixels_of(const std::string& hexadecimal) {
    const auto decoded = decode_picture(bytes_of(hexadecimal));
    return decoded ? decoded->bytes() : bytes();
}

} // namespace

TEST(TiffCodec, widens_greys) {
    EXPECT_EQ(pixels_of(plain_file("00 01", "00 01", "00 00 00 02") + "07 09"), bytes_of("07 07 07 09 09 09"));
}

TEST(TiffCodec, reads_colours_red_first) {
    EXPECT_EQ(pixels_of(plain_file("00 02", "00 03", "00 00 00 06") + "01 02 03 04 05 06"),
              bytes_of("03 02 01 06 05 04"));
}

TEST(TiffCodec, without_its_pixels_is_damaged) {
    EXPECT_TRUE(pixels_of(plain_file("00 02", "00 03", "00 00 00 06") + "01 02").empty());
}
