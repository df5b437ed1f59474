#include "tools/gltf/node_placement.h"
#include "tools/gltf/numbers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <random>

using gltf::double3;
using gltf::double4;

namespace {

double3 turned(const double4& q, const double3& v) {
    const double3 u = {q[0], q[1], q[2]};
    const auto cross = [](const double3& a, const double3& b) {
        return double3{a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
    };
    const double3 once = cross(u, v);
    const double3 twice = cross(u, once);
    double3 result{};
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = v[i] + 2 * (q[3] * once[i] + twice[i]);
    return result;
}

// Where a node puts a vector: the inner rotation, the scale, the outer rotation.
double3 placed(const gltf::node_placement& node, double3 v) {
    if (node.is_sheared)
        v = turned(node.inner_rotation, v);
    for (std::size_t i = 0; i < 3; ++i)
        v[i] *= node.scale[i];
    return turned(node.rotation, v);
}

void expect_placed_like(const gltf::frame& where, const gltf::node_placement& node) {
    for (std::size_t axis = 0; axis < 3; ++axis) {
        double3 unit{};
        unit[axis] = 1;
        const double3 result = placed(node, unit);
        for (std::size_t i = 0; i < 3; ++i)
            EXPECT_NEAR(result[i], where.axes[axis][i], 1e-5) << "axis " << axis << ", component " << i;
    }
}

} // namespace

TEST(NodePlacement, says_nothing_of_what_does_nothing) {
    gltf::json node;
    gltf::place(node, gltf::placement_of({}));
    EXPECT_TRUE(node.is_null());
}

TEST(NodePlacement, of_a_quarter_turn_about_z_is_a_rotation) {
    const gltf::frame where{{{{0, 1, 0}, {-1, 0, 0}, {0, 0, 1}}}, {1, 2, 3}};
    gltf::json node;
    gltf::place(node, gltf::placement_of(where));
    EXPECT_EQ(node, gltf::json({{"rotation", {0, 0, 0.70710677, 0.70710677}}, {"translation", {1, 2, 3}}}));
}

TEST(NodePlacement, of_a_mirror_has_a_negative_scale) {
    const gltf::frame where{{{{-2, 0, 0}, {0, 2, 0}, {0, 0, 2}}}, {}};
    const gltf::node_placement node = gltf::placement_of(where);
    EXPECT_LT(node.scale[0] * node.scale[1] * node.scale[2], 0);
    expect_placed_like(where, node);
}

TEST(NodePlacement, of_a_shear_takes_two_nodes) {
    const gltf::frame where{{{{1, 0, 0}, {1, 1, 0}, {0, 0, 1}}}, {}};
    const gltf::node_placement node = gltf::placement_of(where);
    EXPECT_TRUE(node.is_sheared);
    expect_placed_like(where, node);
}

TEST(NodePlacement, of_something_flat_keeps_what_is_left) {
    for (const gltf::frame& where :
         {gltf::frame{{{{2, 0, 0}, {0, 3, 0}, {0, 0, 0}}}, {}}, gltf::frame{{{{0, 0, 0}, {0, 3, 0}, {0, 0, 0}}}, {}},
          gltf::frame{{{{0, 0, 0}, {0, 0, 0}, {0, 0, 0}}}, {}}, gltf::frame{{{{0, 0, 0}, {0, 0, 2}, {0, 2, 0}}}, {}}})
        expect_placed_like(where, gltf::placement_of(where));
}

TEST(NodePlacement, of_any_map_puts_the_axes_where_the_map_does) {
    std::mt19937 engine(7);
    std::uniform_real_distribution<double> part(-3, 3);
    for (int i = 0; i < 500; ++i) {
        gltf::frame where;
        for (double3& axis : where.axes)
            for (double& each : axis)
                each = part(engine);
        expect_placed_like(where, gltf::placement_of(where));
    }
}

TEST(NodePlacement, of_what_is_not_finite_is_finite) {
    const double none = std::nan("");
    gltf::json node;
    gltf::place(node, gltf::placement_of({{{{none, 1, 0}, {0, 1e300, 0}, {0, 0, 1}}}, {none, 1, 2}}));
    EXPECT_EQ(node["translation"], gltf::json({0.0, 1.0, 2.0}));
}

TEST(NodePlacement, looks_along_minus_z_with_y_upwards) {
    const double4 q = gltf::rotation_looking({0, 5, 0}, {0, 0, 1});
    const double3 along = turned(q, {0, 0, -1});
    const double3 up = turned(q, {0, 1, 0});
    EXPECT_NEAR(along[1], 1, 1e-12);
    EXPECT_NEAR(up[2], 1, 1e-12);
    EXPECT_NEAR(turned(gltf::rotation_looking({0, 0, -2}, {0, 0, 1}), {0, 0, -1})[2], -1, 1e-12);
}

TEST(NodePlacement, turns_z_up_into_y_up) {
    const double3 up = turned(gltf::from_z_up, {0, 0, 1});
    const double3 north = turned(gltf::from_z_up, {0, 1, 0});
    EXPECT_NEAR(up[1], 1, 1e-12);
    EXPECT_NEAR(north[2], -1, 1e-12);
}

TEST(Numbers, are_as_short_as_single_precision_allows) {
    EXPECT_EQ(gltf::short_number(0.1), 0.1);
    EXPECT_EQ(gltf::short_number(1.0 / 3), 0.33333334);
    EXPECT_EQ(gltf::short_number(-0.0), 0);
    EXPECT_EQ(gltf::short_number(1e39), 0);
    EXPECT_EQ(gltf::short_number(std::nan("")), 0);
}

TEST(Numbers, of_colours_lose_their_gamma) {
    EXPECT_EQ(gltf::linear_channel(0), 0);
    EXPECT_EQ(gltf::linear_channel(1), 1);
    EXPECT_NEAR(gltf::linear_channel(0.5), 0.21404, 1e-5); // ((0.5 + 0.055) / 1.055) ^ 2.4
    EXPECT_NEAR(gltf::linear_channel(0.04), 0.04 / 12.92, 1e-12);
}
