// Damaged and hostile picture files.

#include "image/decode_picture.h"

#include "image/encode_picture.h"
#include "image/picture_format.h"
#include "tests/image/made_files.h"
#include "tests/image/pictures.h"

#include <gtest/gtest.h>

using image::decode_picture;
using image::encode_picture;
using image::picture_format;
using image::picture_size;

namespace {

struct named_file {
    const char* name;
    std::vector<std::uint8_t> bytes;
};

std::vector<named_file> small_files() {
    return {
        {"png", encode_picture(noise(9, 7, 32), picture_format::png)},
        {"interlaced palette png", small_palette_png()},
        {"jpeg", encode_picture(gradient(20, 9), picture_format::jpeg)},
        {"progressive jpeg", progressive_jpeg(gradient(20, 9))},
        {"bmp", encode_picture(noise(9, 7), picture_format::bmp)},
        {"rle bmp", rle8_bmp()},
        {"tiff", encode_picture(noise(9, 7, 32), picture_format::tiff)},
        {"tga", packed_tga()},
        {"gif", small_gif()},
        {"psd", packed_psd()},
    };
}

// Whatever the bytes: a picture that comes out has the size that was announced.
void expect_sound_answer(const std::vector<std::uint8_t>& bytes, const std::string& what) {
    const auto decoded = decode_picture(bytes, 1 << 16);
    const auto announced = picture_size(bytes);
    if (decoded) {
        ASSERT_TRUE(announced) << what;
        EXPECT_EQ(*announced, decoded->extent()) << what;
    }
}

} // namespace

TEST(DecodePicture, of_every_truncation_fails_or_keeps_the_announced_size) {
    for (const auto& [name, bytes] : small_files()) {
        ASSERT_TRUE(decode_picture(bytes)) << name;
        for (std::size_t size = 0; size < bytes.size(); ++size)
            expect_sound_answer({bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(size)},
                                name + std::string(" cut to ") + std::to_string(size));
    }
}

TEST(DecodePicture, of_every_flipped_byte_fails_or_keeps_the_announced_size) {
    for (const auto& [name, bytes] : small_files())
        for (std::size_t at = 0; at < bytes.size(); ++at)
            for (const int flip : {0x01, 0x80, 0xFF}) {
                std::vector<std::uint8_t> damaged = bytes;
                damaged[at] = static_cast<std::uint8_t>(damaged[at] ^ flip);
                expect_sound_answer(damaged, name + std::string(" changed at ") + std::to_string(at));
            }
}

TEST(DecodePicture, cut_before_its_last_pixels_fails_where_the_format_tells) {
    for (const picture_format format : {picture_format::png, picture_format::bmp, picture_format::tiff}) {
        std::vector<std::uint8_t> file = encode_picture(noise(40, 40), format);
        file.resize(file.size() / 2);
        EXPECT_FALSE(decode_picture(file)) << static_cast<int>(format);
    }
    for (std::vector<std::uint8_t> file : {packed_tga(), packed_psd()}) {
        file.pop_back();
        EXPECT_FALSE(decode_picture(file));
    }
}

TEST(DecodePicture, shows_what_is_there_of_a_jpeg_that_ends_early) {
    const image::picture whole = gradient(64, 64);
    std::vector<std::uint8_t> file = encode_picture(whole, picture_format::jpeg);
    file.resize(file.size() * 3 / 4);
    const auto decoded = decode_picture(file);
    ASSERT_TRUE(decoded);
    EXPECT_LE(std::abs(decoded->row(0)[30] - whole.row(0)[30]), 6);
}

TEST(DecodePicture, does_not_take_what_is_no_picture) {
    for (const std::string text : {"", "x", "no picture at all, but long enough to hold some header", "GIF89a", "8BPS"})
        EXPECT_FALSE(decode_picture(std::vector<std::uint8_t>(text.begin(), text.end()))) << text;
}

TEST(DecodePicture, of_an_absurd_size_fails_while_the_size_is_told) {
    const std::vector<std::uint8_t> png = png_that_announces(900000, 900000);
    EXPECT_FALSE(decode_picture(png));
    ASSERT_TRUE(picture_size(png));
    EXPECT_EQ(picture_size(png)->width, 900000u);
    std::vector<std::uint8_t> bmp = encode_picture(noise(2, 2), picture_format::bmp);
    for (const std::size_t field : {18u, 22u}) // width and height
        for (std::size_t i = 0; i < 4; ++i)
            bmp[field + i] = i < 3 ? 0xFF : 0x7F;
    EXPECT_FALSE(decode_picture(bmp));
    EXPECT_EQ(picture_size(bmp)->height, 0x7FFFFFFFu);
}

TEST(DecodePicture, keeps_to_the_callers_limit_of_pixels) {
    for (const picture_format format :
         {picture_format::png, picture_format::jpeg, picture_format::bmp, picture_format::tiff}) {
        const std::vector<std::uint8_t> file = encode_picture(noise(5, 4), format);
        EXPECT_TRUE(decode_picture(file, 20)) << static_cast<int>(format);
        EXPECT_FALSE(decode_picture(file, 19)) << static_cast<int>(format);
    }
}

TEST(DecodePicture, of_a_jpeg_with_thousands_of_passes_fails_soon) {
    // 8192 × 8192 pixels in a file of some 30 kilobytes, which announces the same empty pass again and again.
    EXPECT_FALSE(decode_picture(jpeg_of_many_scans(8192, 8192, 2000)));
}
