#include "tests/sketchup/api/test_model.h"

#include "image/decode_picture.h"
#include "image/encode_picture.h"
#include "image/picture_rows.h"
#include "sketchup/api/texture_file_name.h"
#include "tests/image/pictures.h"
#include "tests/support/temporary_folder.h"

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>

using sketchup::model_builder;
using sketchup::api::texture_file_name;

TEST(TextureFileName, is_the_last_part_of_a_path_of_any_platform) {
    EXPECT_EQ(texture_file_name("C:\\textures\\brick.jpg", 1), "brick.jpg");
    EXPECT_EQ(texture_file_name("/home/me/brick.jpg", 1), "brick.jpg");
    EXPECT_EQ(texture_file_name("C:\\mixed/brick.jpg", 1), "brick.jpg");
    EXPECT_EQ(texture_file_name("brick.jpg", 1), "brick.jpg");
    EXPECT_EQ(texture_file_name("folder.old\\brick", 0), "brick");
}

TEST(TextureFileName, may_be_nothing_but_an_extension) {
    EXPECT_EQ(texture_file_name(".png", 4), ".png");
    EXPECT_EQ(texture_file_name("", 4), ".png");
}

TEST(TextureFileName, gets_the_extension_of_the_pictures_format_if_it_has_none) {
    EXPECT_EQ(texture_file_name("brick", 1), "brick.jpg");
    EXPECT_EQ(texture_file_name("brick", 2), "brick.bmp");
    EXPECT_EQ(texture_file_name("brick", 3), "brick.tif");
    EXPECT_EQ(texture_file_name("brick", 4), "brick.png");
    EXPECT_EQ(texture_file_name("brick", 7), "brick.tga");
    EXPECT_EQ(texture_file_name("brick", 8), "brick.psd");
    EXPECT_EQ(texture_file_name("brick", 99), "brick");
}

TEST(Texture, gives_the_name_of_its_picture) {
    model_builder builder;
    builder.textured_material("Brick", {}, "C:\\textures\\brick.jpg", 10, 20);
    test_model opened(builder);
    EXPECT_EQ(text_from(SUTextureGetFileName, opened.texture()), "brick.jpg");
}

TEST(Texture, writes_its_stored_bytes_unchanged) {
    const temporary_folder folder;
    model_builder builder;
    builder.textured_material("Brick", {'B', 'M', 0, 255}, "brick.bmp", 10, 20);
    test_model opened(builder);
    const std::string path = folder / "original.bmp";
    EXPECT_EQ(SUTextureWriteOriginalToFile(opened.texture(), path.c_str()), SU_ERROR_NONE);
    EXPECT_EQ(folder.read("original.bmp"), std::string("BM\0\xFF", 4));
    EXPECT_EQ(SUTextureWriteOriginalToFile(opened.texture(), (folder / "no/folder.bmp").c_str()),
              SU_ERROR_SERIALIZATION);
    EXPECT_EQ(SUTextureWriteOriginalToFile(opened.texture(), nullptr), SU_ERROR_NULL_POINTER_INPUT);
}

TEST(Texture, without_a_picture_writes_nothing) {
    const temporary_folder folder;
    model_builder builder;
    builder.textured_material("Brick", {}, "brick.bmp", 10, 20);
    builder.model().textures[0].picture = sketchup::no_index;
    test_model opened(builder);
    const std::string path = folder / "picture.png";
    EXPECT_EQ(SUTextureWriteToFile(opened.texture(), path.c_str()), SU_ERROR_SERIALIZATION);
    EXPECT_EQ(SUTextureWriteOriginalToFile(opened.texture(), path.c_str()), SU_ERROR_SERIALIZATION);
    EXPECT_FALSE(std::filesystem::exists(path));
    size_t width = 7, height = 7;
    double s = 7, t = 7;
    EXPECT_EQ(SUTextureGetDimensions(opened.texture(), &width, &height, &s, &t), SU_ERROR_NO_DATA);
    EXPECT_EQ(s + t, 14);
}

