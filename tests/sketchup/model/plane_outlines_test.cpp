#include "sketchup/model/plane_outlines.h"

#include "tests/sketchup/model/print_points.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using sketchup::plane_outline;
using sketchup::point2;
using sketchup::segment2;

using lines = std::vector<segment2>;

// The lines between neighbours.
lines chain(const std::vector<point2>& points) {
    lines result;
    for (std::size_t i = 1; i < points.size(); ++i)
        result.push_back({points[i - 1], points[i]});
    return result;
}

lines rectangle(double x0, double y0, double x1, double y1) {
    return chain({{x0, y0}, {x1, y0}, {x1, y1}, {x0, y1}, {x0, y0}});
}

lines operator+(lines a, const lines& b) {
    a.insert(a.end(), b.begin(), b.end());
    return a;
}

std::vector<plane_outline> outlines_of(const lines& segments) {
    sketchup::work_allowance ample(std::size_t{1} << 30);
    return sketchup::outlines_of(segments, 1e-3, ample);
}

const plane_outline square = {{0, 0}, {10, 0}, {10, 10}, {0, 10}};

} // namespace

TEST(PlaneOutlines, a_closed_chain_runs_counter_clockwise_from_its_lower_left_corner) {
    EXPECT_EQ(outlines_of(chain({{10, 10}, {10, 0}, {0, 0}, {0, 10}, {10, 10}})), std::vector<plane_outline>{square});
}

TEST(PlaneOutlines, points_on_straight_sides_stay) {
    EXPECT_EQ(outlines_of(chain({{0, 0}, {4, 0}, {10, 0}, {10, 10}, {0, 10}, {0, 0}})),
              (std::vector<plane_outline>{{{0, 0}, {4, 0}, {10, 0}, {10, 10}, {0, 10}}}));
}

TEST(PlaneOutlines, an_open_chain_is_no_outline) {
    EXPECT_TRUE(outlines_of(chain({{0, 0}, {10, 0}, {10, 10}, {0, 10}})).empty());
}

TEST(PlaneOutlines, loose_ends_are_left_out) {
    const lines loose = chain({{10, 10}, {15, 15}, {15, 20}}) + chain({{5, 20}, {6, 30}});
    EXPECT_EQ(outlines_of(loose + rectangle(0, 0, 10, 10)), std::vector<plane_outline>{square});
}

TEST(PlaneOutlines, a_bar_between_two_closed_parts_is_left_out) {
    EXPECT_EQ(outlines_of(rectangle(0, 0, 10, 10) + chain({{10, 0}, {20, 0}}) + rectangle(20, 0, 30, 10)),
              (std::vector<plane_outline>{square, {{20, 0}, {30, 0}, {30, 10}, {20, 10}}}));
}

TEST(PlaneOutlines, separate_parts_are_outlines_of_their_own_in_the_order_of_their_lines) {
    EXPECT_EQ(outlines_of(rectangle(20, 0, 30, 10) + rectangle(0, 0, 10, 10)),
              (std::vector<plane_outline>{{{20, 0}, {30, 0}, {30, 10}, {20, 10}}, square}));
}

TEST(PlaneOutlines, what_lies_inside_another_outline_is_left_out) {
    const lines panes = rectangle(1, 1, 4, 9) + rectangle(6, 1, 9, 9) + rectangle(2, 2, 3, 3);
    EXPECT_EQ(outlines_of(panes + rectangle(0, 0, 10, 10)), std::vector<plane_outline>{square});
}

TEST(PlaneOutlines, an_outline_beside_another_within_the_same_box_stays) {
    const lines corner = chain({{0, 0}, {10, 0}, {10, 2}, {2, 2}, {2, 10}, {0, 10}, {0, 0}});
    EXPECT_EQ(outlines_of(corner + rectangle(5, 5, 8, 8)).size(), 2u);
}

TEST(PlaneOutlines, an_outline_that_touches_another_from_inside_is_left_out) {
    EXPECT_EQ(outlines_of(rectangle(0, 0, 10, 10) + chain({{5, 0}, {8, 3}, {2, 3}, {5, 0}})),
              std::vector<plane_outline>{square});
}

TEST(PlaneOutlines, an_outline_that_touches_another_from_outside_stays) {
    EXPECT_EQ(outlines_of(rectangle(0, 0, 10, 10) + chain({{5, 0}, {8, -3}, {2, -3}, {5, 0}})).size(), 2u);
}

TEST(PlaneOutlines, parts_with_a_common_side_have_the_outline_around_both) {
    EXPECT_EQ(outlines_of(rectangle(0, 0, 10, 10) + rectangle(10, 0, 30, 10)),
              (std::vector<plane_outline>{{{0, 0}, {10, 0}, {30, 0}, {30, 10}, {10, 10}, {0, 10}}}));
}

