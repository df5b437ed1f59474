#include "sketchup/skp/writer/written_colors.h"

#include "image/encode_picture.h"
#include "sketchup/builder/model_builder.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

// A picture of one red and one blue pixel, as a PNG file.
std::vector<std::uint8_t> red_and_blue() {
    image::picture pixels = *image::picture::make({2, 1});
    pixels.bytes() = {0, 0, 200, 100, 0, 0}; // blue, green, red of each
    return image::encode_picture(pixels, image::picture_format::png);
}

rgba average_in(model_builder& m) {
    const auto made = m.finish();
    return skp::written_average(*made, made->textures.at(0));
}

} // namespace

TEST(WrittenColors, an_average_that_the_model_has_is_kept) {
    model_builder m;
    m.textured_material("paint", red_and_blue(), "paint.png", 1, 1);
    m.model().textures[0].average_color = {1, 2, 3, 4};
    EXPECT_EQ(average_in(m), (rgba{1, 2, 3, 4}));
}

TEST(WrittenColors, one_that_it_lacks_is_that_of_the_picture) {
    model_builder m;
    m.textured_material("paint", red_and_blue(), "paint.png", 1, 1);
    EXPECT_EQ(average_in(m), (rgba{100, 0, 50, 255})); // (200 + 0) / 2, 0, (0 + 100) / 2
}

TEST(WrittenColors, that_of_a_picture_that_cannot_be_decoded_is_grey) {
    model_builder m;
    m.textured_material("paint", {'B', 'M'}, "paint.bmp", 1, 1);
    EXPECT_EQ(average_in(m), (rgba{128, 128, 128, 255}));
}
