#include "qlw/qlw_matrix.h"

#include "captured_trace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <random>

using testing::ElementsAre;
using testing::IsEmpty;

namespace {

fpt axis(const cl_matrix& matrix, std::size_t index) {
    return {matrix.inverse[0][index], matrix.inverse[1][index], matrix.inverse[2][index]};
}

void expect_near(const fpt& actual, const fpt& expected, double tolerance = 1e-12) {
    EXPECT_NEAR(actual.x, expected.x, tolerance) << fpt_to_text(actual) << " is not " << fpt_to_text(expected);
    EXPECT_NEAR(actual.y, expected.y, tolerance) << fpt_to_text(actual) << " is not " << fpt_to_text(expected);
    EXPECT_NEAR(actual.z, expected.z, tolerance) << fpt_to_text(actual) << " is not " << fpt_to_text(expected);
}

void expect_identity(const cl_matrix& matrix) {
    EXPECT_EQ(matrix.forward, identity4);
    EXPECT_EQ(matrix.inverse, identity4);
    EXPECT_EQ(matrix.rotation, identity4);
}

void set_columns(matrix4& matrix, const fpt& x, const fpt& y, const fpt& z) {
    matrix[0] = {x.x, y.x, z.x, 0};
    matrix[1] = {x.y, y.y, z.y, 0};
    matrix[2] = {x.z, y.z, z.z, 0};
}

// Zeros of both signs, numbers near the limits of the placement, and any magnitude that a model or a damaged file has.
double any_component(std::mt19937_64& random) {
    constexpr std::array<double, 8> special{0.0, -0.0, 1.0, -1.0, 1e-8, 1e-4, -1e-4, 0.5};
    const std::uint64_t kind = random() % 8;
    if (kind == 0)
        return special[random() % special.size()];
    const double number = std::uniform_real_distribution<double>(-1, 1)(random);
    constexpr std::array<double, 7> scales{1, 1000, 1e-8, 1e-4, 1e6, 1e120, 1e-160};
    return number * scales[kind - 1];
}

fpt unit_vector(fpt vector) {
    vector.make_unit(1);
    return vector;
}

// What is no number is no number on either side, whatever its bits.
bool same_number(double a, double b) {
    return (std::isnan(a) && std::isnan(b)) || std::bit_cast<std::uint64_t>(a) == std::bit_cast<std::uint64_t>(b);
}

bool same_point(const fpt& a, const fpt& b) {
    return same_number(a.x, b.x) && same_number(a.y, b.y) && same_number(a.z, b.z);
}

// Whether the short way gives what the placement gives.
testing::AssertionResult agree(const fpt& point, const fpt& normal) {
    cl_matrix plane;
    plane.create_from_normal(point, normal);
    const fpt x = plane.inverse_transform({1, 0, 0});
    const fpt y = plane.inverse_transform({0, 1, 0});
    const axis_points found = axis_points_of_plane(point, normal);
    if (same_point(found.x, x) && same_point(found.y, y))
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << "point " << fpt_to_text(point) << ", normal " << fpt_to_text(normal) << ": "
                                       << fpt_to_text(found.x) << " and " << fpt_to_text(found.y) << " instead of "
                                       << fpt_to_text(x) << " and " << fpt_to_text(y);
}

} // namespace

TEST(Placement, a_new_placement_is_the_identity) {
    const cl_matrix matrix;
    expect_identity(matrix);
    EXPECT_EQ(matrix.base_point, (fpt{0, 0, 0}));
    EXPECT_EQ(matrix.origin, (fpt{0, 0, 0}));
    EXPECT_EQ(matrix.flags, 0);
    EXPECT_EQ(matrix.forward_transform({1, 2, 3}), (fpt{1, 2, 3}));
    EXPECT_EQ(matrix.inverse_transform({1, 2, 3}), (fpt{1, 2, 3}));
}

TEST(PlacementFromVectors, the_point_becomes_the_local_origin_and_the_vectors_the_local_axes) {
    cl_matrix matrix;
    fpt x{0, 5, 0};
    fpt y{-2, 0, 0};
    ASSERT_TRUE(matrix.create_from_vectors({10, 20, 30}, x, y, {1, 1, 1}));
    EXPECT_EQ(x, (fpt{0, 1, 0}));
    EXPECT_EQ(y, (fpt{-1, 0, 0}));
    expect_near(axis(matrix, 2), {0, 0, 1});
    expect_near(matrix.forward_transform({10, 20, 30}), {0, 0, 0});
    expect_near(matrix.forward_transform({10, 21, 30}), {1, 0, 0});
    expect_near(matrix.forward_transform({9, 20, 30}), {0, 1, 0});
    expect_near(matrix.inverse_transform({1, 0, 0}), {10, 21, 30});
    expect_near(matrix.inverse_transform({0, 0, 4}), {10, 20, 34});
}

