#include "sketchup/model/texture_coordinates.h"

#include "shapes.h"
#include "sketchup/model/vector_math.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace sketchup {
namespace {

using test::points;
using test::shapes;

void expect_vector(const vec3& actual, const vec3& expected, double tolerance = 1e-12) {
    EXPECT_NEAR(actual.x, expected.x, tolerance);
    EXPECT_NEAR(actual.y, expected.y, tolerance);
    EXPECT_NEAR(actual.z, expected.z, tolerance);
}

// What is drawn at a point. The published points are rounded to a thousandth of an inch and tiles are 10 inches at
// least.
void expect_drawn(const side_coordinates& side, const vec3& point, double u, double v) {
    const uvq c = side.at(point);
    EXPECT_NEAR(c.u / c.q, u, 2e-4) << "at (" << point.x << ", " << point.y << ", " << point.z << ")";
    EXPECT_NEAR(c.v / c.q, v, 2e-4) << "at (" << point.x << ", " << point.y << ", " << point.z << ")";
}

side_mapping positioned(const std::array<double, 9>& matrix) {
    side_mapping mapping;
    mapping.positioned = true;
    mapping.matrix = matrix;
    return mapping;
}

side_mapping projected(const std::array<double, 9>& matrix, const vec3& direction) {
    side_mapping mapping = positioned(matrix);
    mapping.projected = true;
    mapping.direction = direction;
    return mapping;
}

TEST(TextureCoordinates, axes_of_level_planes_are_those_of_the_ground_mirrored_looking_down) {
    EXPECT_EQ(axes_of_plane({0, 0, 1}).u, (vec3{1, 0, 0}));
    EXPECT_EQ(axes_of_plane({0, 0, 1}).v, (vec3{0, 1, 0}));
    EXPECT_EQ(axes_of_plane({0, 0, -1}).u, (vec3{-1, 0, 0}));
    EXPECT_EQ(axes_of_plane({0, 0, -1}).v, (vec3{0, 1, 0}));
}

TEST(TextureCoordinates, axes_of_other_planes_have_a_level_u) {
    EXPECT_EQ(axes_of_plane({0, -1, 0}).u, (vec3{1, 0, 0}));
    EXPECT_EQ(axes_of_plane({0, -1, 0}).v, (vec3{0, 0, 1}));
    const plane_axes axes = axes_of_plane(vec3{1, 2, 3} / std::sqrt(14.0));
    expect_vector(axes.u, {-0.894427, 0.447214, 0}, 1e-6);
    expect_vector(axes.v, {-0.358569, -0.717137, 0.597614}, 1e-6);
}

TEST(TextureCoordinates, a_plane_tilted_by_less_than_a_thousandth_counts_as_level) {
    const auto tilted = [](double sine) { return vec3{0, sine, std::sqrt(1 - sine * sine)}; };
    expect_vector(axes_of_plane(tilted(0.00094)).u, {1, 0, 0});
    expect_vector(axes_of_plane(tilted(0.00099)).u, {1, 0, 0});
    expect_vector(axes_of_plane(tilted(0.00101)).u, {-1, 0, 0}); // Z × (0, y, z) = (-y, 0, 0)
    expect_vector(axes_of_plane(tilted(0.0042)).u, {-1, 0, 0});
}

TEST(TextureCoordinates, a_face_without_texture_looking_down_gives_inches_on_both_sides) {
    shapes s;
    const face& f = s.face(points{{-1000, -1000, 0}, {-1000, 1000, 0}, {1000, 1000, 0}, {1000, -1000, 0}}, {0, 0, -1});
    struct {
        vec3 point;
        uvq expected;
    } const cases[] = {{{-1000, 1000, 0}, {1000, 1000, 1}},
                       {{0, 100, 0}, {0, 100, 1}},
                       {{-1000, -1000, 0}, {1000, -1000, 1}},
                       {{1000, 1000, 0}, {-1000, 1000, 1}},
                       {{100, 100, 0}, {-100, 100, 1}},
                       {{100, 0, 0}, {-100, 0, 1}},
                       {{0, 0, 0}, {0, 0, 1}},
                       {{1000, -1000, 0}, {-1000, -1000, 1}}};
    for (const auto& c : cases) {
        EXPECT_EQ(coordinates_of_side(s.model, f, face_side::front).at(c.point), c.expected);
        EXPECT_EQ(coordinates_of_side(s.model, f, face_side::back).at(c.point), c.expected);
    }
}

TEST(TextureCoordinates, a_tilted_quadrilateral_positioned_by_one_point_agrees_to_ten_digits) {
    const vec3 normal = vec3{-1, 2, -1} / std::sqrt(6.0);
    const plane_axes axes = axes_of_plane(normal);
    const vec3 origin{1, 2, 3};
    // The texture's origin moved to the point; nothing else.
    const side_coordinates side(normal, positioned({1, 0, 0, 0, 1, 0, dot(origin, axes.u), dot(origin, axes.v), 1}), 10,
                                10);
    struct {
        vec3 point;
        double u, v;
    } const cases[] = {{{1, 2, 3}, 0, 0},
                       {{3, 2, 1}, -0.1788854381999832, -0.21908902300206645},
                       {{0, 0, 0}, 0.1788854381999832, -0.3286335345030997},
                       {{2, 3, 4}, -0.13416407864998742, 0.10954451150103323}};
    for (const auto& c : cases) {
        EXPECT_NEAR(side.at(c.point).u, c.u, 1e-10);
        EXPECT_NEAR(side.at(c.point).v, c.v, 1e-10);
        EXPECT_EQ(side.at(c.point).q, 1);
    }
}

// The faces of a test model of the host, whose texture has tiles of 20 × 20 inches. Where whole coordinates fall was
// published for each; the matrices are worked out from those points.

const vec3 facing_us{0, -1, 0}; // u = x, v = z

TEST(TextureCoordinates, a_texture_that_was_not_positioned_starts_at_the_origin_of_the_list) {
    const side_coordinates side(facing_us, {}, 20, 20);
    EXPECT_EQ(side.at({60, 39.3778, 0}), (uvq{3, 0, 1}));
    EXPECT_EQ(side.at({80, 39.3778, 0}), (uvq{4, 0, 1}));
    EXPECT_EQ(side.at({80, 39.3778, 20}), (uvq{4, 1, 1}));
    EXPECT_EQ(side.at({60, 39.3778, 20}), (uvq{3, 1, 1}));
}

TEST(TextureCoordinates, a_wall_at_an_angle_has_its_u_along_the_ground) {
    const side_coordinates side({-0.999535, 0.030498, 0}, {}, 49.2119, 70.8661);
    const auto near = [&](const vec3& p, double u, double v) {
        EXPECT_NEAR(side.at(p).u, u, 2e-4);
        EXPECT_NEAR(side.at(p).v, v, 2e-4);
    };
    near({3.72908, 393.77, 0}, -8, 0);
    near({2.22821, 344.581, 0}, -7, 0);
    near({2.22821, 344.581, 70.8661}, -7, 1);
    near({3.72908, 393.77, 70.8661}, -8, 1);
}

TEST(TextureCoordinates, a_stretched_texture_follows_its_mapping) {
    // x = s / 2, z = t - 40
    const side_coordinates side(facing_us, positioned({0.5, 0, 0, 0, 1, 0, 0, -40, 1}), 20, 20);
    EXPECT_EQ(side.at({20, 0, 20}), (uvq{2, 3, 1}));
    EXPECT_EQ(side.at({30, 0, 20}), (uvq{3, 3, 1}));
    EXPECT_EQ(side.at({30, 0, 40}), (uvq{3, 4, 1}));
    EXPECT_EQ(side.at({20, 0, 40}), (uvq{2, 4, 1}));
    EXPECT_EQ(side.at({20, 60, 20}), (uvq{2, 3, 1})) << "a point off the plane counts as the one below it";
}

TEST(TextureCoordinates, a_skewed_texture_follows_its_mapping) {
    // x = 176.85 + s / 2 + t / 2, z = t - 40
    const side_mapping mapping = positioned({0.5, 0, 0, 0.5, 1, 0, 176.85, -40, 1});
    const side_coordinates side(facing_us, mapping, 20, 20);
    EXPECT_TRUE(is_affine(mapping));
    EXPECT_EQ(side.at({206.85, 0, 20}).q, 1);
    expect_drawn(side, {206.85, 0, 20}, 0, 3);
    expect_drawn(side, {216.85, 0, 20}, 1, 3);
    expect_drawn(side, {226.851, 0, 40}, 1, 4);
    expect_drawn(side, {216.85, 0, 40}, 0, 4);
}

// Maps s, t = 20 … 40, 40 … 60 to the trapezium (423.11, -20), (443.11, -20), (432.11, 20), (420.11, 20), times 30.
constexpr std::array<double, 9> trapezium = {30, 0, 0, 415.61, 80, 1, -4531.1, -3800, -10};

TEST(TextureCoordinates, a_distorted_texture_comes_multiplied_by_q) {
    const side_mapping mapping = positioned(trapezium);
    EXPECT_FALSE(is_affine(mapping));
    const side_coordinates side(facing_us, mapping, 20, 20);
    expect_drawn(side, {423.11, 69.6534, -20}, 1, 2);
    expect_drawn(side, {443.11, 69.6534, -20}, 2, 2);
    expect_drawn(side, {432.11, 69.6534, 20}, 2, 3);
    expect_drawn(side, {420.11, 69.6534, 20}, 1, 3);
    // At the last point [s t 1] · M = (20, 60, 1) · M = (21006, 1000, 50), so that q is 1 / 50.
    EXPECT_NEAR(side.at({420.11, 69.6534, 20}).q, 0.02, 1e-12);
    EXPECT_NEAR(side.at({420.11, 69.6534, 20}).u, 1 * 0.02, 1e-12);
    EXPECT_NEAR(side.at({420.11, 69.6534, 20}).v, 3 * 0.02, 1e-12);
}

TEST(TextureCoordinates, a_projected_texture_ignores_the_slant_of_its_face) {
    // x = 298.11 + s / 2, z = t - 70
    const side_mapping mapping = projected({0.5, 0, 0, 0, 1, 0, 298.11, -70, 1}, facing_us);
    for (const vec3& normal : {facing_us, vec3{1, 0, 0}, vec3{0.6, -0.8, 0}, vec3{0, 0, 1}}) {
        const side_coordinates side(normal, mapping, 20, 20);
        expect_drawn(side, {298.11, 0, 10}, 0, 4);
        expect_drawn(side, {308.11, 39, 10}, 1, 4);
        expect_drawn(side, {308.11, 69.6534, 30}, 1, 5);
        expect_drawn(side, {298.11, -7, 30}, 0, 5);
    }
}

TEST(TextureCoordinates, a_projected_distorted_texture_is_both) {
    const side_coordinates side({0.6, -0.8, 0}, projected(trapezium, facing_us), 20, 20);
    expect_drawn(side, {423.11, 0, -20}, 1, 2);
    expect_drawn(side, {443.11, 12, -20}, 2, 2);
    expect_drawn(side, {432.11, 34, 20}, 2, 3);
    expect_drawn(side, {420.11, 56, 20}, 1, 3);
}

TEST(TextureCoordinates, a_direction_left_over_from_a_lifted_projection_is_ignored) {
    side_mapping mapping = positioned({1, 0, 0, 0, 1, 0, 0, 0, 1});
    mapping.direction = {1, 0, 0};
    EXPECT_EQ(side_coordinates(facing_us, mapping, 1, 1).at({3, 5, 7}), (uvq{3, 7, 1}));
}

TEST(TextureCoordinates, a_projection_without_position_maps_plainly_in_its_own_plane) {
    side_mapping mapping;
    mapping.projected = true;
    mapping.direction = facing_us;
    mapping.matrix = {9, 9, 9, 9, 9, 9, 9, 9, 9};
    EXPECT_EQ(side_coordinates({0, 0, 1}, mapping, 2, 1).at({3, 5, 7}), (uvq{1.5, 7, 1}));
}

TEST(TextureCoordinates, a_matrix_that_is_not_in_use_is_ignored) {
    side_mapping mapping;
    mapping.matrix = trapezium;
    EXPECT_TRUE(is_affine(mapping));
    EXPECT_EQ(side_coordinates(facing_us, mapping, 1, 1).at({3, 5, 7}), (uvq{3, 7, 1}));
}

TEST(TextureCoordinates, noise_in_the_third_column_leaves_a_mapping_affine_with_a_q_of_1) {
    const side_mapping mapping = positioned({2, 0, 1e-7, 0, 2, -1e-7, 0, 0, 2});
    EXPECT_TRUE(is_affine(mapping));
    const uvq found = side_coordinates(facing_us, mapping, 1, 1).at({3, 5, 7});
    constexpr double noisy_q = 1 - 3 * 0.5e-7 + 7 * 0.5e-7;
    EXPECT_NEAR(found.u, 3 / noisy_q, 1e-13);
    EXPECT_NEAR(found.v, 7 / noisy_q, 1e-13);
    EXPECT_EQ(found.q, 1);
}

TEST(TextureCoordinates, q_may_be_zero_on_the_horizon) {
    // [s t 1] · M = (s, t, t + 1): the inverse carries (x, y, 1) to (x, y, 1 - y).
    const side_coordinates side({0, 0, 1}, positioned({1, 0, 0, 0, 1, 1, 0, 0, 1}), 1, 1);
    EXPECT_EQ(side.at({4, 1, 0}), (uvq{4, 1, 0}));
    EXPECT_EQ(side.at({4, 3, 0}), (uvq{4, 3, -2}));
}

TEST(TextureCoordinates, a_mapping_without_inverse_counts_as_not_positioned) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (const auto& matrix : {std::array<double, 9>{}, std::array<double, 9>{1, 2, 0, 2, 4, 0, 0, 0, 1},
                               std::array<double, 9>{1, 0, 0, 0, nan, 0, 0, 0, 1}}) {
        EXPECT_EQ(side_coordinates({0, 0, 1}, positioned(matrix), 1, 1).at({3, 5, 7}), (uvq{3, 5, 1}));
    }
}

