#include "sketchup/model/bounding_box.h"

#include "shapes.h"
#include "sketchup/model/vector_math.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace sketchup {
namespace {

using test::points;
using test::shapes;

void expect_box(const box& actual, const vec3& minimum, const vec3& maximum) {
    EXPECT_NEAR(actual.minimum.x, minimum.x, 1e-9);
    EXPECT_NEAR(actual.minimum.y, minimum.y, 1e-9);
    EXPECT_NEAR(actual.minimum.z, minimum.z, 1e-9);
    EXPECT_NEAR(actual.maximum.x, maximum.x, 1e-9);
    EXPECT_NEAR(actual.maximum.y, maximum.y, 1e-9);
    EXPECT_NEAR(actual.maximum.z, maximum.z, 1e-9);
}

transform moved(double x, double y, double z) {
    return {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, x, y, z, 1};
}

const double half = std::sqrt(0.5);
// An eighth of a turn about the z axis.
const transform turned = {half, half, 0, 0, -half, half, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

TEST(BoundingBox, faces_and_edges_are_bounded_by_their_corners) {
    shapes s;
    const face& f = s.face(points{{1, 2, 3}, {4, 2, 3}, {4, 7, 3}}, {0, 0, 1});
    expect_box(face_box(s.model, f), {1, 2, 3}, {4, 7, 3});
    const index e = s.edge({5, 1, 0}, {2, 3, -1});
    expect_box(edge_box(s.model, s.model.edges[e]), {2, 1, -1}, {5, 3, 0});
}

TEST(BoundingBox, of_a_list_holds_faces_edges_and_placed_content) {
    shapes s;
    s.face(points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}}, {0, 0, 1});
    s.edge_in(s.model.root, {0, 0, 0}, {0, 0, -5});
    const index d = s.definition();
    s.edge_in(s.content(d), {0, 0, 0}, {2, 2, 2});
    s.place(s.model.root, d, moved(10, 0, 0));
    box_cache boxes(s.model);
    expect_box(boxes.of_list(s.model.root), {0, 0, -5}, {12, 2, 2});
    expect_box(boxes.of_list(s.content(d)), {0, 0, 0}, {2, 2, 2});
}

TEST(BoundingBox, groups_images_and_hidden_content_count) {
    shapes s;
    const index d = s.definition();
    s.edge_in(s.content(d), {0, 0, 0}, {1, 1, 1});
    s.model.edges[0].hidden = true;
    s.model.placements.reserve(2);
    for (std::vector<index>* kind : {&s.model.root.groups, &s.model.root.images}) {
        kind->push_back(static_cast<index>(s.model.placements.size()));
        placement& p = s.model.placements.emplace_back(entity_kind::group);
        p.definition = d;
        p.transform = kind == &s.model.root.groups ? moved(5, 0, 0) : moved(0, 5, 0);
        p.hidden = true;
    }
    box_cache boxes(s.model);
    expect_box(boxes.of_list(s.model.root), {0, 0, 0}, {6, 6, 1});
}

TEST(BoundingBox, an_empty_list_has_an_empty_box_and_adds_nothing_where_it_is_placed) {
    shapes s;
    const index d = s.definition();
    const index p = s.place(s.model.root, d, moved(100, 0, 0));
    s.edge_in(s.model.root, {0, 0, 0}, {1, 1, 1});
    box_cache boxes(s.model);
    EXPECT_TRUE(boxes.of_list(s.content(d)).is_empty());
    EXPECT_EQ(boxes.of_list(s.content(d)).minimum.y, 1e30);
    EXPECT_EQ(boxes.of_list(s.content(d)).maximum.y, -1e30);
    EXPECT_TRUE(boxes.of_placement(s.model.placements[p]).is_empty());
    expect_box(boxes.of_list(s.model.root), {0, 0, 0}, {1, 1, 1});
}

