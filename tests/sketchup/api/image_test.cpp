#include "tests/sketchup/api/test_model.h"

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