TEST(TextureCoordinates, a_tile_without_size_counts_as_an_inch) {
    EXPECT_EQ(side_coordinates({0, 0, 1}, {}, 0, std::numeric_limits<double>::quiet_NaN()).at({3, 5, 7}),
              (uvq{3, 5, 1}));
}

// A square looking up with a stretched front and a moved back, and two materials: 0 plain, 1 with tiles of 10 × 5.
class PaintedSquare : public testing::Test {
protected:
    PaintedSquare() {
        shapes_.model.materials.resize(2);
        shapes_.model.materials[1].texture = 0;
        shapes_.model.textures.resize(1);
        shapes_.model.textures[0].width = 10;
        shapes_.model.textures[0].height = 5;
        shapes_.model.texture_mappings.push_back(
            {positioned({2, 0, 0, 0, 2, 0, 0, 0, 1}), positioned({1, 0, 0, 0, 1, 0, 100, 0, 1})});
    }

    shapes shapes_;
    face& face_ = shapes_.face(points{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}, {0, 0, 1});

    uvq at(face_side side) const { return coordinates_of_side(shapes_.model, face_, side).at({40, 40, 0}); }
};

TEST_F(PaintedSquare, an_unpainted_or_plain_side_gives_inches_even_if_it_was_positioned_once) {
    face_.texture_mapping = 0;
    face_.back_material = 0;
    EXPECT_EQ(at(face_side::front), (uvq{40, 40, 1}));
    EXPECT_EQ(at(face_side::back), (uvq{40, 40, 1}));
    EXPECT_EQ(texture_of_side(shapes_.model, face_, face_side::front), nullptr);
    EXPECT_EQ(material_of_side(shapes_.model, face_, face_side::back), &shapes_.model.materials[0]);
    EXPECT_EQ(texture_of_side(shapes_.model, face_, face_side::back), nullptr);
}

TEST_F(PaintedSquare, an_unplaced_texture_is_divided_by_its_tile_and_not_mirrored_on_the_back) {
    face_.material = face_.back_material = 1;
    EXPECT_EQ(at(face_side::front), (uvq{4, 8, 1}));
    EXPECT_EQ(at(face_side::back), (uvq{4, 8, 1}));
    EXPECT_EQ(texture_of_side(shapes_.model, face_, face_side::back), &shapes_.model.textures[0]);
}

TEST_F(PaintedSquare, each_side_has_a_mapping_of_its_own) {
    face_.material = face_.back_material = 1;
    face_.texture_mapping = 0;
    EXPECT_EQ(at(face_side::front), (uvq{2, 4, 1}));
    EXPECT_EQ(at(face_side::back), (uvq{-6, 8, 1}));
}

} // namespace
} // namespace sketchup