TEST(BoundingBox, of_a_turned_placement_is_that_of_the_turned_content) {
    shapes s;
    const index d = s.definition();
    // The diagonal of a square: turned by an eighth it lies along y and is √8 long; the turned square would be wider.
    s.edge_in(s.content(d), {0, 0, 0}, {2, 2, 0});
    const index p = s.place(s.model.root, d, turned);
    box_cache boxes(s.model);
    const double diagonal = std::sqrt(8.0);
    expect_box(boxes.of_placement(s.model.placements[p]), {0, 0, 0}, {0, diagonal, 0});
    expect_box(boxes.of_list(s.model.root), {0, 0, 0}, {0, diagonal, 0});
}

TEST(BoundingBox, of_nested_turned_placements_is_exact_too) {
    shapes s;
    const index inner = s.definition();
    const index outer = s.definition();
    s.edge_in(s.content(inner), {0, 0, 0}, {2, 2, 0});
    s.place(s.content(outer), inner, turned);
    const index p = s.place(s.model.root, outer, turned);
    box_cache boxes(s.model);
    const double diagonal = std::sqrt(8.0);
    expect_box(boxes.of_placement(s.model.placements[p]), {-diagonal * half, 0, 0}, {0, diagonal * half, 0});
}

TEST(BoundingBox, past_the_limit_of_visits_the_box_is_that_of_the_turned_box) {
    shapes s;
    const index d = s.definition();
    s.edge_in(s.content(d), {0, 0, 0}, {2, 2, 0});
    const index p = s.place(s.model.root, d, turned);
    box_cache boxes(s.model, 0);
    const double side = std::sqrt(2.0);
    expect_box(boxes.of_placement(s.model.placements[p]), {-side, 0, 0}, {side, 2 * side, 0});
}

TEST(BoundingBox, mirrors_scales_and_the_weight_reach_it) {
    shapes s;
    const index d = s.definition();
    s.edge_in(s.content(d), {0, 0, 0}, {1, 2, 3});
    transform t = moved(10, 20, 30);
    t[0] = -1;
    t[5] = 4;
    t[15] = 0.5;
    const index p = s.place(s.model.root, d, t);
    box_cache boxes(s.model);
    // x: (10 - 1) / 0.5 to 10 / 0.5; y: 20 / 0.5 to (20 + 8) / 0.5; z: 30 / 0.5 to 33 / 0.5
    expect_box(boxes.of_placement(s.model.placements[p]), {18, 40, 60}, {20, 56, 66});
}

TEST(BoundingBox, a_picture_s_box_is_that_of_its_four_placed_corners) {
    shapes s;
    const index d = s.definition();
    s.face(points{{0, 0, 0}, {800, 0, 0}, {800, 450, 0}, {0, 450, 0}}, {0, 0, 1});
    s.content(d).faces.swap(s.model.root.faces);
    // A hundredth of an inch for each pixel, stood upright: y to z.
    const index p = s.place(s.model.root, d, {0.01, 0, 0, 0, 0, 0, 0.01, 0, 0, -0.01, 0, 0, 5, 6, 7, 1});
    box_cache boxes(s.model);
    expect_box(boxes.of_placement(s.model.placements[p]), {5, 6, 7}, {13, 6, 11.5});
}

TEST(BoundingBox, definitions_doubled_thirty_times_are_bounded_in_time) {
    for (const transform& t : {identity_transform, turned}) {
        shapes s;
        for (int i = 0; i < 31; ++i) {
            s.definition();
        }
        s.edge_in(s.content(0), {0, 0, 0}, {1, 1, 0});
        for (index i = 1; i < 31; ++i) {
            for (const double aside : {-1.0, 1.0}) {
                transform shifted = t;
                shifted[12] = aside * std::pow(2, i);
                s.place(s.content(i), i - 1, shifted);
            }
        }
        box_cache boxes(s.model, 1'000'000);
        const box b = boxes.of_list(s.content(30));
        EXPECT_GE(b.maximum.x, std::pow(2, 30));
    }
}

