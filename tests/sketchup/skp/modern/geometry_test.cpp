// Vertices, edges, curves and faces of the archive container.

#include "tests/sketchup/skp/modern/record_bytes.h"
#include "tests/support/page_examples.h"

#include <gtest/gtest.h>

using namespace record_bytes;
using sketchup::no_index;
using sketchup::vec3;

namespace {

std::unique_ptr<sketchup::model> read_lists(const bytes& lists) {
    return read_parts(content(lists));
}

bytes flagged_edge(std::uint64_t persistent_id, std::uint8_t flags) {
    return rec(3000, drawing(persistent_id, rec(2003, u8(flags))) + rec(3001, id(1)) + rec(3002, id(2)));
}

bytes two_vertices() {
    return rec(5001, vertex(1, 0, 0) + vertex(2, 1, 0));
}

bytes side(std::int32_t use, const bytes& rest) {
    return rec(10003, rec(10004, i32(use)) + rest);
}

} // namespace

TEST(ModernGeometry, a_square_is_four_vertices_four_edges_and_a_face) {
    const auto m = read_lists(square_lists() + rec(5003, square_face(21)));
    ASSERT_EQ(m->vertices.size(), 4u);
    EXPECT_EQ(m->vertices[2].position, (vec3{10, 10, 0}));
    EXPECT_EQ(m->vertices[2].persistent_id, 3);
    ASSERT_EQ(m->edges.size(), 4u);
    EXPECT_EQ(m->edges[3].start, 3u);
    EXPECT_EQ(m->edges[3].end, 0u);
    EXPECT_EQ(m->edges[3].persistent_id, 14);
    ASSERT_EQ(m->faces.size(), 1u);
    EXPECT_EQ(m->faces[0].persistent_id, 21);
    EXPECT_EQ(m->faces[0].plane, (sketchup::plane{0, 0, 1, 0}));
    EXPECT_EQ(m->root.edges, (std::vector<sketchup::index>{0, 1, 2, 3}));
    EXPECT_EQ(m->root.faces, (std::vector<sketchup::index>{0}));
    ASSERT_EQ(m->loops.size(), 1u);
    ASSERT_EQ(m->loops[0].uses.count, 4u);
    EXPECT_EQ(m->edge_uses[3].edge, 3u);
}

TEST(ModernGeometry, a_second_loop_is_a_hole_and_uses_may_run_backwards) {
    const bytes hole = loop(use(14, true) + use(13, true));
    const auto m = read_lists(
        square_lists() + rec(5003, rec(3500, drawing(21) + rec(3501, plane_up()) + rec(3502, square_loop() + hole))));
    ASSERT_EQ(m->faces.size(), 1u);
    EXPECT_EQ(m->faces[0].loops.count, 2u);
    EXPECT_EQ(m->loops[1].uses.first, 4u);
    EXPECT_EQ(m->loops[1].uses.count, 2u);
    EXPECT_TRUE(m->edge_uses[4].reversed);
    EXPECT_FALSE(m->edge_uses[0].reversed);
}

TEST(ModernGeometry, the_flags_byte_tells_hidden_shadows_soft_and_smooth) {
    const auto m = read_lists(two_vertices() + rec(5002, flagged_edge(11, 0x06) + flagged_edge(12, 0x01) +
                                                             flagged_edge(13, 0x0E) + flagged_edge(14, 0x16)));
    ASSERT_EQ(m->edges.size(), 4u);
    const auto expect = [&m](std::size_t e, bool hidden, bool casts, bool receives, bool soft, bool smooth) {
        EXPECT_EQ(m->edges[e].hidden, hidden) << e;
        EXPECT_EQ(m->edges[e].casts_shadows, casts) << e;
        EXPECT_EQ(m->edges[e].receives_shadows, receives) << e;
        EXPECT_EQ(m->edges[e].soft, soft) << e;
        EXPECT_EQ(m->edges[e].smooth, smooth) << e;
    };
    expect(0, false, true, true, false, false);
    expect(1, true, false, false, false, false);
    expect(2, false, true, true, true, false);
    expect(3, false, true, true, false, true);
}

TEST(ModernGeometry, an_element_without_a_flags_byte_is_visible_and_shadowed) {
    const auto m =
        read_lists(two_vertices() + rec(5002, rec(3000, drawing(11, {}) + rec(3001, id(1)) + rec(3002, id(2)))));
    ASSERT_EQ(m->edges.size(), 1u);
    EXPECT_FALSE(m->edges[0].hidden);
    EXPECT_TRUE(m->edges[0].casts_shadows);
    EXPECT_TRUE(m->edges[0].receives_shadows);
}

