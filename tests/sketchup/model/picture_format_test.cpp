#include "sketchup/model/picture_format.h"

#include <gtest/gtest.h>

#include <string_view>
#include <vector>

namespace {

std::uint32_t format_of(std::string_view bytes) {
    return sketchup::picture_format(std::vector<std::uint8_t>(bytes.begin(), bytes.end()));
}

} // namespace

TEST(PictureFormat, the_signature_tells_it) {
    EXPECT_EQ(format_of("\xFF\xD8\xFF\xE0"), 1u);
    EXPECT_EQ(format_of("BM6"), 2u);
    EXPECT_EQ(format_of(std::string_view("II*\0", 4)), 3u);
    EXPECT_EQ(format_of(std::string_view("MM\0*", 4)), 3u);
    EXPECT_EQ(format_of("\x89PNG"), 4u);
    EXPECT_EQ(format_of("8BPS"), 8u);
}

TEST(PictureFormat, a_signature_that_is_cut_off_or_unknown_is_none) {
    EXPECT_EQ(format_of(""), 0u);
    EXPECT_EQ(format_of("B"), 0u);
    EXPECT_EQ(format_of("8BP"), 0u);
    EXPECT_EQ(format_of("GIF8"), 0u);
}