TEST(PlacementFromVectors, a_y_axis_that_is_not_square_is_replaced_by_one_that_is) {
    cl_matrix matrix;
    fpt x{2, 0, 0};
    fpt y{3, 4, 0};
    ASSERT_TRUE(matrix.create_from_vectors({}, x, y, {1, 1, 1}));
    EXPECT_EQ(x, (fpt{1, 0, 0}));
    EXPECT_EQ(y, (fpt{0, 1, 0}));
    expect_near(axis(matrix, 1), {0, 1, 0});
}

TEST(PlacementFromVectors, parallel_vectors_are_reported_with_x_first_and_change_nothing) {
    captured_trace trace;
    cl_matrix matrix;
    fpt x{1, 2, 3};
    fpt y{-2, -4, -6};
    EXPECT_FALSE(matrix.create_from_vectors({1, 1, 1}, x, y, {1, 1, 1}));
    EXPECT_EQ(x, (fpt{1, 2, 3}));
    EXPECT_EQ(y, (fpt{-2, -4, -6}));
    expect_identity(matrix);
    EXPECT_THAT(trace.take(), ElementsAre(traced_line{"qlw_matrix", "cl_matrix::create_from_vectors",
                                                      "REPORT: Could not create normal - X and Y vectors are "
                                                      "co-linear: (1, 2, 3) (-2, -4, -6)"}));
}

TEST(PlacementFromVectors, a_zero_x_axis_is_reported_as_co_linear) {
    captured_trace trace;
    cl_matrix matrix;
    fpt x;
    fpt y{0, 1, 0};
    EXPECT_FALSE(matrix.create_from_vectors({}, x, y, {1, 1, 1}));
    EXPECT_EQ(trace.take().size(), 1u);
}

TEST(PlacementFromVectors, a_zero_y_axis_fails_without_a_report) {
    captured_trace trace;
    cl_matrix matrix;
    fpt x{5, 0, 0};
    fpt y;
    EXPECT_FALSE(matrix.create_from_vectors({1, 1, 1}, x, y, {1, 1, 1}));
    EXPECT_EQ(x, (fpt{5, 0, 0}));
    expect_identity(matrix);
    EXPECT_THAT(trace.take(), IsEmpty());
}

TEST(PlacementFromVectors, a_scale_multiplies_local_columns_and_still_puts_the_point_at_the_origin) {
    cl_matrix matrix;
    fpt x{1, 0, 0};
    fpt y{0, 1, 0};
    ASSERT_TRUE(matrix.create_from_vectors({1, 2, 3}, x, y, {2, 4, 5}));
    EXPECT_EQ(matrix.forward_transform({1, 2, 3}), (fpt{0, 0, 0}));
    EXPECT_EQ(matrix.forward_transform({2, 3, 4}), (fpt{2, 4, 5}));
    EXPECT_EQ(matrix.inverse_transform({2, 4, 5}), (fpt{2, 3, 4}));
}

TEST(PlacementFromVectors, an_old_translation_and_an_origin_do_not_shift_the_local_origin) {
    cl_matrix matrix;
    matrix.forward[3] = {7, 8, 9, 1};
    matrix.origin = {100, 0, 0};
    fpt x{1, 0, 0};
    fpt y{0, 1, 0};
    ASSERT_TRUE(matrix.create_from_vectors({1, 2, 3}, x, y, {1, 1, 1}));
    EXPECT_EQ(matrix.forward_transform({1, 2, 3}), (fpt{0, 0, 0}));
    EXPECT_EQ(matrix.inverse_transform({0, 0, 0}), (fpt{1, 2, 3}));
}

TEST(PlacementFromNormal, an_upright_normal_at_the_origin_gives_the_axes_y_and_minus_x) {
    cl_matrix matrix;
    EXPECT_TRUE(matrix.create_from_normal({0, 0, 0}, {0, 0, 1}));
    expect_near(axis(matrix, 0), {0, 1, 0});
    expect_near(axis(matrix, 1), {-1, 0, 0});
    expect_near(axis(matrix, 2), {0, 0, 1});
}

TEST(PlacementFromNormal, a_nearly_level_normal_takes_the_helper_above_the_point) {
    cl_matrix matrix;
    EXPECT_TRUE(matrix.create_from_normal({0, 0, 0}, {1, 0, 0.00009}));
    expect_near(axis(matrix, 0),
                {0, -1, 0}); // (1, 0, 0.00009) x (0, 0, 1); with the helper (1, 0, 0) it were (0, 1, 0)
}

