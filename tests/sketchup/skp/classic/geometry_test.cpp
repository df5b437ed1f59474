#include "sketchup/model/model.h"
#include "sketchup/skp/format_error.h"
#include "sketchup/skp/read_model.h"
#include "tests/sketchup/skp/classic/classic_bytes.h"
#include "tests/support/page_examples.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <string>
#include <vector>

namespace {

using classic::assembler;
using classic::small_model;

// Slots: face 6, loop 8, uses 10, 16, 19, edges 12, 17, 20, vertices 14, 15, 18. The third edge runs against the loop.
struct triangle_parts {
    unsigned loop_of_third_use = 8;
    unsigned first_listed_edge = 12;
};

assembler triangle(const small_model& around, const triangle_parts& parts = {}) {
    assembler a = around.empty;
    a.u32(4).new_class("CFace").drawing().v3(0, 0, 1).f64(-5).u32(1); // z = 5, one loop
    a.new_class("CLoop").entity().u8(1).u8(1);
    a.new_class("CEdgeUse").entity().new_class("CEdge").drawing();
    a.new_class("CVertex").entity().v3(0, 0, 5).new_of(13).entity().v3(1, 0, 5).null().u8(0).ref(8);
    a.new_of(9).entity().new_of(11).drawing().ref(15).new_of(13).entity().v3(0, 1, 5).null().u8(0).ref(8);
    a.new_of(9).entity().new_of(11).drawing().ref(14).ref(18).null().u8(1).ref(parts.loop_of_third_use);
    a.null().null(); // end of the loop, no back material
    return a.ref(parts.first_listed_edge).ref(17).ref(20);
}

std::string message_of(const small_model& small) {
    try {
        skp::read_model(small.file());
    } catch (const skp::format_error& e) {
        return e.what();
    }
    return "";
}

bool ends_with(const std::string& text, const std::string& end) {
    return text.size() >= end.size() && text.compare(text.size() - end.size(), end.size(), end) == 0;
}

} // namespace

TEST(ClassicGeometry, a_face_gives_its_loop_edges_and_vertices) {
    small_model small;
    small.entities = triangle(small);
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->root.faces.size(), 1u);
    const sketchup::face& f = m->faces[m->root.faces[0]];
    EXPECT_EQ(f.plane, (sketchup::plane{0, 0, 1, -5}));
    EXPECT_EQ(f.loops.count, 1u);
    EXPECT_EQ(f.material, sketchup::no_index);
    EXPECT_EQ(f.back_material, sketchup::no_index);
    const sketchup::loop& l = m->loops[f.loops.first];
    ASSERT_EQ(l.uses.count, 3u);
    EXPECT_FALSE(m->edge_uses[l.uses.first].reversed);
    EXPECT_TRUE(m->edge_uses[l.uses.first + 2].reversed);
    const sketchup::edge& third = m->edges[m->edge_uses[l.uses.first + 2].edge];
    EXPECT_EQ(m->vertices[third.start].position, (sketchup::vec3{0, 0, 5}));
    EXPECT_EQ(m->vertices[third.end].position, (sketchup::vec3{0, 1, 5}));
    EXPECT_EQ(m->vertices.size(), 3u);
}

TEST(ClassicGeometry, an_edge_written_inside_a_face_stands_where_the_list_names_it) {
    small_model small;
    small.entities = triangle(small, {.first_listed_edge = 20});
    const auto m = skp::read_model(small.file());
    EXPECT_EQ(m->root.edges, (std::vector<sketchup::index>{2, 1, 2}));
}

TEST(ClassicGeometry, soft_smooth_and_hidden_are_flags_of_the_edge) {
    small_model small;
    small.entities.bytes.clear();
    small.entities.u32(1).new_class("CEdge").entity().null().u8(1).u8(1).u8(1).u8(1).u8(0).u8(0).null();
    small.entities.new_class("CVertex").entity().v3(0, 0, 0).new_of(7).entity().v3(1, 0, 0).null();
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->edges.size(), 1u);
    EXPECT_TRUE(m->edges[0].hidden);
    EXPECT_TRUE(m->edges[0].soft);
    EXPECT_FALSE(m->edges[0].smooth);
    EXPECT_EQ(m->edges[0].layer, 0u);
}

