// A picture whose pixels are reached as bytes.

#include "qlw/fast_image.h"

#include "image/decode_picture.h"
#include "image/picture_format.h"
#include "tests/support/answering_desktop.h"
#include "tests/support/temporary_folder.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

std::vector<std::uint8_t> file_bytes_of(const std::string& path) {
    const std::string text = text_of_file(path);
    return {text.begin(), text.end()};
}

// The bytes of a row of 24 or 32 bits.
std::vector<std::uint8_t> row_bytes(cl_fast_image& image, int y) {
    const std::uint8_t* const row = image.row(y);
    return {row, row + static_cast<std::ptrdiff_t>(image.width()) * image.bits_per_pixel() / 8};
}

TEST(FastImage, gives_back_each_colour_that_was_set) {
    cl_fast_image image;
    ASSERT_TRUE(image.create(3, 2, 24));
    EXPECT_EQ(image.get_pixel(1, 1), 0u) << "a new picture is black";
    image.set_pixel(0, 0, 0x332211);
    image.set_pixel(2, 0, 0xff0000);
    image.set_pixel(2, 1, 0x0000ff);
    image.set_pixel(0, 1, 0xff123456); // what is above the three colours does not count
    EXPECT_EQ(image.get_pixel(0, 0), 0x332211u);
    EXPECT_EQ(image.get_pixel(2, 0), 0xff0000u);
    EXPECT_EQ(image.get_pixel(2, 1), 0x0000ffu);
    EXPECT_EQ(image.get_pixel(0, 1), 0x123456u);
    EXPECT_EQ(image.get_pixel(1, 0), 0u);
    EXPECT_EQ(image.get_pixel(1, 1), 0u);
}

TEST(FastImage, keeps_blue_green_red_in_this_order_with_the_top_row_first) {
    cl_fast_image image;
    ASSERT_TRUE(image.create(2, 2, 24));
    image.set_pixel(1, 0, 0x332211); // red 0x11, green 0x22, blue 0x33
    image.set_pixel(0, 1, 0x665544);
    EXPECT_THAT(row_bytes(image, 0), ElementsAre(0, 0, 0, 0x33, 0x22, 0x11));
    EXPECT_THAT(row_bytes(image, 1), ElementsAre(0x66, 0x55, 0x44, 0, 0, 0));
    image.row(0)[0] = 0x77;
    EXPECT_EQ(image.get_pixel(0, 0), 0x770000u);
}

TEST(FastImage, read_outside_the_picture_gives_white_and_a_message) {
    answering_desktop desktop;
    cl_fast_image image;
    ASSERT_TRUE(image.create(3, 2, 24));
    EXPECT_EQ(image.get_pixel(2, 1), 0u);
    EXPECT_THAT(desktop.message_boxes, IsEmpty());
    EXPECT_EQ(image.get_pixel(3, 0), 0xffffffu);
    EXPECT_THAT(desktop.message_boxes, ElementsAre(": Error in GetPixel"));
    EXPECT_EQ(image.get_pixel(0, 2), 0xffffffu);
    EXPECT_EQ(image.get_pixel(-1, 0), 0xffffffu);
    EXPECT_EQ(image.get_pixel(0, std::numeric_limits<int>::min()), 0xffffffu);
    EXPECT_EQ(desktop.message_boxes.size(), 4u);
}

TEST(FastImage, without_pixels_has_nothing_to_read) {
    answering_desktop desktop;
    cl_fast_image image;
    EXPECT_EQ(image.width(), 0);
    EXPECT_EQ(image.height(), 0);
    EXPECT_EQ(image.row(0), nullptr);
    EXPECT_EQ(image.get_pixel(0, 0), 0xffffffu);
    EXPECT_EQ(desktop.message_boxes.size(), 1u);
}

TEST(FastImage, of_24_bits_is_opaque) {
    cl_fast_image image;
    ASSERT_TRUE(image.create(2, 2, 24));
    EXPECT_EQ(image.get_alpha(1, 1), 255);
}