TEST(PlacementFromNormal, the_helper_above_the_point_lies_on_no_other_axis) {
    cl_matrix matrix;
    EXPECT_TRUE(matrix.create_from_normal({0, 0, 0}, {0, 1, 0}));
    expect_near(axis(matrix, 0), {1, 0, 0}); // (0, 1, 0) x (0, 0, 1)
    EXPECT_TRUE(matrix.create_from_normal({0, 0, 0}, {1, 0, 0}));
    expect_near(axis(matrix, 0), {0, -1, 0}); // (1, 0, 0) x (0, 0, 1)
}

TEST(PlacementFromNormal, a_normal_just_steep_enough_takes_the_helper_beside_the_point) {
    cl_matrix matrix;
    EXPECT_TRUE(matrix.create_from_normal({0, 0, 0}, {1, 0, 0.0001}));
    expect_near(axis(matrix, 0), {0, 1, 0}); // (1, 0, 0.0001) x (1, 0, 0) = (0, 0.0001, 0)
}

TEST(PlacementFromNormal, the_place_of_the_point_turns_the_placement) {
    cl_matrix matrix;
    EXPECT_TRUE(matrix.create_from_normal({-1, 2, 0}, {0, 0, 1}));
    expect_near(axis(matrix, 0), {-1, 0, 0}); // helper (0, 2, 0), (0, 0, 1) x (0, 2, 0) = (-2, 0, 0)
    expect_near(matrix.forward_transform({-1, 2, 0}), {0, 0, 0});
}

TEST(PlacementFromNormal, a_normal_parallel_to_the_helper_leaves_the_placement_alone) {
    captured_trace trace;
    cl_matrix matrix;
    EXPECT_TRUE(matrix.create_from_normal({-1, 0, 5}, {0, 0, 1})); // helper (0, 0, 5)
    expect_identity(matrix);
    EXPECT_TRUE(matrix.create_from_normal({1, 1, 1}, {0, 0, 0}));
    expect_identity(matrix);
    EXPECT_THAT(trace.take(), IsEmpty());
}

TEST(PointsAlongTheAxes, are_those_of_the_whole_placement_to_the_last_bit) {
    std::mt19937_64 random(11);
    const auto any_point = [&] { return fpt{any_component(random), any_component(random), any_component(random)}; };
    for (int i = 0; i < 400000; ++i) {
        const fpt point = any_point();
        const fpt normal = i % 3 == 0 ? unit_vector(any_point()) : any_point();
        ASSERT_TRUE(agree(point, normal)) << "pair " << i << " of seed 11";
    }
}

// The helper lies one step along x, or along z for level normals; the threshold between the two, and both sides of it.
TEST(PointsAlongTheAxes, are_those_of_the_placement_where_it_stays_as_it_was) {
    constexpr double inf = std::numeric_limits<double>::infinity();
    const double edges[] = {0.0, -0.0, 1.0, -1.0, 1e-8, 0.9e-8, 1e-4, 0.99e-4, 5e-324, 1e154, 1e200, inf, std::nan("")};
    for (const double x : edges)
        for (const double y : edges)
            for (const double z : edges)
                for (const fpt& point : {fpt{0, 0, 0}, fpt{-1, 0, 5}, fpt{0, 0, -1}, fpt{x, y, z}, fpt{z, x, y}})
                    ASSERT_TRUE(agree(point, {x, y, z}));
}

TEST(PlacementScale, columns_are_multiplied_and_rows_divided) {
    cl_matrix matrix;
    matrix.forward[0] = {1, 1, 1, 0};
    matrix.inverse[0] = {6, 6, 6, 0};
    matrix.scale(2, 3, 4);
    EXPECT_EQ(matrix.forward[0], (std::array<double, 4>{2, 3, 4, 0}));
    EXPECT_EQ(matrix.inverse[0], (std::array<double, 4>{3, 3, 3, 0}));
    EXPECT_EQ(matrix.inverse[2], (std::array<double, 4>{0, 0, 0.25, 0}));
}

TEST(PlacementScale, a_zero_scale_leaves_its_row_of_the_inverse) {
    cl_matrix matrix;
    matrix.scale(0, 2, 2);
    EXPECT_EQ(matrix.forward[0][0], 0.0);
    EXPECT_EQ(matrix.inverse[0][0], 1.0);
    EXPECT_EQ(matrix.inverse[1][1], 0.5);
}

TEST(PlacementTransform, a_world_coordinate_below_1e_8_becomes_exactly_zero) {
    const cl_matrix matrix;
    EXPECT_EQ(matrix.inverse_transform({1e-9, -1e-9, 1e-8}), (fpt{0, 0, 1e-8}));
}

