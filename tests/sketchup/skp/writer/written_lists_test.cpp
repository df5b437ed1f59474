#include "sketchup/skp/writer/written_lists.h"

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/writer/blank_preview.h"
#include "sketchup/skp/writer/written_colors.h"

#include <gtest/gtest.h>

#include <vector>

namespace {

using namespace sketchup;

// A model of one material that is painted with one white pixel.
std::unique_ptr<model> painted_white() {
    const std::span<const std::uint8_t> pixel = skp::blank_preview();
    model_builder m;
    m.textured_material("white", {pixel.begin(), pixel.end()}, "white.png", 1, 1);
    return m.finish();
}

} // namespace

TEST(WrittenLists, an_average_colour_that_the_texture_has_is_kept) {
    const auto m = painted_white();
    m->textures[0].average_color = {1, 2, 3, 0};
    EXPECT_EQ(skp::written_shown_average(*m, m->materials[m->listed_materials[0]]), (rgba{1, 2, 3, 0}));
}

TEST(WrittenLists, a_texture_without_an_average_colour_gets_that_of_its_picture) {
    const auto m = painted_white();
    EXPECT_EQ(skp::written_shown_average(*m, m->materials[m->listed_materials[0]]), (rgba{255, 255, 255, 255}));
}

TEST(WrittenLists, the_average_of_a_recoloured_picture_is_the_colour_wanted) {
    const auto m = painted_white();
    material& one = m->materials[m->listed_materials[0]];
    one.type = material_type::colorized;
    one.color = {200, 100, 50, 0};
    EXPECT_EQ(skp::written_shown_average(*m, one), (rgba{200, 100, 50, 255}));
}

TEST(WrittenLists, a_setting_that_the_interface_does_not_show_has_its_usual_value) {
    const rendering_options none;
    ASSERT_NE(skp::written_option(none, "soft limit"), nullptr);
    EXPECT_NEAR(std::get<double>(skp::written_option(none, "soft limit")->data), 0.349066, 5e-7); // 20 degrees
    EXPECT_EQ(*skp::written_option(none, "fog hint"), whole_number(1));
    EXPECT_EQ(*skp::written_option(none, "X-ray opacity"), real_number(0.65));
    EXPECT_EQ(skp::written_option(none, "no such setting"), nullptr);
}
