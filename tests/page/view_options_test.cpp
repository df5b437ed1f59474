#include "tools/page/view_options.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

std::optional<view_options> read(std::vector<const char*> words) {
    words.insert(words.begin(), "batch-view");
    return read_view_options(static_cast<int>(words.size()), words.data());
}

TEST(ViewOptions, page_picture_and_size_may_come_in_any_order) {
    const auto options = read({"--size", "320x200", "-o", "a.html", "folder", "--png", "a.png"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->input, "folder");
    EXPECT_EQ(options->page_file, "a.html");
    EXPECT_EQ(options->picture_file, "a.png");
    EXPECT_EQ(options->width, 320U);
    EXPECT_EQ(options->height, 200U);
    EXPECT_FALSE(options->is_clear);
}

TEST(ViewOptions, a_picture_without_a_size_has_640_by_480_pixels) {
    const auto options = read({"folder", "--png", "a.png", "--clear"});
    ASSERT_TRUE(options);
    EXPECT_EQ(options->width, 640U);
    EXPECT_EQ(options->height, 480U);
    EXPECT_TRUE(options->is_clear);
    EXPECT_EQ(options->page_file, "");
}

TEST(ViewOptions, something_must_be_asked_for_of_one_input) {
    EXPECT_FALSE(read({}));
    EXPECT_FALSE(read({"folder"}));
    EXPECT_FALSE(read({"-o", "a.html"}));
    EXPECT_FALSE(read({"folder", "other", "-o", "a.html"}));
    EXPECT_FALSE(read({"folder", "-o"}));
}

TEST(ViewOptions, a_size_needs_a_picture) {
    EXPECT_FALSE(read({"folder", "-o", "a.html", "--size", "320x200"}));
    EXPECT_FALSE(read({"folder", "-o", "a.html", "--clear"}));
}

TEST(ViewOptions, a_side_has_1_to_8192_pixels) {
    EXPECT_TRUE(read({"folder", "--png", "a.png", "--size", "1x8192"}));
    for (const char* size : {"0x200", "200x0", "8193x200", "200x8193", "200", "x200", "200x", "-1x200", "200x200x200",
                             "2e2x200", "99999999999999999999x1"})
        EXPECT_FALSE(read({"folder", "--png", "a.png", "--size", size})) << size;
}

} // namespace
