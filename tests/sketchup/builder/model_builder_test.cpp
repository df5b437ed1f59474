#include "sketchup/builder/model_builder.h"

#include "sketchup/skp/link.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <vector>

namespace {

using namespace sketchup;

std::vector<vec3> corners_of(const model& m, sketchup::index loop) {
    std::vector<vec3> corners;
    const index_range uses = m.loops[loop].uses;
    for (sketchup::index i = uses.first; i < uses.first + uses.count; ++i) {
        const edge& e = m.edges[m.edge_uses[i].edge];
        corners.push_back(m.vertices[m.edge_uses[i].reversed ? e.end : e.start].position);
    }
    return corners;
}

} // namespace

TEST(ModelBuilder, a_new_model_has_the_default_layer_alone) {
    const auto m = model_builder().finish();
    ASSERT_EQ(m->layers.size(), 1u);
    EXPECT_EQ(m->layers[0].name, "Layer0");
    EXPECT_TRUE(m->root.faces.empty());
}

TEST(ModelBuilder, a_face_lies_in_the_plane_of_its_outline_and_keeps_its_corners) {
    model_builder m;
    m.root().face({{0, 0, 2}, {0, 3, 2}, {3, 0, 2}}); // clockwise from above: looks down
    EXPECT_EQ(m.model().faces[0].plane, (plane{0, 0, -1, 2}));
    EXPECT_EQ(corners_of(m.model(), 0), (std::vector<vec3>{{0, 0, 2}, {0, 3, 2}, {3, 0, 2}}));
}

TEST(ModelBuilder, a_hole_is_turned_to_run_against_the_outline) {
    model_builder m;
    const std::vector<vec3> outline = {{0, 0, 0}, {9, 0, 0}, {9, 9, 0}};
    const std::vector<std::vector<vec3>> holes = {{{4, 1, 0}, {5, 1, 0}, {5, 2, 0}}}; // the same way round
    m.root().face(outline, holes);
    EXPECT_EQ(corners_of(m.model(), 1), (std::vector<vec3>{{5, 2, 0}, {5, 1, 0}, {4, 1, 0}}));
}

TEST(ModelBuilder, faces_of_a_box_share_their_edges_and_look_outwards) {
    model_builder m;
    m.root().box({0, 0, 0}, {2, 3, 4});
    EXPECT_EQ(m.model().vertices.size(), 8u);
    EXPECT_EQ(m.model().edges.size(), 12u);
    const vec3 center{1, 1.5, 2};
    for (const face& f : m.model().faces)
        EXPECT_LT(f.plane.a * center.x + f.plane.b * center.y + f.plane.c * center.z + f.plane.d, 0);
}

TEST(ModelBuilder, points_of_different_lists_are_different_vertices) {
    model_builder m;
    m.root().edge({0, 0, 0}, {1, 0, 0});
    m.root().group().edge({0, 0, 0}, {1, 0, 0});
    EXPECT_EQ(m.model().vertices.size(), 4u);
    EXPECT_EQ(m.model().edges.size(), 2u);
}

TEST(ModelBuilder, an_arc_runs_from_its_start_to_its_end_about_the_third_axis) {
    model_builder m;
    const double right_angle = 1.5707963267948966;
    const auto edges = m.root().arc({1, 0, 0}, {2, 0, 0}, {0, 2, 0}, 0, right_angle, 2);
    ASSERT_EQ(edges.size(), 2u);
    const edge& last = m.edge(edges[1]);
    EXPECT_NEAR(m.model().vertices[last.end].position.x, 1, 1e-12);
    EXPECT_NEAR(m.model().vertices[last.end].position.y, 2, 1e-12);
    const curve& made = m.model().curves.at(last.curve);
    EXPECT_TRUE(made.is_arc);
    EXPECT_EQ(made.normal, (vec3{0, 0, 1}));
}

TEST(ModelBuilder, dictionaries_of_one_owner_become_neighbours_however_they_were_mixed) {
    model_builder m;
    const entity_place face = m.root().square(1);
    const entity_place layer{entity_kind::layer, m.layer("Walls")};
    m.attribute(face, "first", "key", whole_number(1));
    m.attribute(layer, "other", "key", whole_number(2));
    m.attribute(face, "second", "key", whole_number(3));
    m.attribute(face, "first", "more", text("4"));
    const auto made = m.finish();
    const index_range of_face = made->faces[0].dictionaries;
    ASSERT_EQ(of_face.count, 2u);
    EXPECT_EQ(made->dictionaries[of_face.first].name, "first");
    EXPECT_EQ(made->dictionaries[of_face.first].entries,
              (std::vector<attribute>{{"key", whole_number(1)}, {"more", text("4")}}));
    EXPECT_EQ(made->dictionaries[of_face.first + 1].name, "second");
    EXPECT_EQ(made->dictionaries[made->layers[1].dictionaries.first].name, "other");
}

TEST(ModelBuilder, a_dictionary_can_hold_others) {
    model_builder m;
    const entity_place outer = m.dictionary(m.root().list(), "outer");
    m.attribute(m.dictionary(outer, "middle"), "inner", "key", truth(true));
    const auto made = m.finish();
    const attribute_dictionary& first = made->dictionaries[made->root.dictionaries.first];
    ASSERT_EQ(first.dictionaries.count, 1u);
    const attribute_dictionary& second = made->dictionaries[first.dictionaries.first];
    EXPECT_EQ(second.name, "middle");
    EXPECT_EQ(made->dictionaries[second.dictionaries.first].entries[0].key, "key");
}

TEST(ModelBuilder, attributes_of_a_definition_are_those_of_its_list) {
    model_builder m;
    const list_builder component = m.component("c");
    m.attribute(component.list(), "d", "key", whole_number(1));
    const auto made = m.finish();
    EXPECT_EQ(made->definitions[0].dictionaries.count, 1u);
    EXPECT_EQ(made->definitions[0].entities.dictionaries.count, 1u);
}

TEST(ModelBuilder, a_place_without_attributes_is_refused) {
    model_builder m;
    m.attribute({entity_kind::camera}, "d", "key", whole_number(1));
    EXPECT_THROW(m.finish(), std::invalid_argument);
}

TEST(ModelBuilder, a_mapping_belongs_to_one_face) {
    model_builder m;
    const entity_place first = m.root().square(1);
    const entity_place second = m.root().square(2);
    m.mapping(second).back.positioned = true;
    EXPECT_EQ(m.face(first).texture_mapping, no_index);
    EXPECT_TRUE(m.mapping(second).back.positioned);
    EXPECT_EQ(m.model().texture_mappings.size(), 1u);
}

TEST(ModelBuilder, setting_an_option_again_replaces_it) {
    model_builder m;
    m.set_option("DrawGround", truth(true));
    m.set_option("DrawGround", truth(false));
    EXPECT_EQ(m.model().rendering_options.values, (std::vector<attribute>{{"DrawGround", truth(false)}}));
}

TEST(ModelBuilder, a_finished_model_can_be_linked) {
    model_builder m;
    m.root().group().box({0, 0, 0}, {1, 1, 1});
    const auto made = m.finish();
    skp::link(*made);
    for (const edge& e : made->edges)
        EXPECT_EQ(e.faces.count, 2u);
}