TEST(TextureFromPixels, belongs_to_the_caller) {
    const SUByte pixels[8 * 2] = {}; // two rows of two pixels of 3 bytes, padded to 8
    SUTextureRef texture = SU_INVALID;
    EXPECT_EQ(SUTextureCreateFromImageData(&texture, 2, 2, 24, pixels), SU_ERROR_NONE);
    size_t width = 0, height = 0;
    double s = 0, t = 0;
    EXPECT_EQ(SUTextureGetDimensions(texture, &width, &height, &s, &t), SU_ERROR_NONE);
    EXPECT_EQ(width, 2u);
    EXPECT_EQ(height, 2u);
    EXPECT_EQ(s, 0.1); // a new square picture is 10 inches wide
    EXPECT_EQ(t, 0.1);
    EXPECT_EQ(SUTextureCreateFromImageData(&texture, 2, 2, 24, pixels), SU_ERROR_OVERWRITE_VALID);
    EXPECT_EQ(SUTextureRelease(&texture), SU_ERROR_NONE);
    EXPECT_FALSE(SUIsValid(texture));
    EXPECT_EQ(SUTextureRelease(&texture), SU_ERROR_INVALID_INPUT);
}

TEST(TextureFromPixels, needs_a_size_and_24_or_32_bits) {
    const SUByte pixels[4] = {};
    SUTextureRef texture = SU_INVALID;
    EXPECT_EQ(SUTextureCreateFromImageData(&texture, 0, 1, 24, pixels), SU_ERROR_OUT_OF_RANGE);
    EXPECT_EQ(SUTextureCreateFromImageData(&texture, 1, 0, 24, pixels), SU_ERROR_OUT_OF_RANGE);
    EXPECT_EQ(SUTextureCreateFromImageData(&texture, 1, 1, 8, pixels), SU_ERROR_OUT_OF_RANGE);
    EXPECT_EQ(SUTextureCreateFromImageData(&texture, 65536, 1, 24, pixels), SU_ERROR_OUT_OF_RANGE);
    EXPECT_EQ(SUTextureCreateFromImageData(&texture, 1, 1, 24, nullptr), SU_ERROR_NULL_POINTER_INPUT);
    EXPECT_EQ(SUTextureCreateFromImageData(nullptr, 1, 1, 24, pixels), SU_ERROR_NULL_POINTER_OUTPUT);
    EXPECT_FALSE(SUIsValid(texture));
}

TEST(TextureFromPixels, that_is_not_released_goes_with_the_library) {
    const SUByte pixels[4] = {};
    SUTextureRef texture = SU_INVALID;
    EXPECT_EQ(SUTextureCreateFromImageData(&texture, 1, 1, 32, pixels), SU_ERROR_NONE);
    SUTerminate(); // the leak checker sees what is left
}

TEST(Texture, of_a_material_is_not_the_callers_to_release) {
    model_builder builder;
    builder.textured_material("Brick", {}, "brick.bmp", 10, 20);
    test_model opened(builder);
    SUTextureRef texture = opened.texture();
    EXPECT_EQ(SUTextureRelease(&texture), SU_ERROR_INVALID_INPUT);
    EXPECT_TRUE(SUIsValid(texture));
}

