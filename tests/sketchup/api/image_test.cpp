#include "tests/sketchup/api/test_model.h"

#include "image/encode_picture.h"
#include "tests/image/pictures.h"

#include <gtest/gtest.h>

using sketchup::model_builder;

TEST(Image, is_as_large_as_its_pixels_times_the_scale_of_its_placement) {
    model_builder builder;
    sketchup::transform placed = sketchup::scaled(0.5, 0.25, 1);
    builder.root().image(builder.image_definition({}, "C:\\pictures\\lake.png", 800, 450), placed);
    placed[15] = 0.5; // all lengths doubled
    builder.root().image(0, placed);
    test_model opened(builder);
    double width = 0, height = 0;
    EXPECT_EQ(SUImageGetDimensions(opened.placement<SUImageRef>(0), &width, &height), SU_ERROR_NONE);
    EXPECT_EQ(width, 400);
    EXPECT_EQ(height, 112.5);
    EXPECT_EQ(SUImageGetDimensions(opened.placement<SUImageRef>(1), &width, &height), SU_ERROR_NONE);
    EXPECT_EQ(width, 800);
    EXPECT_EQ(height, 225);
}

TEST(Image, gives_placement_definition_and_the_stored_path_of_its_picture) {
    model_builder builder;
    builder.root().image(builder.image_definition({}, "C:\\pictures\\lake.png", 800, 450), sketchup::moved({1, 2, 3}));
    test_model opened(builder);
    const SUImageRef image = opened.placement<SUImageRef>();
    SUTransformation placed{};
    EXPECT_EQ(SUImageGetTransform(image, &placed), SU_ERROR_NONE);
    EXPECT_EQ(placed.values[13], 2);
    SUComponentDefinitionRef definition = SU_INVALID;
    EXPECT_EQ(SUImageGetDefinition(image, &definition), SU_ERROR_NONE);
    EXPECT_TRUE(same(definition, opened.definition()));
    EXPECT_EQ(text_from(SUImageGetFileName, image), "C:\\pictures\\lake.png");
}

TEST(Image, without_a_picture_has_no_pixels_and_no_name_but_a_size) {
    model_builder builder;
    builder.root().image(builder.image_definition({}, "lake.png", 8, 4));
    for (sketchup::face& f : builder.model().faces)
        f.material = f.back_material = sketchup::no_index;
    test_model opened(builder);
    const SUImageRef image = opened.placement<SUImageRef>();
    size_t width = 7, height = 7, size = 7, bits = 7;
    SUByte byte = 7;
    EXPECT_EQ(SUImageGetPixelDimensions(image, &width, &height), SU_ERROR_NO_DATA);
    EXPECT_EQ(SUImageGetDataSize(image, &size, &bits), SU_ERROR_NO_DATA);
    EXPECT_EQ(SUImageGetData(image, 1, &byte), SU_ERROR_NO_DATA);
    EXPECT_EQ(width + height + size + bits + byte, 35u) << "failed calls leave their outputs alone";
    EXPECT_EQ(text_from(SUImageGetFileName, image), "");
    double inches_wide = 0, inches_high = 0;
    EXPECT_EQ(SUImageGetDimensions(image, &inches_wide, &inches_high), SU_ERROR_NONE);
    EXPECT_EQ(inches_wide, 8);
}

TEST(Image, gives_its_pixels_from_the_top_blue_first_in_rows_of_whole_words) {
    image::picture pixels = *image::picture::make({1, 2, 24});
    pixels.bytes() = {98, 55, 171, 1, 2, 3};
    model_builder builder;
    builder.root().image(
        builder.image_definition(image::encode_picture(pixels, image::picture_format::png), "a.png", 1, 2));
    test_model opened(builder);
    const SUImageRef image = opened.placement<SUImageRef>();
    size_t width = 0, height = 0, size = 0, bits = 0;
    EXPECT_EQ(SUImageGetPixelDimensions(image, &width, &height), SU_ERROR_NONE);
    EXPECT_EQ(width, 1u);
    EXPECT_EQ(height, 2u);
    EXPECT_EQ(SUImageGetDataSize(image, &size, &bits), SU_ERROR_NONE);
    EXPECT_EQ(size, 8u);
    EXPECT_EQ(bits, 24u);
    SUByte data[9] = {7, 7, 7, 7, 7, 7, 7, 7, 7};
    EXPECT_EQ(SUImageGetData(image, 7, data), SU_ERROR_INSUFFICIENT_SIZE);
    EXPECT_EQ(data[0], 7);
    EXPECT_EQ(SUImageGetData(image, 8, data), SU_ERROR_NONE);
    EXPECT_EQ(std::vector<SUByte>(data, data + 9), (std::vector<SUByte>{98, 55, 171, 0, 1, 2, 3, 0, 7}));
}

// The sizes that the host's maker asserts for its own test pictures.
TEST(Image, pads_its_rows_as_the_host_does) {
    struct figures {
        std::uint32_t width, height;
        int bits;
        size_t size;
    };
    for (const figures f : {figures{656, 337, 24, 663216}, figures{16, 16, 24, 768}, figures{17, 17, 24, 17 * 52},
                            figures{604, 453, 32, 604 * 453 * 4}}) {
        model_builder builder;
        builder.root().image(builder.image_definition(
            image::encode_picture(noise(f.width, f.height, f.bits), image::picture_format::png), "a.png", 1, 2));
        test_model opened(builder);
        size_t size = 0, bits = 0;
        EXPECT_EQ(SUImageGetDataSize(opened.placement<SUImageRef>(), &size, &bits), SU_ERROR_NONE);
        EXPECT_EQ(size, f.size);
        EXPECT_EQ(bits, static_cast<size_t>(f.bits));
    }
}

TEST(Image, with_a_damaged_picture_fails_without_touching_the_buffer) {
    std::vector<std::uint8_t> cut = image::encode_picture(noise(40, 40), image::picture_format::png);
    cut.resize(200);
    model_builder builder;
    builder.root().image(builder.image_definition(cut, "a.png", 40, 40));
    builder.root().image(builder.image_definition({'x'}, "b.png", 40, 40));
    test_model opened(builder);
    std::vector<SUByte> data(40 * 40 * 3, 7);
    EXPECT_EQ(SUImageGetData(opened.placement<SUImageRef>(0), data.size(), data.data()), SU_ERROR_SERIALIZATION);
    EXPECT_EQ(SUImageGetData(opened.placement<SUImageRef>(1), data.size(), data.data()), SU_ERROR_GENERIC);
    EXPECT_EQ(data, std::vector<SUByte>(40 * 40 * 3, 7));
    size_t width = 7, height = 7;
    EXPECT_EQ(SUImageGetPixelDimensions(opened.placement<SUImageRef>(1), &width, &height), SU_ERROR_GENERIC);
    EXPECT_EQ(width + height, 14u);
}
