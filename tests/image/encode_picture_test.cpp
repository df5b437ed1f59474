#include "image/encode_picture.h"

#include "image/decode_picture.h"
#include "tests/image/pictures.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

using image::decode_picture;
using image::encode_picture;
using image::picture;
using image::picture_format;
using image::picture_size;

namespace {

constexpr picture_format written_formats[] = {picture_format::png, picture_format::jpeg, picture_format::bmp,
                                              picture_format::tiff};

bool keeps_alpha(picture_format format) {
    return format == picture_format::png || format == picture_format::tiff;
}

} // namespace

TEST(EncodePicture, gives_back_every_pixel_in_the_formats_without_loss) {
    // Widths around multiples of 4 show wrong padding, 130 × 70 goes over more than one strip.
    for (const auto& [width, height] : {std::pair(1u, 1u), {2u, 3u}, {3u, 2u}, {4u, 5u}, {5u, 4u}, {130u, 70u}})
        for (const int bits : {24, 32})
            for (const picture_format format : {picture_format::png, picture_format::bmp, picture_format::tiff}) {
                const picture source = noise(width, height, bits);
                const picture expected = keeps_alpha(format) ? source : without_alpha(source);
                const auto decoded = decode_picture(encode_picture(source, format));
                ASSERT_TRUE(decoded) << width << " " << bits << " " << static_cast<int>(format);
                EXPECT_EQ(*decoded, expected) << width << " " << bits << " " << static_cast<int>(format);
            }
}

TEST(EncodePicture, as_jpeg_stays_within_what_the_eye_sees) {
    for (const int bits : {24, 32}) {
        const picture source = gradient(64, 48, bits);
        const auto decoded = decode_picture(encode_picture(source, picture_format::jpeg));
        ASSERT_TRUE(decoded);
        EXPECT_LE(greatest_difference(*decoded, without_alpha(source)), 6);
    }
}

TEST(EncodePicture, keeps_colours_under_full_transparency) {
    picture source = *picture::make({1, 1, 32});
    source.bytes() = {10, 20, 30, 0};
    for (const picture_format format : {picture_format::png, picture_format::tiff})
        EXPECT_EQ(decode_picture(encode_picture(source, format))->bytes(), source.bytes());
}

TEST(EncodePicture, announces_the_size_that_decoding_gives) {
    for (const picture_format format : written_formats)
        for (const int bits : {24, 32}) {
            const std::vector<std::uint8_t> file = encode_picture(noise(17, 9, bits), format);
            EXPECT_EQ(image::format_of_bytes(file), format);
            ASSERT_TRUE(picture_size(file));
            EXPECT_EQ(*picture_size(file), (image::picture_extent{17, 9, keeps_alpha(format) ? bits : 24}));
            EXPECT_EQ(*picture_size(file), decode_picture(file)->extent());
        }
}

TEST(EncodePicture, gives_the_same_bytes_every_time) {
    for (const picture_format format : written_formats)
        EXPECT_EQ(encode_picture(noise(33, 21, 32), format), encode_picture(noise(33, 21, 32), format));
}

TEST(EncodePicture, writes_no_other_format_and_no_empty_picture) {
    for (const picture_format format :
         {picture_format::unknown, picture_format::tga, picture_format::gif, picture_format::psd})
        EXPECT_TRUE(encode_picture(noise(2, 2), format).empty());
    for (const picture_format format : written_formats)
        EXPECT_TRUE(encode_picture(picture(), format).empty());
}

TEST(EncodePicture, fails_for_a_side_that_the_format_cannot_hold) {
    EXPECT_TRUE(encode_picture(*picture::make({65501, 1, 24}), picture_format::jpeg).empty()); // 65500 is its most
    EXPECT_FALSE(encode_picture(*picture::make({65500, 1, 24}), picture_format::jpeg).empty());
    EXPECT_FALSE(encode_picture(*picture::make({65536, 1, 24}), picture_format::png).empty());
}

TEST(WritePicture, chooses_the_format_by_the_extension_in_any_case) {
    const temporary_folder folder;
    const picture source = gradient(8, 8);
    for (const auto& [name, format] : {std::pair("a.PNG", picture_format::png),
                                       {"a.jpeg", picture_format::jpeg},
                                       {"a.Tif", picture_format::tiff},
                                       {"a.bmp", picture_format::bmp}}) {
        EXPECT_TRUE(image::write_picture((folder / name), source)) << name;
        const std::string text = folder.read(name);
        EXPECT_EQ(std::vector<std::uint8_t>(text.begin(), text.end()), encode_picture(source, format)) << name;
    }
}

TEST(WritePicture, leaves_no_file_if_it_fails) {
    const temporary_folder folder;
    for (const char* name : {"a.gif", "a", "a.", "no/such/folder.png"}) {
        EXPECT_FALSE(image::write_picture((folder / name), gradient(8, 8))) << name;
        EXPECT_FALSE(std::filesystem::exists((folder / name))) << name;
    }
    EXPECT_FALSE(image::write_picture((folder / "wide.jpg"), *picture::make({65501, 1, 24})));
    EXPECT_FALSE(std::filesystem::exists((folder / "wide.jpg")));
    EXPECT_FALSE(image::write_picture((folder / "empty.png"), picture()));
    EXPECT_FALSE(std::filesystem::exists((folder / "empty.png")));
}

TEST(WritePicture, leaves_a_file_of_another_kind_alone) {
    const temporary_folder folder;
    folder.write("notes.txt", "keep me");
    EXPECT_FALSE(image::write_picture((folder / "notes.txt"), gradient(8, 8)));
    EXPECT_EQ(folder.read("notes.txt"), "keep me");
}

TEST(WritePicture, replaces_an_old_file) {
    const temporary_folder folder;
    folder.write("a.bmp", std::string(100000, 'x'));
    EXPECT_TRUE(image::write_picture((folder / "a.bmp"), gradient(2, 2)));
    EXPECT_EQ(std::filesystem::file_size((folder / "a.bmp")), 54u + 2 * 8);
}
