#include "sketchup/model/sweep_cost.h"

#include "sketchup/model/sweep_plane.h"

#include <gtest/gtest.h>

#include <array>

namespace sketchup {
namespace {

constexpr vec3 up{0, 0, 1};

bool is_bearable(const std::vector<vec3>& points) {
    const std::array<std::uint32_t, 1> sizes = {static_cast<std::uint32_t>(points.size())};
    return sweep_cost().is_bearable(points, sizes, up);
}

// Up and down between y = 0 and y = 1 with a corner at every whole x below `turns`, and back along y = 0.5 in steps, so
// that every line on the way there is crossed once.
std::vector<vec3> saw(int turns, int steps) {
    std::vector<vec3> points;
    for (int i = 0; i < turns; ++i) {
        points.push_back({double(i), double(i % 2), 0});
    }
    for (int i = steps; i > 0; --i) {
        points.push_back({double(i) * turns / steps, 0.5, 0});
    }
    return points;
}

TEST(SweepCost, a_crossing_for_each_corner_is_bearable) {
    EXPECT_TRUE(is_bearable(saw(1000, 10))); // about 1000 crossings, 1010 corners
}

// From side to side of a strip, the corners far apart along it, so that most pairs of lines cross.
std::vector<vec3> zigzag_of_long_lines(int count) {
    std::vector<vec3> points;
    for (int i = 0; i < count; ++i) {
        points.push_back({i % 2 == 0 ? 0.0 : 1.0, double((i * 7919) % count), 0});
    }
    return points;
}

TEST(SweepCost, many_crossings_for_each_corner_are_not) {
    EXPECT_FALSE(is_bearable(zigzag_of_long_lines(2000)));
    EXPECT_TRUE(is_bearable(zigzag_of_long_lines(200))) << "so few corners are always bearable";
}

TEST(SweepCost, lines_that_only_meet_at_corners_do_not_cross) {
    std::vector<vec3> fan;
    for (int i = 0; i < 1000; ++i) {
        fan.push_back({0, 0, 0});
        fan.push_back({1, double(i), 0});
        fan.push_back({1, double(i) + 0.5, 0});
    }
    EXPECT_TRUE(is_bearable(fan));
}

TEST(SweepCost, lines_that_lie_upon_each_other_in_heaps_are_not_bearable) {
    std::vector<vec3> heap;
    for (int i = 0; i < 1000; ++i) {
        heap.push_back({0, double((i * 7919) % 1000), 0});
    }
    EXPECT_FALSE(is_bearable(heap));
}

TEST(SweepCost, a_few_holes_joined_to_the_outline_by_doubled_lines_are_bearable) {
    std::vector<vec3> notched = {{1000, -1, 0}, {1000, 1, 0}};
    for (int i = 999; i > 0; --i) {
        notched.push_back({double(i), 1, 0});
        notched.push_back({double(i), 0.5, 0});
        notched.push_back({double(i), 1, 0});
    }
    notched.push_back({0, -1, 0});
    EXPECT_TRUE(is_bearable(notched));
}

// The 200 lines of the teeth are 200 · 199 / 2 = 19,900 pairs; with those between their feet there cannot be more than
// 302 · 301 / 2 = 45,451.
TEST(SweepCost, lines_side_by_side_are_bearable_until_there_are_too_many) {
    std::vector<vec3> comb = {{-1, 0, 0}};
    for (int i = 0; i < 100; ++i) {
        comb.push_back({0, 2.0 * i, 0});
        comb.push_back({500, 2.0 * i + 0.5, 0});
        comb.push_back({0, 2.0 * i + 1, 0});
    }
    comb.push_back({-1, 200, 0});
    const std::array<std::uint32_t, 1> sizes = {302};
    EXPECT_TRUE(sweep_cost(45'451).is_bearable(comb, sizes, up));
    EXPECT_FALSE(sweep_cost(19'800).is_bearable(comb, sizes, up));
}

TEST(SweepPlane, drops_the_longest_axis_of_the_normal_and_keeps_the_turning_sense) {
    const vec3 p{1, 2, 3};
    EXPECT_EQ(sweep_plane({0, 0, 1}).project(p), (sweep_point{1, 2}));
    EXPECT_EQ(sweep_plane({0, 0, -1}).project(p), (sweep_point{1, -2}));
    EXPECT_EQ(sweep_plane({0, 1, 0}).project(p), (sweep_point{3, 1}));
    EXPECT_EQ(sweep_plane({0, -1, 0}).project(p), (sweep_point{3, -1}));
    EXPECT_EQ(sweep_plane({1, 0, 0}).project(p), (sweep_point{2, 3}));
    EXPECT_EQ(sweep_plane({-1, 0, 0}).project(p), (sweep_point{2, -3}));
    EXPECT_EQ(sweep_plane({1, 1, 1}).project(p), (sweep_point{2, 3})) << "the first of equal ones";
    EXPECT_EQ(sweep_plane({0, 1, -1}).project(p), (sweep_point{3, 1}));
}

} // namespace
} // namespace sketchup
