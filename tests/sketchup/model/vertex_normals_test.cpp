#include "sketchup/model/vertex_normals.h"

#include "shapes.h"
#include "sketchup/model/loop_corners.h"
#include "sketchup/model/vector_math.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <numbers>

namespace sketchup {
namespace {

using test::points;
using test::shapes;

void expect_near(const vec3& actual, const vec3& expected, double tolerance = 1e-12) {
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
    EXPECT_NEAR(actual.z, expected.z, tolerance);
}

// The normal of a face at the vertex at `p`, through its mesh.
vec3 normal_at(const model& m, index face_number, const vec3& p) {
    const face& f = m.faces[face_number];
    face_mesh mesh;
    tessellator().triangulate(m, f, mesh);
    std::vector<vec3> normals;
    vertex_normals(m).of_mesh(f, mesh, normals);
    EXPECT_EQ(normals.size(), mesh.vertices.size());
    for (std::size_t i = 0; i < normals.size(); ++i) {
        if (mesh.vertices[i] == p) {
            return normals[i];
        }
    }
    ADD_FAILURE() << "no such vertex";
    return {};
}

// Two squares that meet at a right angle along the y axis: 0 on the ground looking up, 1 upright looking to +x … or, if
// inconsistent, to -x.
void add_step(shapes& s, bool consistent) {
    s.face(points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, {0, 0, 1});
    if (consistent) {
        s.face(points{{0, 0, 0}, {0, 1, 0}, {0, 1, 1}, {0, 0, 1}}, {1, 0, 0});
    } else {
        s.face(points{{0, 0, 0}, {0, 0, 1}, {0, 1, 1}, {0, 1, 0}}, {-1, 0, 0});
    }
}

const double half = std::sqrt(0.5);

TEST(VertexNormals, hard_edges_leave_the_normals_of_the_faces) {
    shapes s;
    add_step(s, true);
    EXPECT_EQ(normal_at(s.model, 0, {0, 0, 0}), (vec3{0, 0, 1}));
    EXPECT_EQ(normal_at(s.model, 1, {0, 0, 0}), (vec3{1, 0, 0}));
}

TEST(VertexNormals, an_edge_that_is_soft_but_not_smooth_counts_as_hard) {
    shapes s;
    add_step(s, true);
    s.model.edges[s.edge({0, 0, 0}, {0, 1, 0})].soft = true;
    EXPECT_EQ(normal_at(s.model, 0, {0, 0, 0}), (vec3{0, 0, 1}));
}

TEST(VertexNormals, both_ends_of_a_smooth_edge_share_a_normal_and_other_corners_don_t) {
    shapes s;
    add_step(s, true);
    s.smooth({0, 0, 0}, {0, 1, 0});
    for (const index f : {0U, 1U}) {
        expect_near(normal_at(s.model, f, {0, 0, 0}), {half, 0, half});
        expect_near(normal_at(s.model, f, {0, 1, 0}), {half, 0, half});
    }
    EXPECT_EQ(normal_at(s.model, 0, {1, 0, 0}), (vec3{0, 0, 1}));
}

TEST(VertexNormals, a_neighbour_that_looks_the_other_way_is_turned_for_the_sum_and_gets_the_sum_turned_back) {
    shapes s;
    add_step(s, false);
    s.smooth({0, 0, 0}, {0, 1, 0});
    expect_near(normal_at(s.model, 0, {0, 0, 0}), {half, 0, half});
    expect_near(normal_at(s.model, 1, {0, 0, 0}), {-half, 0, -half});
}

TEST(VertexNormals, faces_weigh_by_their_angle_at_the_vertex) {
    shapes s;
    // The ground has a right angle at the origin, the upright triangle one of 45 degrees.
    s.face(points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, {0, 0, 1});
    s.face(points{{0, 0, 0}, {0, 1, 0}, {0, 1, 1}}, {1, 0, 0});
    s.smooth({0, 0, 0}, {0, 1, 0});
    expect_near(normal_at(s.model, 0, {0, 0, 0}), vec3{1, 0, 2} / std::sqrt(5.0));
    expect_near(normal_at(s.model, 0, {0, 1, 0}), vec3{half, 0, half});
}

TEST(VertexNormals, an_angle_of_more_than_half_a_turn_weighs_as_what_it_is) {
    shapes s;
    // An L whose inner corner is the origin: 270 degrees against the square's 90.
    s.face(points{{0, 0, 0}, {0, 1, 0}, {-1, 1, 0}, {-1, -1, 0}, {1, -1, 0}, {1, 0, 0}}, {0, 0, 1});
    s.face(points{{0, 0, 0}, {0, 0, 1}, {0, 1, 1}, {0, 1, 0}}, {-1, 0, 0});
    s.smooth({0, 0, 0}, {0, 1, 0});
    expect_near(normal_at(s.model, 0, {0, 0, 0}), vec3{-1, 0, 3} / std::sqrt(10.0));
}

// The three faces of a cube's corner at the origin, looking outwards: x = 0, y = 0, z = 0.
void add_cube_corner(shapes& s) {
    s.face(points{{0, 0, 0}, {0, 0, 1}, {0, 1, 1}, {0, 1, 0}}, {-1, 0, 0});
    s.face(points{{0, 0, 0}, {1, 0, 0}, {1, 0, 1}, {0, 0, 1}}, {0, -1, 0});
    s.face(points{{0, 0, 0}, {0, 1, 0}, {1, 1, 0}, {1, 0, 0}}, {0, 0, -1});
}

TEST(VertexNormals, a_fan_is_crossed_through_several_smooth_edges) {
    shapes s;
    add_cube_corner(s);
    s.smooth({0, 0, 0}, {0, 0, 1});
    s.smooth({0, 0, 0}, {1, 0, 0});
    for (const index f : {0U, 1U, 2U}) {
        expect_near(normal_at(s.model, f, {0, 0, 0}), vec3{-1, -1, -1} / std::sqrt(3.0));
    }
}

TEST(VertexNormals, a_hard_edge_parts_a_fan) {
    shapes s;
    add_cube_corner(s);
    s.smooth({0, 0, 0}, {0, 0, 1});
    expect_near(normal_at(s.model, 0, {0, 0, 0}), {-half, -half, 0});
    expect_near(normal_at(s.model, 1, {0, 0, 0}), {-half, -half, 0});
    EXPECT_EQ(normal_at(s.model, 2, {0, 0, 0}), (vec3{0, 0, -1}));
}

TEST(VertexNormals, faces_that_touch_in_a_vertex_alone_share_nothing) {
    shapes s;
    add_step(s, true);
    s.smooth({0, 0, 0}, {0, 1, 0});
    s.face(points{{0, 0, 0}, {-1, 0, 0}, {-1, 0, -1}}, {0, 1, 0});
    EXPECT_EQ(normal_at(s.model, 2, {0, 0, 0}), (vec3{0, 1, 0}));
}

TEST(VertexNormals, a_smooth_edge_with_a_single_face_changes_nothing) {
    shapes s;
    add_step(s, true);
    s.smooth({1, 0, 0}, {1, 1, 0});
    EXPECT_EQ(normal_at(s.model, 0, {1, 0, 0}), (vec3{0, 0, 1}));
}

TEST(VertexNormals, normals_that_cancel_out_leave_those_of_the_faces) {
    shapes s;
    s.face(points{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {0, 0, 1});
    // The same triangle folded back upon itself.
    s.face(points{{0, 0, 0}, {0, 1, 0}, {1, 0, 0}}, {0, 0, -1});
    s.smooth({0, 0, 0}, {1, 0, 0});
    EXPECT_EQ(normal_at(s.model, 0, {0, 0, 0}), (vec3{0, 0, 1}));
    EXPECT_EQ(normal_at(s.model, 1, {0, 0, 0}), (vec3{0, 0, -1}));
}

TEST(VertexNormals, a_missing_vertex_spoils_no_other_face) {
    shapes s;
    add_step(s, true);
    s.smooth({0, 0, 0}, {0, 1, 0});
    s.model.edges[s.edge({0, 1, 1}, {0, 0, 1})].start = no_index;
    const vertex_normals normals(s.model);
    const vec3 n = normals.at(s.model.faces[0], 0);
    EXPECT_TRUE(is_finite(n));
    EXPECT_NEAR(length(n), 1, 1e-12);
}

// Built straight into the arrays: the shapes' search for shared edges would be quadratic here.
TEST(VertexNormals, a_cone_of_three_hundred_thousand_faces_is_smoothed_in_linear_time) {
    constexpr index count = 300'000;
    model m;
    m.vertices.resize(count + 1);
    m.edges.resize(2 * count);
    for (index i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * i / count;
        m.vertices[i + 1].position = {std::cos(angle), std::sin(angle), -1};
        m.edges[i].start = 0;
        m.edges[i].end = i + 1;
        m.edges[i].smooth = true;
        m.edges[count + i].start = i + 1;
        m.edges[count + i].end = (i + 1) % count + 1;
        face& f = m.faces.emplace_back();
        f.plane = {std::cos(angle) * half, std::sin(angle) * half, half, 0};
        f.loops = {i, 1};
        m.loops.push_back({{3 * i, 3}});
        m.edge_uses.push_back({i, false, 0});
        m.edge_uses.push_back({count + i, false, 0});
        m.edge_uses.push_back({(i + 1) % count, true, 0});
    }
    const vertex_normals normals(m);
    expect_near(normals.at(m.faces[0], 0), {0, 0, 1}, 1e-9);
    expect_near(normals.at(m.faces[count - 1], 3 * (count - 1)), {0, 0, 1}, 1e-9);
    EXPECT_EQ(corner_vertex(m, 3 * (count - 1)), 0U);
}

} // namespace
} // namespace sketchup
