#include "image/picture_format.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

using image::format_of_bytes;
using image::format_of_name;
using image::picture_format;

namespace {

picture_format format_of(const std::string& bytes) {
    return format_of_bytes(std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
}

} // namespace

TEST(PictureFormat, of_a_name_is_told_by_its_extension_in_any_case) {
    EXPECT_EQ(format_of_name("a.png"), picture_format::png);
    EXPECT_EQ(format_of_name("a.PNG"), picture_format::png);
    EXPECT_EQ(format_of_name("a.jpg"), picture_format::jpeg);
    EXPECT_EQ(format_of_name("a.JpEg"), picture_format::jpeg);
    EXPECT_EQ(format_of_name("a.BMP"), picture_format::bmp);
    EXPECT_EQ(format_of_name("a.tif"), picture_format::tiff);
    EXPECT_EQ(format_of_name("a.b.TIFF"), picture_format::tiff);
}

TEST(PictureFormat, of_any_other_name_is_unknown) {
    for (const char* name : {"", "png", "a.", "a.gif", "a.tga", "a.psd", "a.pngx", "a.png ", "folder.png/a",
                             "folder.png\\a", "a.jp\xC3\xA9g"})
        EXPECT_EQ(format_of_name(name), picture_format::unknown) << name;
}

TEST(PictureFormat, of_bytes_is_told_by_their_signature) {
    using namespace std::string_literals;
    EXPECT_EQ(format_of("\x89PNG\r\n\x1A\n"s), picture_format::png);
    EXPECT_EQ(format_of("\xFF\xD8\xFF\xE0"s), picture_format::jpeg);
    EXPECT_EQ(format_of("BM"s), picture_format::bmp);
    EXPECT_EQ(format_of("II*\0"s), picture_format::tiff);
    EXPECT_EQ(format_of("MM\0*"s), picture_format::tiff);
    EXPECT_EQ(format_of("GIF89a"s), picture_format::gif);
    EXPECT_EQ(format_of("8BPS\0\1"s), picture_format::psd);
    EXPECT_EQ(format_of(""s), picture_format::unknown);
    EXPECT_EQ(format_of("B"s), picture_format::unknown);
    EXPECT_EQ(format_of("just some words, long enough for a header"s), picture_format::unknown);
}