TEST(FastImage, of_32_bits_keeps_alpha_apart_from_the_colour) {
    cl_fast_image image;
    ASSERT_TRUE(image.create(2, 1, 32));
    EXPECT_EQ(image.get_alpha(1, 0), 0);
    image.row(0)[7] = 200;
    image.set_pixel(1, 0, 0xffffff);
    EXPECT_EQ(image.get_alpha(1, 0), 200);
    EXPECT_EQ(image.get_alpha(0, 0), 0);
    EXPECT_EQ(image.get_pixel(1, 0), 0xffffffu);
}

TEST(FastImage, of_few_bits_is_black_whatever_is_drawn) {
    for (const int bits : {1, 4, 8}) {
        cl_fast_image image;
        ASSERT_TRUE(image.create(2, 2, bits));
        image.set_pixel(1, 1, 0xffffff);
        EXPECT_EQ(image.get_pixel(1, 1), 0u);
        EXPECT_EQ(image.get_alpha(1, 1), 255);
        EXPECT_EQ(image.row(0), nullptr);
        EXPECT_EQ(image.bits_per_pixel(), bits);
    }
}

TEST(FastImage, is_not_made_in_sizes_and_depths_that_no_picture_has) {
    cl_fast_image image;
    constexpr int huge = std::numeric_limits<int>::max();
    EXPECT_FALSE(image.create(0, 1, 24));
    EXPECT_FALSE(image.create(1, 0, 24));
    EXPECT_FALSE(image.create(-1, -1, 24));
    EXPECT_FALSE(image.create(huge, huge, 24));
    EXPECT_FALSE(image.create(8193, 8192, 24));
    EXPECT_FALSE(image.create(8193, 8192, 8));
    for (const int bits : {0, -24, 16, 48, huge})
        EXPECT_FALSE(image.create(1, 1, bits)) << bits;
    EXPECT_EQ(image.width(), 0);
}

TEST(FastImage, made_again_forgets_what_it_held_even_if_that_fails) {
    cl_fast_image image;
    ASSERT_TRUE(image.create(2, 2, 24));
    image.set_pixel(1, 1, 0xffffff);
    ASSERT_TRUE(image.create(4, 4, 32));
    EXPECT_EQ(image.get_pixel(1, 1), 0u);
    EXPECT_EQ(image.width(), 4);
    EXPECT_FALSE(image.create(0, 0, 24));
    EXPECT_EQ(image.width(), 0);
    EXPECT_EQ(image.row(0), nullptr);
}

TEST(FastImage, a_copy_has_size_colours_and_alpha) {
    cl_fast_image original;
    ASSERT_TRUE(original.create(2, 2, 32));
    original.set_pixel(0, 1, 0x112233);
    original.row(1)[3] = 77;
    original.row(0)[7] = 5;
    cl_fast_image copy;
    ASSERT_TRUE(copy.create(9, 9, 24));
    ASSERT_TRUE(copy.copy_from(original));
    EXPECT_EQ(copy.width(), 2);
    EXPECT_EQ(copy.height(), 2);
    EXPECT_EQ(copy.bits_per_pixel(), 32);
    EXPECT_EQ(row_bytes(copy, 0), row_bytes(original, 0));
    EXPECT_EQ(row_bytes(copy, 1), row_bytes(original, 1));
    original.set_pixel(0, 1, 0);
    EXPECT_EQ(copy.get_pixel(0, 1), 0x112233u);
}

TEST(FastImage, a_copy_of_one_of_24_bits_has_24) {
    cl_fast_image original;
    ASSERT_TRUE(original.create(2, 1, 24));
    original.set_pixel(1, 0, 0x112233);
    cl_fast_image copy;
    ASSERT_TRUE(copy.copy_from(original));
    EXPECT_EQ(copy.bits_per_pixel(), 24);
    EXPECT_EQ(copy.get_pixel(1, 0), 0x112233u);
}