namespace {

std::vector<std::uint8_t> file_of(const image::picture& pixels, image::picture_format format) {
    return image::encode_picture(pixels, format);
}

std::vector<std::uint8_t> read_back(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

} // namespace

TEST(Texture, tells_the_pixel_size_of_its_picture_and_the_tiles_in_an_inch) {
    model_builder builder;
    builder.textured_material("Brick", file_of(noise(30, 7), image::picture_format::png), "brick.png", 10, 20);
    test_model opened(builder);
    for (int i = 0; i < 2; ++i) {
        size_t width = 0, height = 0;
        double s = 0, t = 0;
        EXPECT_EQ(SUTextureGetDimensions(opened.texture(), &width, &height, &s, &t), SU_ERROR_NONE);
        EXPECT_EQ(width, 30u);
        EXPECT_EQ(height, 7u);
        EXPECT_EQ(s, 0.1);
        EXPECT_EQ(t, 0.05);
    }
}

TEST(Texture, is_unpacked_once_for_its_size) {
    model_builder builder;
    builder.textured_material("Brick", {}, "brick.png", 10, 20);
    int unpacked = 0;
    builder.model().pictures[0].load = [&unpacked] {
        ++unpacked;
        return file_of(noise(3, 3), image::picture_format::png);
    };
    test_model opened(builder);
    size_t width = 0, height = 0;
    double s = 0, t = 0;
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(SUTextureGetDimensions(opened.texture(), &width, &height, &s, &t), SU_ERROR_NONE);
    EXPECT_EQ(unpacked, 1);
}

TEST(Texture, is_written_unchanged_if_the_format_is_the_stored_one) {
    const temporary_folder folder;
    model_builder builder;
    const std::vector<std::uint8_t> stored = file_of(gradient(9, 9), image::picture_format::jpeg);
    builder.textured_material("Brick", stored, "brick.jpg", 10, 20);
    test_model opened(builder);
    EXPECT_EQ(SUTextureWriteToFile(opened.texture(), (folder / "a.JPEG").c_str()), SU_ERROR_NONE);
    EXPECT_EQ(read_back((folder / "a.JPEG")), stored);
}

TEST(Texture, is_written_anew_in_another_format) {
    const temporary_folder folder;
    const image::picture pixels = noise(9, 5);
    model_builder builder;
    builder.textured_material("Brick", file_of(pixels, image::picture_format::png), "brick.png", 10, 20);
    test_model opened(builder);
    for (const char* name : {"a.bmp", "a.TIF"}) {
        EXPECT_EQ(SUTextureWriteToFile(opened.texture(), (folder / name).c_str()), SU_ERROR_NONE);
        EXPECT_EQ(image::decode_picture(read_back((folder / name))), pixels) << name;
    }
}

// 8200 x 8200 pixels, 134,136 more than a picture in memory may have.
TEST(Texture, that_does_not_fit_into_memory_is_encoded_anew_but_not_recoloured) {
    constexpr std::uint32_t side = 8200;
    std::vector<std::uint8_t> stored;
    const image::byte_sink append = image::appending_to(stored);
    const auto png = image::png_file({side, side, 24}, append);
    const std::vector<std::uint8_t> row(std::size_t{3} * side, 200);
    for (std::uint32_t y = 0; y < side; ++y)
        ASSERT_TRUE(png->put_row(row.data()));
    ASSERT_TRUE(png->end());
    const temporary_folder folder;
    model_builder builder;
    builder.textured_material("Brick", stored, "brick.png", 10, 20);
    const sketchup::index tinted = builder.textured_material("Tinted", stored, "brick.png", 10, 20);
    builder.model().materials[tinted].type = sketchup::material_type::colorized;
    builder.model().materials[tinted].color = {147, 154, 158, 255};
    test_model opened(builder);
    EXPECT_EQ(SUTextureWriteToFile(opened.texture(), (folder / "a.jpg").c_str()), SU_ERROR_NONE);
    const std::vector<std::uint8_t> made = read_back(folder / "a.jpg");
    EXPECT_EQ(image::picture_size(made), (image::picture_extent{side, side, 24}));
    std::vector<std::uint8_t> first(row.size());
    const auto rows = image::jpeg_rows(made);
    EXPECT_TRUE(rows && rows->next_row(first.data()));
    EXPECT_EQ(first, row);
    for (const std::string name : {"b.jpg", "b.png"}) {
        EXPECT_EQ(SUTextureWriteToFile(opened.texture(1), (folder / name).c_str()), SU_ERROR_SERIALIZATION) << name;
        EXPECT_FALSE(folder.has(name)) << name;
    }
}

TEST(Texture, is_recoloured_as_its_material_wants_but_not_in_its_original) {
    const temporary_folder folder;
    image::picture pixel = *image::picture::make({1, 1, 24});
    pixel.bytes() = {98, 137, 115};
    const std::vector<std::uint8_t> stored = file_of(pixel, image::picture_format::png);
    model_builder builder;
    const sketchup::index paint = builder.textured_material("Brick", stored, "brick.png", 10, 20);
    builder.model().materials[paint].type = sketchup::material_type::colorized;
    builder.model().materials[paint].color = {147, 154, 158, 255};
    builder.model().textures[0].average_color = {105, 137, 98, 255};
    test_model opened(builder);
    const std::string shown = (folder / "shown.png"), original = (folder / "original.png");
    EXPECT_EQ(SUTextureWriteToFile(opened.texture(), shown.c_str()), SU_ERROR_NONE);
    EXPECT_EQ(SUTextureWriteOriginalToFile(opened.texture(), original.c_str()), SU_ERROR_NONE);
    EXPECT_EQ(image::decode_picture(read_back(shown))->bytes(), (std::vector<std::uint8_t>{158, 156, 147}));
    EXPECT_EQ(read_back(original), stored);
}

TEST(Texture, that_is_damaged_fails_and_leaves_no_file) {
    const temporary_folder folder;
    std::vector<std::uint8_t> stored = file_of(noise(9, 5), image::picture_format::png);
    stored.resize(60);
    model_builder builder;
    builder.textured_material("Cut", stored, "cut.png", 10, 20);
    builder.textured_material("Words", {'w', 'o', 'r', 'd', 's'}, "words.png", 10, 20);
    test_model opened(builder);
    for (const sketchup::index texture : {0u, 1u}) {
        EXPECT_EQ(SUTextureWriteToFile(opened.texture(texture), (folder / "a.jpg").c_str()), SU_ERROR_SERIALIZATION);
        EXPECT_FALSE(std::filesystem::exists((folder / "a.jpg")));
    }
    size_t width = 7, height = 7;
    double s = 7, t = 7;
    EXPECT_EQ(SUTextureGetDimensions(opened.texture(1), &width, &height, &s, &t), SU_ERROR_GENERIC);
    EXPECT_EQ(width + height, 14u);
}

TEST(Texture, is_not_written_under_an_extension_that_is_not_known) {
    const temporary_folder folder;
    model_builder builder;
    builder.textured_material("Brick", file_of(noise(9, 5), image::picture_format::png), "brick.png", 10, 20);
    test_model opened(builder);
    for (const char* name : {"a.psd", "a.gif", "a", "no/folder.png"}) {
        EXPECT_EQ(SUTextureWriteToFile(opened.texture(), (folder / name).c_str()), SU_ERROR_SERIALIZATION) << name;
        EXPECT_FALSE(std::filesystem::exists((folder / name))) << name;
    }
}

TEST(TextureFromPixels, writes_its_pixels_with_the_first_row_on_top) {
    const temporary_folder folder;
    // Two rows of one pixel, blue first, padded to 4 bytes: red above green.
    const SUByte pixels[] = {0, 0, 255, 99, 0, 255, 0, 99};
    SUTextureRef texture = SU_INVALID;
    ASSERT_EQ(SUTextureCreateFromImageData(&texture, 1, 2, 24, pixels), SU_ERROR_NONE);
    EXPECT_EQ(SUTextureWriteToFile(texture, (folder / "a.png").c_str()), SU_ERROR_NONE);
    EXPECT_EQ(image::decode_picture(read_back((folder / "a.png")))->bytes(),
              (std::vector<std::uint8_t>{0, 0, 255, 0, 255, 0}));
    EXPECT_EQ(SUTextureWriteToFile(texture, (folder / "a.gif").c_str()), SU_ERROR_SERIALIZATION);
    SUTextureRelease(&texture);
}

TEST(TextureFromFile, has_the_tile_size_that_was_asked_for) {
    const temporary_folder folder;
    ASSERT_TRUE(image::write_picture((folder / "lake.png"), noise(20, 10)));
    SUTextureRef texture = SU_INVALID;
    ASSERT_EQ(SUTextureCreateFromFile(&texture, (folder / "lake.png").c_str(), 8, 4), SU_ERROR_NONE);
    size_t width = 0, height = 0;
    double s = 0, t = 0;
    EXPECT_EQ(SUTextureGetDimensions(texture, &width, &height, &s, &t), SU_ERROR_NONE);
    EXPECT_EQ(width, 20u);
    EXPECT_EQ(height, 10u);
    EXPECT_EQ(s, 0.125);
    EXPECT_EQ(t, 0.25);
    EXPECT_EQ(text_from(SUTextureGetFileName, texture), "lake.png");
    EXPECT_EQ(SUTextureRelease(&texture), SU_ERROR_NONE);
}

TEST(TextureFromFile, needs_a_picture) {
    const temporary_folder folder;
    folder.write("words.png", "words");
    SUTextureRef texture = SU_INVALID;
    EXPECT_EQ(SUTextureCreateFromFile(&texture, (folder / "words.png").c_str(), 1, 1), SU_ERROR_SERIALIZATION);
    EXPECT_EQ(SUTextureCreateFromFile(&texture, (folder / "missing.png").c_str(), 1, 1), SU_ERROR_SERIALIZATION);
    EXPECT_FALSE(SUIsValid(texture));
}
