#include "tests/sketchup/api/test_model.h"

#include "sketchup/api/texture_file_name.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

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
