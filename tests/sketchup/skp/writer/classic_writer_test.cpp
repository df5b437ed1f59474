// Single features of classic files that a round trip of whole models does not tell apart.

#include "sketchup/skp/writer/classic_writer.h"

#include "sketchup/builder/model_builder.h"
#include "sketchup/skp/read_model.h"
#include "sketchup/skp/writer/classic_bodies.h"

#include <gtest/gtest.h>

#include <string>
#include <variant>
#include <vector>

namespace {

using namespace sketchup;

std::unique_ptr<model> round_trip(const model& m, skp::classic_version version = skp::classic_version::v17) {
    return skp::read_model(skp::write_classic(m, version));
}

const typed_value* option(const rendering_options& options, const std::string& name) {
    for (const attribute& a : options.values)
        if (a.key == name)
            return &a.value;
    return nullptr;
}

} // namespace

TEST(ClassicWriter, each_version_bears_its_stamp) {
    const auto m = model_builder().finish();
    EXPECT_EQ(round_trip(*m, skp::classic_version::v6)->version, (version_number{6, 0, 1}));
    EXPECT_EQ(round_trip(*m, skp::classic_version::v8)->version, (version_number{8, 0, 1}));
    EXPECT_EQ(round_trip(*m, skp::classic_version::v17)->version, (version_number{17, 0, 1}));
    EXPECT_EQ(round_trip(*m, skp::classic_version::v20)->version, (version_number{20, 0, 1}));
}

TEST(ClassicWriter, options_that_are_not_set_have_their_usual_values) {
    model_builder m;
    m.set_option("DrawGround", truth(true));
    const auto read = round_trip(*m.finish());
    ASSERT_NE(option(read->rendering_options, "DrawGround"), nullptr);
    EXPECT_EQ(*option(read->rendering_options, "DrawGround"), truth(true));
    EXPECT_EQ(*option(read->rendering_options, "DrawHorizon"), truth(false));
    EXPECT_EQ(*option(read->rendering_options, "RenderMode"), whole_number(2));
    EXPECT_EQ(*option(read->rendering_options, "FaceBackColor"),
              (typed_value{value_code::color, rgba{164, 178, 187, 255}}));
}

TEST(ClassicWriter, a_material_that_only_an_image_uses_is_not_listed) {
    model_builder m;
    m.root().image(m.image_definition({'B', 'M'}, "picture.bmp", 4, 3));
    const auto read = round_trip(*m.finish());
    EXPECT_TRUE(read->listed_materials.empty());
    const face& rectangle = read->faces.at(0);
    EXPECT_EQ(read->materials.at(rectangle.material).name, "picture.bmp");
    EXPECT_EQ(rectangle.material, rectangle.back_material);
}

TEST(ClassicWriter, a_scene_keeps_an_empty_list_of_hidden_layers) {
    model_builder m;
    m.model().scenes[m.scene("all shown")].flags = 32;
    const auto read = round_trip(*m.finish());
    EXPECT_EQ(read->scenes.at(0).flags, 32u);
    EXPECT_TRUE(read->scenes[0].hidden_layers.empty());
}

TEST(ClassicWriter, a_scene_without_a_camera_does_not_claim_to_keep_one) {
    model_builder m;
    m.model().scenes[m.scene("nothing kept")].flags = 1 | 2 | 4 | 0x100;
    EXPECT_EQ(round_trip(*m.finish())->scenes.at(0).flags, 0x100u);
}

TEST(ClassicWriter, attributes_with_an_empty_key_are_left_out) {
    model_builder m;
    m.attribute(m.root().list(), "d", "", whole_number(1));
    m.attribute(m.root().list(), "d", "kept", whole_number(2));
    const auto read = round_trip(*m.finish());
    ASSERT_EQ(read->root.dictionaries.count, 1u);
    EXPECT_EQ(read->dictionaries[read->root.dictionaries.first].entries,
              (std::vector<attribute>{{"kept", whole_number(2)}}));
}

namespace {

// Whether the outline of a face through these points, which lies level, counts as convex.
bool outline_is_convex(std::initializer_list<vec3> points) {
    model_builder m;
    const face& made = m.face(m.root().face(points));
    return skp::is_convex(m.model(), m.model().loops[made.loops.first], made.plane.normal(), true);
}

} // namespace

TEST(ClassicWriter, a_square_is_convex_seen_from_either_side) {
    EXPECT_TRUE(outline_is_convex({{0, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}}));
    EXPECT_TRUE(outline_is_convex({{0, 2, 0}, {2, 2, 0}, {2, 0, 0}, {0, 0, 0}}));
}

TEST(ClassicWriter, an_angle_a_straight_corner_and_a_star_are_not_convex) {
    EXPECT_FALSE(outline_is_convex({{0, 0, 0}, {2, 0, 0}, {2, 1, 0}, {1, 1, 0}, {1, 2, 0}, {0, 2, 0}}));
    EXPECT_FALSE(outline_is_convex({{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {2, 2, 0}, {0, 2, 0}}));
    EXPECT_FALSE(outline_is_convex({{0, 10, 0}, {-6, -8, 0}, {9, 3, 0}, {-9, 3, 0}, {6, -8, 0}}));
}

TEST(ClassicWriter, a_square_hole_is_convex_though_it_runs_the_other_way_round) {
    model_builder m;
    const std::vector<vec3> outline = {{0, 0, 0}, {9, 0, 0}, {9, 9, 0}, {0, 9, 0}};
    const std::vector<std::vector<vec3>> holes = {{{1, 1, 0}, {2, 1, 0}, {2, 2, 0}, {1, 2, 0}}};
    const face& made = m.face(m.root().face(outline, holes));
    EXPECT_TRUE(skp::is_convex(m.model(), m.model().loops[made.loops.first + 1], made.plane.normal(), false));
}
