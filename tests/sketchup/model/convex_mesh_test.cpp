#include "sketchup/model/convex_mesh.h"

#include "shapes.h"
#include "sketchup/model/vector_math.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

namespace sketchup {
namespace {

using test::points;

std::string text_of(const points& corners, const vec3& normal) {
    std::string text = "normal " + testing::PrintToString(std::array{normal.x, normal.y, normal.z}) + " corners";
    for (const vec3& p : corners) {
        text += " " + testing::PrintToString(std::array{p.x, p.y, p.z});
    }
    return text;
}

// Compares the short cut with the sweep wherever it applies, and counts how often it did.
class comparison {
public:
    int compared = 0;

    void operator()(const points& corners, const vec3& normal) {
        if (!convex_mesh(corners, normal, fast_)) {
            return;
        }
        ++compared;
        const std::array<index, 1> sizes = {static_cast<index>(corners.size())};
        tessellator_.sweep(corners, sizes, normal, swept_);
        ASSERT_EQ(fast_.triangles, swept_.triangles) << text_of(corners, normal);
        ASSERT_EQ(fast_.corners, swept_.corners) << text_of(corners, normal);
        ASSERT_EQ(fast_.vertices, swept_.vertices) << text_of(corners, normal);
    }

private:
    tessellator tessellator_;
    face_mesh fast_;
    face_mesh swept_;
};

class random_shapes {
public:
    explicit random_shapes(std::uint64_t seed) : random_(seed) {}

    double between(double low, double high) { return std::uniform_real_distribution<double>(low, high)(random_); }
    int whole(int low, int high) { return std::uniform_int_distribution<int>(low, high)(random_); }

    // Along an axis, along a diagonal (where two or three components are equally large), or anywhere.
    vec3 normal() {
        if (whole(0, 2) > 0) {
            const vec3 n{double(whole(-1, 1)), double(whole(-1, 1)), double(whole(-1, 1))};
            return normalized_or(n, {0, 0, 1});
        }
        return normalized_or({between(-1, 1), between(-1, 1), between(-1, 1)}, {0, 0, 1});
    }

    points corners(double (random_shapes::*coordinate)()) {
        points result(static_cast<std::size_t>(whole(3, 4)));
        for (vec3& p : result) {
            p = {(this->*coordinate)(), (this->*coordinate)(), 0};
        }
        return result;
    }

    double anywhere() { return between(-1000, 1000); }
    double on_grid() { return whole(-2, 2); }
    double far_away() { return 1e7 + between(0, 1e-2); }
    double nearly_on_grid() { return whole(-1, 1) + whole(-1, 1) * between(0, 3e-9); }
    double of_any_size() { return between(-1, 1) * std::pow(10, whole(-30, 30)); }

private:
    std::mt19937_64 random_;
};

void compare_many(double (random_shapes::*coordinate)(), std::uint64_t seed, int rounds, int least_compared) {
    SCOPED_TRACE("seed " + std::to_string(seed));
    random_shapes random(seed);
    comparison compare;
    for (int round = 0; round < rounds && !testing::Test::HasFatalFailure(); ++round) {
        const vec3 normal = random.normal();
        compare(test::in_plane_of(normal, random.corners(coordinate)), normal);
    }
    EXPECT_GT(compare.compared, least_compared);
}

TEST(ConvexMesh, equals_the_sweep_for_corners_anywhere) {
    compare_many(&random_shapes::anywhere, 1, 400'000, 100'000);
}

TEST(ConvexMesh, equals_the_sweep_on_a_grid_where_coordinates_tie) {
    compare_many(&random_shapes::on_grid, 2, 400'000, 50'000);
}

TEST(ConvexMesh, equals_the_sweep_far_from_the_origin) {
    compare_many(&random_shapes::far_away, 3, 200'000, 50'000);
}

TEST(ConvexMesh, equals_the_sweep_where_corners_nearly_tie_or_are_nearly_straight) {
    compare_many(&random_shapes::nearly_on_grid, 4, 400'000, 20'000);
}

TEST(ConvexMesh, equals_the_sweep_for_slivers_of_any_size) {
    compare_many(&random_shapes::of_any_size, 5, 400'000, 1'000);
}

// Exact coordinates, not turned: all ties are real.
TEST(ConvexMesh, equals_the_sweep_for_every_triangle_and_quadrilateral_of_a_grid_on_every_axis) {
    comparison compare;
    const auto place = [](int axis, int i) {
        const double a = i % 3;
        const double b = i / 3;
        return axis == 0 ? vec3{5, a, b} : axis == 1 ? vec3{b, 5, a} : vec3{a, b, 5};
    };
    for (int axis = 0; axis < 3; ++axis) {
        for (const double sign : {1.0, -1.0}) {
            const vec3 normal{axis == 0 ? sign : 0, axis == 1 ? sign : 0, axis == 2 ? sign : 0};
            for (int code = 0; code < 9 * 9 * 9 * 9; ++code) {
                const std::array<int, 4> i = {code % 9, code / 9 % 9, code / 81 % 9, code / 729};
                points corners = {place(axis, i[0]), place(axis, i[1]), place(axis, i[2]), place(axis, i[3])};
                compare(corners, normal);
                if (i[3] == 0) {
                    corners.pop_back();
                    compare(corners, normal);
                }
                ASSERT_FALSE(HasFatalFailure());
            }
        }
    }
    EXPECT_GT(compare.compared, 1000);
}

TEST(ConvexMesh, leaves_to_the_sweep_what_is_not_strictly_convex) {
    face_mesh mesh;
    mesh.triangles = {7};
    const vec3 up{0, 0, 1};
    EXPECT_FALSE(convex_mesh(points{{0, 0, 0}, {4, 0, 0}, {1, 1, 0}, {0, 4, 0}}, up, mesh)) << "concave";
    EXPECT_FALSE(convex_mesh(points{{0, 0, 0}, {2, 0, 0}, {4, 0, 0}, {0, 4, 0}}, up, mesh)) << "straight corner";
    EXPECT_FALSE(convex_mesh(points{{0, 0, 0}, {2, 1e-12, 0}, {4, 0, 0}, {0, 4, 0}}, up, mesh)) << "nearly straight";
    EXPECT_FALSE(convex_mesh(points{{0, 0, 0}, {4, 0, 0}, {4, 0, 0}, {0, 4, 0}}, up, mesh)) << "corner given twice";
    EXPECT_FALSE(convex_mesh(points{{0, 0, 0}, {2, 2, 0}, {2, 0, 0}, {0, 2, 0}}, up, mesh)) << "bow tie";
    EXPECT_FALSE(convex_mesh(points{{0, 0, 0}, {0, 4, 0}, {4, 0, 0}}, up, mesh)) << "clockwise";
    EXPECT_FALSE(convex_mesh(points{{0, 0, 0}, {2, 0, 0}, {3, 1, 0}, {2, 2, 0}, {0, 2, 0}}, up, mesh))
        << "five corners";
    EXPECT_THAT(mesh.triangles, testing::ElementsAre(7)) << "the mesh must be left alone";
}

} // namespace
} // namespace sketchup
