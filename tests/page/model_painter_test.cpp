// Small models as our own rasteriser draws them.

#include "tools/raster/model_painter.h"

#include "image/encode_picture.h"
#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/classic_writer.h"
#include "tests/support/temporary_folder.h"

#include <gtest/gtest.h>

namespace {

// The square of 40 inches about the origin, from above, in 4x4 pixels; the row of the greatest y comes first.
image::picture drawn(sketchup::model_builder& builder, const std::string& work_file_name = "work.png") {
    const temporary_folder folder;
    const auto bytes = skp::write_classic(*builder.finish(), skp::classic_version::v17);
    const std::string file = folder.write("model.skp", {reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    view seen;
    seen.eye = {0, 0, 100};
    seen.up = {0, 1, 0};
    seen.perspective = false;
    seen.height = 40;
    rasterizer picture(seen, 4, 4, 1, std::nullopt);
    SUModelRef model = SU_INVALID;
    EXPECT_EQ(SUModelCreateFromFile(&model, file.c_str()), SU_ERROR_NONE);
    model_painter(model, texture_source::material, folder / work_file_name, picture).draw();
    SUModelRelease(&model);
    return picture.drawn();
}

int alpha(const image::picture& picture, std::uint32_t row, std::size_t column) {
    return picture.row(row)[4 * column + 3];
}

std::vector<std::uint8_t> two_by_two() {
    return image::encode_picture(*image::picture::make({2, 2, 24}), image::picture_format::png);
}

// The picture has 2 pixels a side, the rectangle 20 inches.
TEST(ModelPainter, an_image_lies_on_the_face_of_its_definition_however_many_pixels_it_has) {
    sketchup::model_builder builder;
    builder.root().image(builder.image_definition(two_by_two(), "cat.png", 20, 20), sketchup::identity_transform);
    const image::picture picture = drawn(builder);
    EXPECT_EQ(alpha(picture, 0, 3), 255); // the middle of that pixel is at 15, 15
    EXPECT_EQ(alpha(picture, 3, 0), 0);
}

TEST(ModelPainter, where_the_default_layer_is_off_what_is_on_it_follows_the_layer_around) {
    sketchup::model_builder builder;
    builder.model().layers[0].hidden = true;
    sketchup::list_builder shown = builder.root().group("shown");
    shown.square(20);
    builder.placement(shown.placement()).layer = builder.layer("On");
    EXPECT_EQ(alpha(drawn(builder), 0, 3), 255);
}

TEST(ModelPainter, what_is_loose_on_a_default_layer_that_is_off_is_not_drawn) {
    sketchup::model_builder builder;
    builder.model().layers[0].hidden = true;
    builder.root().square(20);
    EXPECT_EQ(alpha(drawn(builder), 0, 3), 0);
}

TEST(ModelPainter, a_picture_is_fetched_where_the_name_of_the_file_is_not_ascii) {
    sketchup::model_builder builder;
    const auto clear = image::picture::make({1, 1, 32}); // all of it is 0, alpha too
    const sketchup::index glass = builder.textured_material(
        "Glass", image::encode_picture(*clear, image::picture_format::png), "glass.png", 20, 20);
    builder.face(builder.root().square(20)).material = glass;
    const std::string name = platform::own_from_utf8("b\xc3\xa4ume.png");
    EXPECT_EQ(alpha(drawn(builder, name), 1, 3), 0); // the middle of that pixel is at 15, 5, away from the edges
}

} // namespace