TEST(ModernGeometry, edges_name_their_curve) {
    const bytes arc =
        rec(19500, rec(19000, entity(8)) + rec(19501, doubles({1, 2, 3, 0, 0, 1, -3, 5, 0, 0, 0, 5, 0, 5, 0.5, 1.5})));
    const auto m = read_lists(two_vertices() + rec(5014, rec(19000, entity(7) + rec(19002, u8(1)))) + rec(5015, arc) +
                              rec(5002, edge(11, 1, 2, rec(3003, id(8))) + edge(12, 1, 2, rec(3003, id(7))) +
                                            edge(13, 1, 2) + edge(14, 1, 2, rec(3003, id(99)))));
    ASSERT_EQ(m->curves.size(), 2u);
    EXPECT_FALSE(m->curves[0].is_arc);
    EXPECT_TRUE(m->curves[0].is_polygon);
    EXPECT_TRUE(m->curves[1].is_arc);
    EXPECT_EQ(m->curves[1].center, (vec3{1, 2, 3}));
    EXPECT_EQ(m->curves[1].normal, (vec3{0, 0, 1}));
    EXPECT_EQ(m->curves[1].x_axis, (vec3{5, 0, 0}));
    EXPECT_EQ(m->curves[1].y_axis, (vec3{0, 5, 0}));
    EXPECT_EQ(m->curves[1].start_angle, 0.5);
    EXPECT_EQ(m->curves[1].end_angle, 1.5);
    ASSERT_EQ(m->edges.size(), 4u);
    EXPECT_EQ(m->edges[0].curve, 1u);
    EXPECT_EQ(m->edges[1].curve, 0u);
    EXPECT_EQ(m->edges[2].curve, no_index);
    EXPECT_EQ(m->edges[3].curve, no_index);
}

TEST(ModernGeometry, a_face_has_a_material_on_each_side) {
    const bytes painted = rec(3500, drawing(21, rec(2001, id(31)) + rec(2003, u8(6))) + rec(3503, id(32)) +
                                        rec(3501, plane_up()) + rec(3502, square_loop()));
    const auto m = read_parts(materials(rec(13000, entity(31)) + rec(13000, entity(32))) +
                              content(square_lists() + rec(5003, painted + square_face(22))));
    ASSERT_EQ(m->faces.size(), 2u);
    EXPECT_EQ(m->faces[0].material, 0u);
    EXPECT_EQ(m->faces[0].back_material, 1u);
    EXPECT_EQ(m->faces[1].material, no_index);
    EXPECT_EQ(m->faces[1].back_material, no_index);
}

TEST(ModernGeometry, an_unknown_material_is_none_and_an_unknown_layer_the_default_one) {
    const bytes lost = rec(3500, drawing(21, rec(2001, id(31)) + rec(2002, id(41))) + rec(3503, id(32)) +
                                     rec(3501, plane_up()) + rec(3502, square_loop()));
    const auto m =
        read_parts(layers(layer(40, "Layer0") + layer(42, "walls")) + content(square_lists() + rec(5003, lost)));
    ASSERT_EQ(m->faces.size(), 1u);
    EXPECT_EQ(m->faces[0].material, no_index);
    EXPECT_EQ(m->faces[0].back_material, no_index);
    EXPECT_EQ(m->faces[0].layer, 0u);
}

TEST(ModernGeometry, a_face_keeps_how_its_texture_lies) {
    const bytes mapping = rec(10000, rec(14000) +
                                         rec(10001, side(3, rec(10005, doubles({1, 2, 3, 4, 5, 6, 7, 8, 9})) +
                                                                rec(10006, doubles({0, 0, -1})) + rec(10007))) +
                                         rec(10002, side(0, {})));
    const bytes face = rec(3500, rec(2000, entity(21, mapping)) + rec(3501, plane_up()) + rec(3502, square_loop()));
    const auto m = read_lists(square_lists() + rec(5003, square_face(20) + face));
    ASSERT_EQ(m->texture_mappings.size(), 1u);
    ASSERT_EQ(m->faces.size(), 2u);
    EXPECT_EQ(m->faces[0].texture_mapping, no_index);
    EXPECT_EQ(m->faces[1].texture_mapping, 0u);
    const sketchup::texture_mapping& t = m->texture_mappings[0];
    EXPECT_TRUE(t.front.positioned);
    EXPECT_TRUE(t.front.projected);
    EXPECT_EQ(t.front.matrix, (std::array<double, 9>{1, 2, 3, 4, 5, 6, 7, 8, 9}));
    EXPECT_EQ(t.front.direction, (vec3{0, 0, -1}));
    EXPECT_FALSE(t.back.positioned);
    EXPECT_FALSE(t.back.projected);
    EXPECT_TRUE(m->dictionaries.empty());
}