TEST(PlacementTransform, the_translation_is_taken_off_before_and_the_origin_added_behind) {
    cl_matrix matrix;
    matrix.origin = {100, 0, 0};
    matrix.forward[3] = {1, 2, 3, 1};
    EXPECT_EQ(matrix.forward_transform({110, 20, 30}), (fpt{11, 22, 33}));
    EXPECT_EQ(matrix.inverse_transform({11, 22, 33}), (fpt{110, 20, 30}));
}

TEST(PlacementInversion, the_forward_part_becomes_the_inverse_of_the_inverse_part) {
    cl_matrix matrix;
    matrix.inverse[0] = {2, 1, 0, 0};
    matrix.inverse[1] = {0, 1, 3, 0};
    matrix.inverse[2] = {0, 0, 4, 0};
    EXPECT_EQ(matrix.invert_axes(), 1); // determinant 8
    EXPECT_EQ(matrix.forward[0], (std::array<double, 4>{0.5, -0.5, 0.375, 0}));
    EXPECT_EQ(matrix.forward[1], (std::array<double, 4>{0, 1, -0.75, 0}));
    EXPECT_EQ(matrix.forward[2], (std::array<double, 4>{0, 0, 0.25, 0}));
}

TEST(PlacementInversion, a_singular_matrix_changes_nothing) {
    cl_matrix matrix;
    set_columns(matrix.inverse, {1, 0, 0}, {2, 0, 0}, {0, 0, 1});
    EXPECT_EQ(matrix.invert_axes(), 0);
    EXPECT_EQ(matrix.forward, identity4);
}

TEST(PlacementInversion, random_placements_map_there_and_back) {
    std::mt19937_64 random(7);
    std::uniform_real_distribution<double> component(-10, 10);
    const auto point = [&] { return fpt{component(random), component(random), component(random)}; };
    for (int i = 0; i < 1000; ++i) {
        cl_matrix matrix;
        fpt x = point();
        fpt y = point();
        ASSERT_TRUE(matrix.create_from_vectors(point(), x, y, {1, 1, 1})) << "placement " << i << " of seed 7";
        const fpt world = point();
        const fpt back = matrix.inverse_transform(matrix.forward_transform(world));
        ASSERT_TRUE(fpt_equal(back, world, 1e-9)) << "placement " << i << " of seed 7";
    }
}

TEST(ScaleOfAPlacement, each_axis_gives_the_length_of_its_column) {
    cl_matrix matrix;
    set_columns(matrix.forward, {0, 2, 0}, {-3, 0, 0}, {0, 0, 4});
    EXPECT_EQ(matrix.decompose_scale(), (fpt{2, 3, 4}));
    EXPECT_EQ(matrix.rotation[0], (std::array<double, 4>{0, -1, 0, 0}));
    EXPECT_EQ(matrix.rotation[1], (std::array<double, 4>{1, 0, 0, 0}));
    EXPECT_EQ(matrix.rotation[2], (std::array<double, 4>{0, 0, 1, 0}));
}

TEST(ScaleOfAPlacement, a_mirror_along_any_axis_makes_the_scale_of_x_negative) {
    for (const fpt& mirror : {fpt{-1, 1, 1}, fpt{1, -1, 1}, fpt{1, 1, -1}}) {
        cl_matrix matrix;
        set_columns(matrix.forward, {2 * mirror.x, 0, 0}, {0, 3 * mirror.y, 0}, {0, 0, 4 * mirror.z});
        EXPECT_EQ(matrix.decompose_scale(), (fpt{-2, 3, 4})) << fpt_to_text(mirror);
        EXPECT_EQ(matrix.rotation[0][0], -mirror.x) << fpt_to_text(mirror);
        EXPECT_EQ(matrix.rotation[1][1], mirror.y) << fpt_to_text(mirror);
        EXPECT_EQ(matrix.rotation[2][2], mirror.z) << fpt_to_text(mirror);
    }
}

TEST(ScaleOfAPlacement, two_mirrors_are_a_rotation) {
    cl_matrix matrix;
    set_columns(matrix.forward, {-2, 0, 0}, {0, -3, 0}, {0, 0, 4});
    EXPECT_EQ(matrix.decompose_scale(), (fpt{2, 3, 4}));
}

TEST(ScaleOfAPlacement, a_column_of_zero_scale_leaves_the_rotation_as_it_was) {
    cl_matrix matrix;
    set_columns(matrix.forward, {0, 0, 0}, {0, 3, 0}, {0, 0, 4});
    EXPECT_EQ(matrix.decompose_scale(), (fpt{0, 3, 4}));
    EXPECT_EQ(matrix.rotation[0][0], 1.0);
}
