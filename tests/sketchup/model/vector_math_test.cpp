#include "sketchup/model/vector_math.h"

#include <gtest/gtest.h>

#include <limits>

namespace sketchup {
namespace {

TEST(VectorMath, a_cross_product_follows_the_right_hand) {
    EXPECT_EQ(cross({1, 0, 0}, {0, 1, 0}), (vec3{0, 0, 1}));
    EXPECT_EQ(cross({1, 2, 3}, {4, 5, 6}), (vec3{-3, 6, -3}));
}

TEST(VectorMath, what_has_no_direction_falls_back) {
    const vec3 fallback{0, 0, 1};
    EXPECT_EQ(normalized_or({3, 4, 0}, fallback), (vec3{0.6, 0.8, 0}));
    EXPECT_EQ(normalized_or({0, 0, 0}, fallback), fallback);
    EXPECT_EQ(normalized_or({std::numeric_limits<double>::quiet_NaN(), 0, 0}, fallback), fallback);
    EXPECT_EQ(normalized_or({1e300, 0, 0}, fallback), fallback);
}

// The identity moved by (-0.9, -1.8, -2.7) with a weight of 0.1 is the scale by 10 about (1, 2, 3).
constexpr transform weighted = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, -0.9, -1.8, -2.7, 0.1};

TEST(VectorMath, the_weight_of_a_placement_divides_everything) {
    const vec3 fixed = transform_point(weighted, {1, 2, 3});
    EXPECT_NEAR(fixed.x, 1, 1e-12);
    EXPECT_NEAR(fixed.y, 2, 1e-12);
    EXPECT_NEAR(fixed.z, 3, 1e-12);
    EXPECT_NEAR(transform_point(weighted, {2, 2, 3}).x, 11, 1e-12);
    EXPECT_NEAR(transform_vector(weighted, {1, 0, 0}).x, 10, 1e-12);
}

TEST(VectorMath, a_weight_of_zero_counts_as_1) {
    const transform t = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 5, 6, 7, 0};
    EXPECT_EQ(transform_point(t, {1, 1, 1}), (vec3{6, 7, 8}));
}

TEST(VectorMath, a_composed_placement_is_the_child_s_and_then_the_parent_s) {
    const transform quarter_turn = {0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 100, 0, 0, 0.5};
    const vec3 p{2, 2, 3};
    const vec3 expected = transform_point(quarter_turn, transform_point(weighted, p)); // (11, 2, 3) to (196, 22, 6)
    EXPECT_NEAR(expected.x, 196, 1e-9);
    EXPECT_NEAR(expected.y, 22, 1e-9);
    const vec3 composed = transform_point(compose(quarter_turn, weighted), p);
    EXPECT_NEAR(composed.x, 196, 1e-9);
    EXPECT_NEAR(composed.y, 22, 1e-9);
    EXPECT_NEAR(composed.z, 6, 1e-9);
}

TEST(VectorMath, a_box_grows_by_points_and_boxes_and_not_by_empty_ones_or_missing_numbers) {
    box b;
    include(b, box{});
    EXPECT_TRUE(b.is_empty());
    include(b, vec3{1, 2, 3});
    include(b, vec3{-1, 5, std::numeric_limits<double>::quiet_NaN()});
    EXPECT_EQ(b.minimum, (vec3{-1, 2, 3}));
    EXPECT_EQ(b.maximum, (vec3{1, 5, 3}));
    include(b, box{{0, 0, 0}, {9, 0, 0}});
    EXPECT_EQ(b.minimum, (vec3{-1, 0, 0}));
    EXPECT_EQ(b.maximum, (vec3{9, 5, 3}));
}

} // namespace
} // namespace sketchup
