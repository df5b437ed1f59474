#include "sketchup/model/loop_corners.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace sketchup {
namespace {

// Edges 0: 0 to 1, 1: 2 to 1, 2: 2 to 0; the loop runs 0, 1, 2.
void fill_with_triangle(model& m) {
    m.vertices.resize(3);
    m.vertices[1].position = {4, 5, 6};
    m.edges.resize(3);
    m.edges[0].start = 0;
    m.edges[0].end = 1;
    m.edges[1].start = 2;
    m.edges[1].end = 1;
    m.edges[2].start = 2;
    m.edges[2].end = 0;
    m.edge_uses = {{0, false, 0}, {1, true, 0}, {2, false, 0}};
}

TEST(LoopCorners, a_reversed_step_leaves_from_the_end_of_its_edge) {
    model m;
    fill_with_triangle(m);
    std::vector<index> corners = {9};
    append_loop_corners(m, loop{{0, 3}}, corners);
    EXPECT_THAT(corners, testing::ElementsAre(9, 0, 1, 2));
    EXPECT_EQ(corner_position(m, 1), (vec3{4, 5, 6}));
}

TEST(LoopCorners, a_missing_edge_or_vertex_gives_no_vertex_and_no_position) {
    model m;
    fill_with_triangle(m);
    m.edge_uses[0].edge = no_index;
    m.edges[1].end = no_index;
    EXPECT_EQ(corner_vertex(m, 0), no_index);
    EXPECT_EQ(corner_vertex(m, 1), no_index);
    EXPECT_NE(corner_position(m, 0).x, corner_position(m, 0).x) << "no number equals itself not";
    EXPECT_NE(corner_position(m, 1).z, corner_position(m, 1).z);
}

} // namespace
} // namespace sketchup