TEST(ModernGeometry, an_edge_with_an_unknown_vertex_is_left_out_and_its_face_too) {
    const auto m = read_lists(rec(5001, vertex(1, 0, 0) + vertex(2, 10, 0) + vertex(3, 10, 10)) +
                              rec(5002, edge(11, 1, 2) + edge(12, 2, 3) + edge(13, 3, 4) + edge(14, 4, 1)) +
                              rec(5003, square_face(21)));
    EXPECT_EQ(m->edges.size(), 2u);
    EXPECT_TRUE(m->faces.empty());
    EXPECT_TRUE(m->root.faces.empty());
    EXPECT_TRUE(m->loops.empty());
    EXPECT_TRUE(m->edge_uses.empty());
}

TEST(ModernGeometry, a_face_whose_hole_has_an_unknown_edge_is_left_out_as_a_whole) {
    const bytes holed =
        rec(3500, drawing(21) + rec(3501, plane_up()) + rec(3502, square_loop() + loop(use(11) + use(99))));
    const auto m = read_lists(square_lists() + rec(5003, holed + square_face(22)));
    ASSERT_EQ(m->faces.size(), 1u);
    EXPECT_EQ(m->faces[0].persistent_id, 22);
    EXPECT_EQ(m->faces[0].loops.first, 0u);
    EXPECT_EQ(m->edge_uses.size(), 4u);
}

TEST(ModernGeometry, a_face_without_loops_or_plane_is_left_out) {
    const bytes faces = rec(3500, drawing(21) + rec(3501, plane_up())) +
                        rec(3500, drawing(22) + rec(3501, plane_up()) + rec(3502)) +
                        rec(3500, drawing(23) + rec(3501, plane_up()) + rec(3502, loop({}))) +
                        rec(3500, drawing(24) + rec(3501, plane_up()) + rec(3502, rec(4500))) +
                        rec(3500, drawing(25) + rec(3502, square_loop()));
    const auto m = read_lists(square_lists() + rec(5003, faces));
    EXPECT_TRUE(m->faces.empty());
    EXPECT_TRUE(m->loops.empty());
}

TEST(ModernGeometry, the_first_of_two_vertices_with_one_id_is_meant) {
    const auto m =
        read_lists(rec(5001, vertex(1, 0, 0) + vertex(1, 5, 5) + vertex(2, 1, 0)) + rec(5002, edge(11, 1, 2)));
    ASSERT_EQ(m->edges.size(), 1u);
    EXPECT_EQ(m->edges[0].start, 0u);
    EXPECT_EQ(m->edges[0].end, 2u);
}

TEST(ModernGeometry, lists_hold_nothing_but_their_items) {
    const auto m = read_lists(rec(5001, rec(99, i32(0)) + vertex(1, 0, 0) + rec(2501) + vertex(2, 1, 0)) +
                              rec(5002, rec(99, i32(0)) + edge(11, 1, 2)) + rec(5003) + rec(5022) + rec(60001));
    EXPECT_EQ(m->vertices.size(), 2u);
    EXPECT_EQ(m->edges.size(), 1u);
}

TEST(ModernGeometry, a_definition_cannot_use_the_vertices_of_another_list) {
    const auto m = read_parts(definitions(definition(50, "a", two_vertices() + rec(5002, edge(11, 1, 2)))) +
                              content(rec(5002, edge(12, 1, 2))));
    EXPECT_EQ(m->edges.size(), 1u);
    EXPECT_TRUE(m->root.edges.empty());
}

TEST(ModernGeometry, ids_follow_the_order_of_the_file) {
    const auto m = read_lists(square_lists() + rec(5003, square_face(21)));
    EXPECT_LT(m->root.id, m->vertices[0].id);
    EXPECT_EQ(m->vertices[3].id, m->vertices[0].id + 3);
    EXPECT_EQ(m->edges[0].id, m->vertices[3].id + 1);
    EXPECT_EQ(m->faces[0].id, m->edges[3].id + 1);
}

TEST(ModernGeometry, the_edge_of_the_documentation_is_read_as_it_says) {
    const auto m = read_lists(page_bytes("skp-modern.md"));
    ASSERT_EQ(m->root.edges.size(), 1u);
    const sketchup::edge& e = m->edges[m->root.edges[0]];
    EXPECT_EQ(e.persistent_id, 298);
    EXPECT_FALSE(e.hidden);
    EXPECT_TRUE(e.casts_shadows);
    EXPECT_TRUE(e.receives_shadows);
    EXPECT_TRUE(e.soft);
    EXPECT_TRUE(e.smooth);
    EXPECT_EQ(m->vertices[e.start].position, (vec3{0, 0, 0}));
    EXPECT_EQ(m->vertices[e.end].position, (vec3{1, 0, 0}));
}