TEST(PlaneOutlines, bars_across_an_outline_change_nothing) {
    EXPECT_EQ(outlines_of(rectangle(0, 0, 10, 10) + chain({{0, 0}, {10, 10}}) + chain({{10, 0}, {5, 6}, {0, 10}})),
              std::vector<plane_outline>{square});
}

TEST(PlaneOutlines, parts_with_a_common_corner_are_one_outline_that_passes_it_twice) {
    EXPECT_EQ(
        outlines_of(rectangle(0, 0, 10, 10) + rectangle(10, 10, 20, 20)),
        (std::vector<plane_outline>{{{0, 0}, {10, 0}, {10, 10}, {20, 10}, {20, 20}, {10, 20}, {10, 10}, {0, 10}}}));
}

TEST(PlaneOutlines, doubled_and_empty_lines_count_once_and_not_at_all) {
    EXPECT_EQ(outlines_of(rectangle(0, 0, 10, 10) + rectangle(0, 0, 10, 10) + chain({{10, 0}, {0, 0}, {0, 0}})),
              std::vector<plane_outline>{square});
}

TEST(PlaneOutlines, points_closer_than_the_tolerance_are_one) {
    EXPECT_EQ(outlines_of({{{0, 0}, {10, 0}}, {{10, 0.0009}, {10, 10}}, {{10, 10}, {0, 10}}, {{0, 10}, {-0.0009, 0}}}),
              std::vector<plane_outline>{square});
}

TEST(PlaneOutlines, points_further_apart_than_the_tolerance_are_two) {
    EXPECT_TRUE(
        outlines_of({{{0, 0}, {10, 0}}, {{10, 0.0011}, {10, 10}}, {{10, 10}, {0, 10}}, {{0, 10}, {0, 0}}}).empty());
}

TEST(PlaneOutlines, one_without_area_is_left_out) {
    EXPECT_TRUE(outlines_of(chain({{0, 0}, {5, 0}, {10, 0}, {5, 1e-8}, {0, 0}})).empty());
    EXPECT_TRUE(outlines_of(chain({{0, 0}, {5, 0}, {10, 0}, {0, 0}})).empty());
}

TEST(PlaneOutlines, lines_to_nowhere_are_left_out) {
    const double no_number = std::numeric_limits<double>::quiet_NaN();
    const double endless = std::numeric_limits<double>::infinity();
    EXPECT_EQ(outlines_of(chain({{0, 0}, {no_number, 0}, {0, endless}, {-endless, 4}, {1e300, 1e300}, {3, 4}}) +
                          rectangle(0, 0, 10, 10)),
              std::vector<plane_outline>{square});
}

TEST(PlaneOutlines, crossing_lines_give_an_outline_that_is_there) {
    const std::vector<plane_outline> found = outlines_of(rectangle(0, 0, 10, 10) + rectangle(5, 5, 15, 15));
    EXPECT_EQ(found.size(), 2u); // none lies inside the other
}

TEST(PlaneOutlines, ten_thousand_holes_of_a_sheet_are_inside_its_border) {
    lines sheet = rectangle(-1, -1, 201, 201);
    for (int i = 0; i < 10000; ++i) {
        const double x = i % 100 * 2, y = i / 100 * 2;
        sheet = std::move(sheet) + rectangle(x, y, x + 1, y + 1);
    }
    EXPECT_EQ(outlines_of(sheet).size(), 1u);
}

TEST(PlaneOutlines, a_hub_of_many_triangles_is_walked_around_once) {
    lines fan;
    constexpr int blades = 30000;
    for (int i = 0; i < blades; ++i) {
        const double angle = i * 6.28 / blades, next = (i + 0.5) * 6.28 / blades;
        fan = std::move(fan) + chain({{0, 0},
                                      {1000 * std::cos(angle), 1000 * std::sin(angle)},
                                      {1000 * std::cos(next), 1000 * std::sin(next)},
                                      {0, 0}});
    }
    const std::vector<plane_outline> found = outlines_of(fan);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(found[0].size(), 3u * blades);
}

TEST(PlaneOutlines, a_chain_of_a_hundred_thousand_lines_needs_no_deep_stack) {
    std::vector<point2> points;
    for (int i = 0; i < 100000; ++i)
        points.push_back({i * 0.01, std::sin(i * 0.01)});
    points.push_back({500, -100});
    points.push_back(points.front());
    EXPECT_EQ(outlines_of(chain(points)).at(0).size(), 100001u);
}

TEST(PlaneOutlines, what_the_allowance_does_not_pay_for_gives_nothing) {
    const lines sheet = rectangle(0, 0, 10, 10) + rectangle(4, 4, 6, 6); // 8 x 1024 and 1 + 4 x 4, and one to spare
    sketchup::work_allowance enough(8 * 1024 + 1 + 16 + 1);
    EXPECT_EQ(sketchup::outlines_of(sheet, 1e-3, enough).size(), 1u);
    sketchup::work_allowance too_little(8 * 1024 + 16);
    EXPECT_EQ(sketchup::outlines_of(sheet, 1e-3, too_little).size(), 0u);
}
