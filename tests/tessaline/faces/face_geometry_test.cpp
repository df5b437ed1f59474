#include "tessaline/faces/face_geometry.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <vector>

namespace {

void expect_near(const fpt& actual, const fpt& expected, double tolerance = 1e-9) {
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
    EXPECT_NEAR(actual.z, expected.z, tolerance);
}

} // namespace

TEST(FaceGeometry, a_point_goes_through_the_axes_and_the_translation) {
    // Columns: the images of the axes (0, 2, 0), (-3, 0, 0), (0, 0, 1), and the translation (10, 20, 30).
    constexpr transform16 matrix{0, 2, 0, 0, -3, 0, 0, 0, 0, 0, 1, 0, 10, 20, 30, 1};
    EXPECT_EQ(transform_point(matrix, {1, 2, 3}), (fpt{10 - 6, 20 + 2, 30 + 3}));
}

TEST(FaceGeometry, an_upright_normal_stays_under_the_identity) {
    expect_near(transform_normal(identity16, {0, 0, 1}, {100, 0, 0}), {0, 0, 1});
    expect_near(transform_normal(identity16, {0, 0, -1}, {100, 50, 0}), {0, 0, -1});
    expect_near(transform_normal(identity16, {0.6, 0, 0.8}, {3, 4, 5}), {0.6, 0, 0.8});
}

TEST(FaceGeometry, a_scale_that_differs_by_axis_keeps_the_normal_square_to_the_face) {
    // The plane x + z = 0 stretched twofold along x becomes x/2 + z = 0, with the normal (1, 0, 2) / sqrt 5.
    constexpr transform16 stretched{2, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    const double half = std::sqrt(0.5);
    expect_near(transform_normal(stretched, {half, 0, half}, {2, 5, -1}), {1 / std::sqrt(5), 0, 2 / std::sqrt(5)});
}

TEST(FaceGeometry, a_mirror_gives_the_normal_of_the_cross_product) {
    constexpr transform16 mirror{-1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    expect_near(transform_normal(mirror, {0, 0, 1}, {100, 50, 0}), {0, 0, -1});
}

TEST(FaceGeometry, a_collapsed_placement_gives_the_zero_normal) {
    constexpr transform16 flat{};
    EXPECT_EQ(transform_normal(flat, {0, 0, 1}, {1, 2, 3}), (fpt{0, 0, 0}));
}

TEST(FaceGeometry, a_normal_without_a_plane_takes_the_unit_axes_seen_from_the_point) {
    // At (-1, 0, 5) the helper point is (0, 0, 5), parallel to the normal, so the placement stays the identity. Seen
    // from the point the unit axis points lie at (2, 0, -5) and (1, 1, -5); their cross product is (5, 5, 2), of length
    // sqrt 54.
    const double length = std::sqrt(54.0);
    expect_near(transform_normal(identity16, {0, 0, 1}, {-1, 0, 5}), {5 / length, 5 / length, 2 / length});
}

TEST(FaceGeometry, in_the_plane_z_0_the_odd_vertex_has_the_same_normal) {
    // (2, 0, 0) cross (1, 1, 0) = (0, 0, 2).
    EXPECT_EQ(transform_normal(identity16, {0, 0, 1}, {-1, 0, 0}), (fpt{0, 0, 1}));
}

TEST(FaceGeometry, corners_5e_8_inches_apart_coincide) {
    EXPECT_TRUE(corners_coincide({1, 2, 3}, {1.00000005, 2, 3}));
    EXPECT_FALSE(corners_coincide({1, 2, 3}, {1.0000002, 2, 3}));
    EXPECT_FALSE(corners_coincide({1, 2, 3}, {1, 2, 3.1})) << "all three components count";
}

TEST(FaceGeometry, far_corners_coincide_within_a_ratio) {
    // 1000000.005 times 1e-8 is 0.01.
    EXPECT_TRUE(corners_coincide({1000000, 0, 0}, {1000000.005, 0, 0}));
    EXPECT_FALSE(corners_coincide({1000000, 0, 0}, {1000000.02, 0, 0}));
}

TEST(FaceGeometry, the_longest_edge_is_the_first_of_several) {
    const std::array<edge_ends, 3> edges{edge_ends{{0, 0, 0}, {1, 0, 0}}, edge_ends{{5, 1, 0}, {2, 5, 0}},
                                         edge_ends{{0, 0, 0}, {0, 0, 5}}};
    // Start minus end in x, end minus start in y and z.
    EXPECT_EQ(longest_edge_vector(edges), (fpt{3, 4, 0}));
}

TEST(FaceGeometry, without_edges_the_vector_points_along_y) {
    EXPECT_EQ(longest_edge_vector({}), (fpt{0, 1, 0}));
}