TEST(BoundingBox, four_thousand_nested_placements_are_followed) {
    shapes s;
    for (int i = 0; i < 4096; ++i) {
        s.definition();
    }
    s.edge_in(s.content(0), {0, 0, 0}, {1, 0, 0});
    transform step = turned;
    step[14] = 1;
    for (index i = 1; i < 4096; ++i) {
        s.place(s.content(i), i - 1, step);
    }
    box_cache boxes(s.model);
    const box b = boxes.of_list(s.content(4095));
    EXPECT_EQ(b.minimum.z, 4095);
    EXPECT_EQ(b.maximum.z, 4095);
}

TEST(BoundingBox, a_placement_without_definition_and_vertices_without_numbers_add_nothing) {
    shapes s;
    s.edge_in(s.model.root, {0, 0, 0}, {1, 1, 1});
    s.edge_in(s.model.root, {0, 0, 0}, {2, 2, 2});
    s.model.vertices[2].position.x = std::numeric_limits<double>::quiet_NaN();
    s.model.vertices[2].position.y = std::numeric_limits<double>::quiet_NaN();
    s.place(s.model.root, no_index, moved(1, 1, 1));
    box_cache boxes(s.model);
    const box b = boxes.of_list(s.model.root);
    EXPECT_EQ(b.maximum.x, 1);
    EXPECT_EQ(b.maximum.y, 1);
}

TEST(BoundingBox, of_a_level_section_plane_agrees_in_its_height_to_the_last_digit) {
    const box around{{-1, -2, -3}, {4, 5, 6}};
    const double height = 0.1 + 0.2;
    const box b = plane_box({0, 0, -1, height}, around);
    EXPECT_EQ(b.minimum, (vec3{-1, -2, height}));
    EXPECT_EQ(b.maximum, (vec3{4, 5, height}));
}

TEST(BoundingBox, of_a_slanted_section_plane_is_that_of_its_part_inside_the_box) {
    // x + y = 1 through the cube of side 2: from (1, 0) to (0, 1), over the whole height.
    const box b = plane_box({half, half, 0, -half}, {{0, 0, 0}, {2, 2, 2}});
    expect_box(b, {0, 0, 0}, {1, 1, 2});
}

TEST(BoundingBox, of_a_section_plane_that_misses_everything_is_its_point_nearest_to_the_origin) {
    const box b = plane_box({0, 1, 0, -50}, {{0, 0, 0}, {2, 2, 2}});
    EXPECT_EQ(b.minimum, (vec3{0, 50, 0}));
    EXPECT_EQ(b.maximum, (vec3{0, 50, 0}));
    EXPECT_EQ(plane_box({0, 1, 0, -50}, box{}).minimum, (vec3{0, 50, 0}));
    EXPECT_EQ(plane_box({0, 0, 0, 3}, {{0, 0, 0}, {1, 1, 1}}).minimum, (vec3{0, 0, 0}));
}

TEST(BoundingBox, a_section_plane_is_cut_by_the_box_of_its_own_list) {
    shapes s;
    s.edge_in(s.model.root, {0, 0, 0}, {9, 9, 9});
    const index d = s.definition();
    s.edge_in(s.content(d), {0, 0, 0}, {2, 2, 2});
    s.model.section_planes.resize(3);
    s.model.section_planes[0].plane = {0, 0, 1, -1};
    s.model.section_planes[1].plane = {0, 0, 1, -1};
    s.model.section_planes[2].plane = {0, 0, 1, -1};
    s.model.root.section_planes = {0};
    s.content(d).section_planes = {1};
    box_cache boxes(s.model);
    expect_box(boxes.of_section_plane(s.model.section_planes[0]), {0, 0, 1}, {9, 9, 1});
    expect_box(boxes.of_section_plane(s.model.section_planes[1]), {0, 0, 1}, {2, 2, 1});
    expect_box(boxes.of_section_plane(s.model.section_planes[2]), {0, 0, 1}, {0, 0, 1});
}

} // namespace
} // namespace sketchup