TEST(FastImage, a_copy_of_one_of_8_bits_has_24) {
    cl_fast_image original;
    ASSERT_TRUE(original.create(3, 2, 8));
    cl_fast_image copy;
    ASSERT_TRUE(copy.copy_from(original));
    EXPECT_EQ(copy.bits_per_pixel(), 24);
    EXPECT_EQ(copy.width(), 3);
    copy.set_pixel(2, 1, 0xffffff);
    EXPECT_EQ(copy.get_pixel(2, 1), 0xffffffu);
    EXPECT_EQ(copy.get_pixel(1, 1), 0u);
}

TEST(FastImage, what_has_no_pixels_is_not_copied) {
    cl_fast_image original;
    cl_fast_image copy;
    ASSERT_TRUE(copy.create(2, 2, 24));
    EXPECT_FALSE(copy.copy_from(original));
    EXPECT_EQ(copy.width(), 2);
}

TEST(FastImage, is_saved_in_the_format_of_the_extension_in_any_case) {
    using image::picture_format;
    struct expected_file {
        const char* name;
        picture_format format;
    };
    const temporary_folder folder;
    cl_fast_image drawn;
    ASSERT_TRUE(drawn.create(2, 2, 24));
    drawn.set_pixel(1, 0, 0x112233);
    for (const expected_file& f :
         {expected_file{"a.png", picture_format::png}, expected_file{"b.jpeg.PNG", picture_format::png},
          expected_file{"c.JpG", picture_format::jpeg}, expected_file{"d.jpeg", picture_format::jpeg},
          expected_file{"e.BMP", picture_format::bmp}, expected_file{"f.tif", picture_format::tiff}}) {
        EXPECT_TRUE(drawn.save(folder / f.name)) << f.name;
        const std::vector<std::uint8_t> bytes = file_bytes_of(folder / f.name);
        EXPECT_EQ(image::format_of_bytes(bytes), f.format) << f.name;
        const auto decoded = image::decode_picture(bytes);
        ASSERT_TRUE(decoded) << f.name;
        EXPECT_EQ(decoded->extent(), (image::picture_extent{2, 2, 24})) << f.name;
        if (f.format != picture_format::jpeg) {
            EXPECT_THAT(decoded->bytes(), ElementsAre(0, 0, 0, 0x11, 0x22, 0x33, 0, 0, 0, 0, 0, 0)) << f.name;
        }
    }
}

TEST(FastImage, with_alpha_is_saved_with_it) {
    const temporary_folder folder;
    cl_fast_image drawn;
    ASSERT_TRUE(drawn.create(1, 1, 32));
    drawn.set_pixel(0, 0, 0x112233);
    drawn.row(0)[3] = 99;
    ASSERT_TRUE(drawn.save(folder / "a.png"));
    EXPECT_THAT(image::decode_picture(file_bytes_of(folder / "a.png"))->bytes(), ElementsAre(0x11, 0x22, 0x33, 99));
}

TEST(FastImage, of_few_bits_is_saved_black) {
    const temporary_folder folder;
    cl_fast_image drawn;
    ASSERT_TRUE(drawn.create(2, 1, 8));
    ASSERT_TRUE(drawn.save(folder / "a.bmp"));
    EXPECT_THAT(image::decode_picture(file_bytes_of(folder / "a.bmp"))->bytes(), ElementsAre(0, 0, 0, 0, 0, 0));
}

TEST(FastImage, that_cannot_be_saved_says_so_without_a_message) {
    answering_desktop desktop;
    const temporary_folder folder;
    cl_fast_image drawn;
    EXPECT_FALSE(drawn.save(folder / "empty.png"));
    ASSERT_TRUE(drawn.create(2, 2, 24));
    for (const char* name : {"a.psd", "a.gif", "a", "png", "no/folder.png"}) {
        EXPECT_FALSE(drawn.save(folder / name)) << name;
        EXPECT_FALSE(folder.has(name)) << name;
    }
    EXPECT_THAT(desktop.message_boxes, IsEmpty());
    EXPECT_TRUE(desktop.shown.empty());
}

} // namespace