TEST(ClassicGeometry, an_edge_use_must_name_the_loop_that_holds_it) {
    small_model small;
    small.entities = triangle(small, {.loop_of_third_use = 6});
    EXPECT_TRUE(ends_with(message_of(small), "CEdgeUse: the loop of an edge use is not the one that holds it"));
}

TEST(ClassicGeometry, a_vertex_cannot_be_something_else) {
    small_model small;
    small.entities.bytes.clear();
    small.entities.u32(1).new_class("CEdge").drawing().ref(4);
    EXPECT_TRUE(ends_with(message_of(small), "CEdge: expected CVertex, found CLayer"));
    small.entities.bytes.clear();
    small.entities.u32(1).new_class("CEdge").drawing().null();
    EXPECT_TRUE(ends_with(message_of(small), "CEdge: expected CVertex, found null"));
}

TEST(ClassicGeometry, a_loop_without_edges_and_a_face_without_loops_are_refused) {
    small_model small;
    small.entities.bytes.clear();
    small.entities.u32(1).new_class("CFace").drawing().zeros(32).u32(1).new_class("CLoop").entity().u8(1).u8(1).null();
    EXPECT_TRUE(ends_with(message_of(small), "CLoop: a loop without edges"));
    small.entities.bytes.clear();
    small.entities.u32(1).new_class("CFace").drawing().zeros(32).u32(0).null();
    EXPECT_TRUE(ends_with(message_of(small), "CFace: a face without a loop"));
}

TEST(ClassicGeometry, a_loop_belongs_to_one_face) {
    small_model small;
    small.entities = triangle(small);
    small.entities.bytes[0] = 5;
    small.entities.new_of(5).drawing().zeros(32).u32(1).ref(8).null();
    EXPECT_TRUE(ends_with(message_of(small), "CFace: CLoop in slot 8 belongs to something else"));
}

TEST(ClassicGeometry, an_old_curve_may_introduce_the_edges_that_refer_to_it) {
    small_model small;
    small.set_number("CCurve", 3);
    small.entities.bytes.clear();
    assembler& a = small.entities;
    a.u32(2).new_class("CEdge").drawing();                                      // 6
    a.new_class("CVertex").entity().v3(0, 0, 0).new_of(7).entity().v3(1, 0, 0); // 8, 9
    a.new_class("CCurve").entity().ref(6);                                      // 11, its first edge
    a.new_of(5).drawing().ref(9).new_of(7).entity().v3(2, 1, 0).ref(11);        // 12, its last edge
    a.u8(1).u32(2);
    a.ref(12);
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->edges.size(), 2u);
    ASSERT_EQ(m->curves.size(), 1u);
    EXPECT_EQ(m->edges[0].curve, 0u);
    EXPECT_EQ(m->edges[1].curve, 0u);
    EXPECT_TRUE(m->curves[0].is_polygon);
    EXPECT_FALSE(m->curves[0].is_arc);
    EXPECT_EQ(m->edges[1].start, m->edges[0].end);
}

TEST(ClassicGeometry, an_arc_has_its_axes_and_angles) {
    small_model small;
    small.entities.bytes.clear();
    assembler& a = small.entities;
    a.u32(1).new_class("CEdge").drawing();
    a.new_class("CVertex").entity().v3(0, 0, 0).new_of(7).entity().v3(1, 0, 0);
    a.new_class("CArcCurve").entity().u8(0).u32(1);
    a.v3(1, 2, 3).v3(0, 0, 1).v3(4, 0, 0).f64(0.5).f64(1.5).v3(0, 4, 0);
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->curves.size(), 1u);
    const sketchup::curve& c = m->curves[0];
    EXPECT_TRUE(c.is_arc);
    EXPECT_EQ(c.center, (sketchup::vec3{1, 2, 3}));
    EXPECT_EQ(c.normal, (sketchup::vec3{0, 0, 1}));
    EXPECT_EQ(c.x_axis, (sketchup::vec3{4, 0, 0}));
    EXPECT_EQ(c.y_axis, (sketchup::vec3{0, 4, 0}));
    EXPECT_EQ(c.start_angle, 0.5);
    EXPECT_EQ(c.end_angle, 1.5);
}

