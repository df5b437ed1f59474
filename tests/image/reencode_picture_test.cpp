#include "image/reencode_picture.h"

#include "image/decode_picture.h"
#include "image/encode_picture.h"
#include "tests/image/made_files.h"
#include "tests/image/pictures.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>
#include <new>

using image::decode_picture;
using image::encode_picture;
using image::picture_format;
using image::reencode_rows;
using bytes = std::vector<std::uint8_t>;

namespace {

constexpr int lost_in_jpeg = 12;

// The new file; none if it could not be made.
bytes reencoded(const bytes& file, picture_format wanted, std::uint64_t limit = image::most_pixels_by_rows) {
    bytes made;
    return reencode_rows(file, wanted, image::appending_to(made), limit) ? made : bytes();
}

} // namespace

TEST(ReencodePicture, a_png_becomes_a_jpeg_and_loses_its_alpha) {
    const image::picture source = gradient(50, 40, 32);
    const bytes made = reencoded(encode_picture(source, picture_format::png), picture_format::jpeg);
    ASSERT_EQ(image::format_of_bytes(made), picture_format::jpeg);
    EXPECT_LE(greatest_difference(*decode_picture(made), without_alpha(source)), lost_in_jpeg);
}

TEST(ReencodePicture, a_jpeg_becomes_a_png_of_the_same_pixels) {
    for (const bytes& file :
         {encode_picture(noise(50, 40), picture_format::jpeg), grey_jpeg(9, 8, 77), ink_jpeg({0, 0, 255, 51}, true)}) {
        const bytes made = reencoded(file, picture_format::png);
        ASSERT_EQ(image::format_of_bytes(made), picture_format::png);
        EXPECT_EQ(*decode_picture(made), *decode_picture(file));
    }
}

TEST(ReencodePicture, a_png_of_few_bits_is_widened_as_it_is_decoded) {
    const bytes file = made_png({3, 2, 1, 3, false, {255, 0, 0, 0, 255, 0}, {0, 255}}, {{0b01000000}, {0b11100000}});
    EXPECT_EQ(reencoded(file, picture_format::png), encode_picture(*decode_picture(file), picture_format::png));
}

TEST(ReencodePicture, what_cannot_be_read_row_by_row_is_refused) {
    for (const bytes& file : {small_palette_png(), progressive_jpeg(gradient(50, 40)), // interlaced; in many passes
                              encode_picture(gradient(5, 4), picture_format::bmp), small_gif(), bytes{'w', 'o'}})
        EXPECT_EQ(reencoded(file, picture_format::png), bytes());
}

TEST(ReencodePicture, other_formats_than_png_and_jpeg_are_not_written) {
    const bytes file = encode_picture(gradient(5, 4), picture_format::png);
    for (const picture_format wanted :
         {picture_format::bmp, picture_format::tiff, picture_format::gif, picture_format::unknown})
        EXPECT_EQ(reencoded(file, wanted), bytes());
}

TEST(ReencodePicture, a_png_that_ends_early_is_refused_wherever_it_ends) {
    const bytes file = encode_picture(noise(12, 10), picture_format::png);
    ASSERT_NE(reencoded(file, picture_format::jpeg), bytes());
    for (std::size_t length = 0; length < file.size(); ++length)
        EXPECT_EQ(reencoded({file.begin(), file.begin() + static_cast<std::ptrdiff_t>(length)}, picture_format::jpeg),
                  bytes())
            << length;
}

TEST(ReencodePicture, one_pixel_more_than_the_limit_is_refused) {
    const bytes file = encode_picture(gradient(50, 40), picture_format::png);
    EXPECT_NE(reencoded(file, picture_format::jpeg, 2000), bytes());
    EXPECT_EQ(reencoded(file, picture_format::jpeg, 1999), bytes());
}

TEST(ReencodePicture, a_size_that_takes_hours_is_refused_at_once) {
    EXPECT_EQ(reencoded(png_that_announces(16385, 16384), picture_format::jpeg), bytes());
    EXPECT_EQ(reencoded(png_that_announces(1000000, 1000000), picture_format::png), bytes());
}

// JPEG holds sides of up to 65,500 pixels.
TEST(ReencodePicture, a_side_that_the_format_cannot_hold_is_refused) {
    const bytes wide = encode_picture(gradient(65501, 1), picture_format::png);
    EXPECT_EQ(reencoded(wide, picture_format::jpeg), bytes());
    EXPECT_EQ(reencoded(wide, picture_format::png), wide);
}

TEST(ReencodePicture, ends_when_its_bytes_are_not_taken) {
    const bytes file = encode_picture(noise(300, 200), picture_format::png);
    for (const picture_format wanted : {picture_format::png, picture_format::jpeg}) {
        int pieces = 0;
        EXPECT_FALSE(reencode_rows(file, wanted, [&](auto) { return ++pieces < 2; }));
        EXPECT_EQ(pieces, 2);
        EXPECT_FALSE(reencode_rows(file, wanted, [](auto) -> bool { throw std::bad_alloc(); }));
    }
}

TEST(ReencodePicture, into_a_file_goes_by_its_name_and_leaves_none_when_it_fails) {
    const temporary_folder folder;
    const bytes file = encode_picture(gradient(50, 40), picture_format::jpeg);
    EXPECT_TRUE(image::write_reencoded(folder / "a.PNG", file));
    const std::string made = folder.read("a.PNG");
    EXPECT_EQ(*decode_picture(bytes(made.begin(), made.end())), *decode_picture(file));
    for (const std::string name : {"a.bmp", "a.gif", "a", "no/folder.png"}) {
        EXPECT_FALSE(image::write_reencoded(folder / name, file)) << name;
        EXPECT_FALSE(folder.has(name)) << name;
    }
    EXPECT_FALSE(image::write_reencoded(folder / "a.PNG", small_gif()));
    EXPECT_FALSE(folder.has("a.PNG"));
}