TEST(ClassicGeometry, the_texture_mapping_of_a_face_stands_among_its_attributes) {
    small_model small;
    small.entities.bytes.clear();
    assembler& a = small.entities;
    a.u32(1).new_class("CFace");
    a.new_class("CAttributeContainer").entity().new_class("CFaceTextureCoords").entity().u32(0);
    for (const double n : {2.0, 0.0, 0.0, 0.0, 3.0, 0.0, 0.0, 0.0, 1.0})
        a.f64(n);
    a.v3(0, 0, 1).zeros(9 * 8).v3(0, 0, -1);
    a.u32(1).zeros(4 * 8).u32(0); // one pin in front, none behind
    a.u32(3).u32(0).null();       // front positioned and projected, back not in use
    a.drawing_behind_entity().v3(0, 0, 1).f64(0).u32(1).new_class("CLoop").entity().u8(1).u8(1); // loop 12
    a.new_class("CEdgeUse").entity().new_class("CEdge").drawing();
    a.new_class("CVertex").entity().v3(0, 0, 0).new_of(17).entity().v3(1, 0, 0).null().u8(0).ref(12).null().null();
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->faces.size(), 1u);
    ASSERT_EQ(m->faces[0].texture_mapping, 0u);
    const sketchup::texture_mapping& mapping = m->texture_mappings[0];
    EXPECT_TRUE(mapping.front.positioned);
    EXPECT_TRUE(mapping.front.projected);
    EXPECT_EQ(mapping.front.matrix[0], 2);
    EXPECT_EQ(mapping.front.matrix[4], 3);
    EXPECT_EQ(mapping.front.direction, (sketchup::vec3{0, 0, 1}));
    EXPECT_FALSE(mapping.back.positioned);
    EXPECT_EQ(mapping.back.direction, (sketchup::vec3{0, 0, -1}));
}

TEST(ClassicGeometry, every_cut_of_a_face_is_refused) {
    small_model small;
    small.entities = triangle(small);
    const std::vector<std::uint8_t> file = small.file();
    ASSERT_NO_THROW(skp::read_model(file));
    for (std::size_t size = 0; size < file.size(); ++size)
        EXPECT_THROW(skp::read_model({file.begin(), file.begin() + static_cast<std::ptrdiff_t>(size)}),
                     skp::format_error)
            << size;
}

TEST(ClassicGeometry, the_edge_of_the_documentation_is_read_as_it_says) {
    constexpr int with_persistent_ids = 5;
    small_model small(with_persistent_ids);
    small.entities.bytes = page_bytes("skp-classic.md");
    const auto m = skp::read_model(small.file());
    ASSERT_EQ(m->root.edges.size(), 1u);
    const sketchup::edge& e = m->edges[m->root.edges[0]];
    EXPECT_EQ(e.persistent_id, 298);
    EXPECT_FALSE(e.hidden);
    EXPECT_TRUE(e.casts_shadows);
    EXPECT_TRUE(e.receives_shadows);
    EXPECT_TRUE(e.soft);
    EXPECT_TRUE(e.smooth);
    EXPECT_EQ(e.curve, sketchup::no_index);
    EXPECT_EQ(m->vertices[e.start].position, (sketchup::vec3{0, 0, 0}));
    EXPECT_EQ(m->vertices[e.end].position, (sketchup::vec3{1, 0, 0}));
}
