#include "sketchup/model/plane_cut.h"

#include "print_points.h"
#include "shapes.h"
#include "sketchup/model/plane_frame.h"
#include "sketchup/model/vector_math.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <numbers>

namespace sketchup {

namespace {

using test::in_plane_of;
using test::points;
using testing::DoubleNear;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr vec3 up{0, 0, 1};
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

struct loops {
    points all;
    std::vector<index> sizes;
    loops(std::initializer_list<points> list) {
        for (const points& p : list) {
            add(p);
        }
    }
    void add(const points& p) {
        all.insert(all.end(), p.begin(), p.end());
        sizes.push_back(static_cast<index>(p.size()));
    }
    loop_list list() const { return {all, sizes}; }
};

points rectangle(double x, double y, double to_x, double to_y) {
    return {{x, y, 0}, {to_x, y, 0}, {to_x, to_y, 0}, {x, to_y, 0}};
}

points circle(double radius, std::size_t count) {
    points p;
    for (std::size_t i = 0; i < count; ++i) {
        const double angle = 2 * std::numbers::pi * static_cast<double>(i) / static_cast<double>(count);
        p.push_back({radius * std::cos(angle), radius * std::sin(angle), 0});
    }
    return p;
}

plane_cut cut(const loops& face, const loops& openings, const cut_limits& limits = {}) {
    return cut_openings(face.list(), up, openings.list(), limits);
}

// The points of one contour.
points contour(const plane_cut& c, std::size_t number) {
    std::size_t first = 0;
    for (std::size_t i = 0; i < number; ++i) {
        first += c.sizes[i];
    }
    points found;
    for (std::size_t i = first; i < first + c.sizes.at(number); ++i) {
        found.push_back(c.points[i].position);
    }
    return found;
}

const loops wall = {rectangle(0, 0, 10, 8)};
const loops wall_with_a_hole = {rectangle(0, 0, 10, 8), rectangle(4, 2, 6, 4)};

TEST(PlaneCut, an_opening_inside_becomes_one_more_loop_and_nothing_else_changes) {
    const plane_cut left = cut(wall_with_a_hole, {rectangle(1, 1, 2, 3)});
    EXPECT_FALSE(left.is_whole);
    EXPECT_THAT(left.sizes, ElementsAre(4, 4, 4));
    EXPECT_EQ(contour(left, 0), rectangle(0, 0, 10, 8));
    EXPECT_EQ(contour(left, 1), rectangle(4, 2, 6, 4));
    EXPECT_EQ(contour(left, 2), rectangle(1, 1, 2, 3));
    EXPECT_EQ(left.pieces, 1u);
    EXPECT_EQ(left.area, 74); // 10 x 8 - 2 x 2 - 1 x 2
}

TEST(PlaneCut, the_points_say_where_they_come_from) {
    const plane_cut left = cut(wall, {rectangle(8, 1, 12, 2)});
    std::vector<cut_origin> origins;
    std::vector<index> numbers;
    for (const cut_point& p : left.points) {
        origins.push_back(p.origin);
        numbers.push_back(p.number);
    }
    // From the corner at the origin along the bottom, up to the notch, around it, and back.
    EXPECT_EQ(contour(left, 0),
              (points{{0, 0, 0}, {10, 0, 0}, {10, 1, 0}, {8, 1, 0}, {8, 2, 0}, {10, 2, 0}, {10, 8, 0}, {0, 8, 0}}));
    using enum cut_origin;
    EXPECT_THAT(origins, ElementsAre(face, face, crossing, opening, opening, crossing, face, face));
    EXPECT_THAT(numbers, ElementsAre(0, 1, no_index, 0, 3, no_index, 2, 3));
}

TEST(PlaneCut, two_openings_apart_become_two_loops_in_their_order) {
    const plane_cut left = cut(wall, {rectangle(6, 1, 9, 3), rectangle(1, 1, 2, 3)});
    EXPECT_THAT(left.sizes, ElementsAre(4, 4, 4));
    EXPECT_EQ(contour(left, 1), rectangle(6, 1, 9, 3));
    EXPECT_EQ(contour(left, 2), rectangle(1, 1, 2, 3));
    EXPECT_EQ(left.area, 72); // 80 - 3 x 2 - 1 x 2
}

TEST(PlaneCut, the_winding_of_face_and_opening_does_not_matter) {
    points reversed_wall = rectangle(0, 0, 10, 8);
    std::reverse(reversed_wall.begin(), reversed_wall.end());
    points reversed_window = rectangle(1, -1, 2, 3);
    std::reverse(reversed_window.begin(), reversed_window.end());
    EXPECT_EQ(cut({reversed_wall}, {rectangle(1, -1, 2, 3)}).area, 77); // 80 - 1 x 3
    EXPECT_EQ(cut(wall, {reversed_window}).area, 77);
    EXPECT_EQ(cut({reversed_wall}, {reversed_window, rectangle(1.5, -1, 2.5, 3)}).area, 75.5); // 80 - 1.5 x 3
}

TEST(PlaneCut, an_opening_on_the_border_makes_a_notch_without_a_strip_below_it) {
    const plane_cut left = cut(wall, {rectangle(4, 0, 6, 3)});
    EXPECT_THAT(left.sizes, ElementsAre(8));
    EXPECT_EQ(contour(left, 0),
              (points{{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {6, 3, 0}, {6, 0, 0}, {10, 0, 0}, {10, 8, 0}, {0, 8, 0}}));
    EXPECT_EQ(left.area, 74);
}

TEST(PlaneCut, an_opening_a_little_off_the_border_is_brought_to_it) {
    for (const double off : {-9e-4, 9e-4}) {
        const plane_cut left = cut(wall, {rectangle(4, off, 6, 3)});
        EXPECT_EQ(contour(left, 0),
                  (points{{0, 0, 0}, {4, 0, 0}, {4, 3, 0}, {6, 3, 0}, {6, 0, 0}, {10, 0, 0}, {10, 8, 0}, {0, 8, 0}}));
        EXPECT_EQ(left.area, 74);
    }
}

TEST(PlaneCut, an_opening_further_off_the_border_than_the_tolerance_leaves_a_strip) {
    const plane_cut left = cut(wall, {rectangle(4, 0.0011, 6, 3)});
    EXPECT_THAT(left.sizes, ElementsAre(4, 4));
    EXPECT_NEAR(left.area, 80 - 2 * 2.9989, 1e-12);
}

TEST(PlaneCut, an_opening_in_a_corner_takes_the_corner) {
    const plane_cut left = cut(wall, {rectangle(4e-4, -4e-4, 2, 3)});
    EXPECT_EQ(contour(left, 0), (points{{10, 0, 0}, {10, 8, 0}, {0, 8, 0}, {0, 3, 0}, {2, 3, 0}, {2, 0, 0}}));
    EXPECT_EQ(left.area, 74);
}

TEST(PlaneCut, an_opening_that_touches_a_corner_in_a_point_leaves_one_piece) {
    const plane_cut left = cut(wall, {{{0, 0, 0}, {3, 1, 0}, {1, 3, 0}}});
    EXPECT_EQ(left.pieces, 1u);
    EXPECT_NEAR(left.area, 76, 1e-12); // 80 - (9 - 1) / 2
}

TEST(PlaneCut, openings_that_touch_each_other_become_one_hole) {
    for (const double gap : {0.0, 6e-4, -6e-4}) {
        const plane_cut left = cut(wall, {rectangle(1, 1, 3, 4), rectangle(3 + gap, 1, 5, 4)});
        EXPECT_EQ(left.sizes.size(), 2u) << gap;
        EXPECT_EQ(left.pieces, 1u);
        EXPECT_NEAR(left.area, 68, 1e-12); // 80 - 4 x 3
    }
}

TEST(PlaneCut, outlines_each_a_little_off_the_last_do_not_all_draw_together) {
    loops openings = {};
    for (int i = 0; i < 10; ++i) {
        openings.add(rectangle(1, 1, 3 + 0.9e-3 * i, 3));
    }
    // Each second one joins the one before: right sides at 3, 3, 3.0018, 3.0018, ... 3.0072, 3.0072.
    EXPECT_NEAR(cut(wall, openings).area, 80 - 2 * 2.0072, 1e-9);
}

TEST(PlaneCut, an_opening_that_touches_a_hole_widens_it) {
    const plane_cut left = cut(wall_with_a_hole, {rectangle(6 + 5e-4, 2, 8, 4)});
    EXPECT_EQ(left.sizes.size(), 2u);
    EXPECT_NEAR(left.area, 72, 1e-12); // 80 - 4 x 2
}

TEST(PlaneCut, an_opening_that_reaches_over_the_border_takes_what_lies_inside) {
    const plane_cut left = cut(wall, {rectangle(-2, -1, 3, 2)});
    EXPECT_EQ(contour(left, 0), (points{{10, 0, 0}, {10, 8, 0}, {0, 8, 0}, {0, 2, 0}, {3, 2, 0}, {3, 0, 0}}));
    EXPECT_EQ(left.area, 74);
}

TEST(PlaneCut, an_opening_that_reaches_in_by_less_than_the_tolerance_leaves_the_corners_where_they_are) {
    const plane_cut left = cut(wall, {rectangle(-2, -1, 5e-4, 9)});
    EXPECT_EQ(contour(left, 0), rectangle(0, 0, 10, 8));
    EXPECT_EQ(left.area, 80);
}

TEST(PlaneCut, an_opening_inside_a_hole_takes_nothing) {
    EXPECT_TRUE(cut(wall_with_a_hole, {rectangle(4.5, 2.5, 5.5, 3.5)}).is_whole);
    // Part of the hole's border is its own.
    const plane_cut touching = cut(wall_with_a_hole, {rectangle(4, 2, 5, 3)});
    EXPECT_EQ(touching.area, 76);
}

TEST(PlaneCut, an_opening_around_a_hole_swallows_it) {
    const plane_cut left = cut(wall_with_a_hole, {rectangle(3, 1, 7, 5)});
    EXPECT_THAT(left.sizes, ElementsAre(4, 4));
    EXPECT_EQ(left.area, 64); // 80 - 4 x 4
}

TEST(PlaneCut, an_opening_far_away_takes_nothing) {
    EXPECT_TRUE(cut(wall, {rectangle(400, 0, 402, 3)}).is_whole);
}

TEST(PlaneCut, overlapping_openings_count_once) {
    const plane_cut left = cut(wall, {rectangle(1, 1, 4, 4), rectangle(3, 3, 6, 6)});
    EXPECT_THAT(left.sizes, ElementsAre(4, 8));
    EXPECT_EQ(left.area, 63);                                                      // 80 - 9 - 9 + 1
    EXPECT_EQ(cut(wall, {rectangle(1, 1, 4, 4), rectangle(2, 2, 3, 3)}).area, 71); // one inside the other
    EXPECT_EQ(cut(wall, {rectangle(1, 1, 4, 4), rectangle(1, 1, 4, 4)}).area, 71); // twice the same
}

TEST(PlaneCut, an_opening_as_large_as_the_face_or_larger_leaves_nothing) {
    for (const points& p :
         {rectangle(0, 0, 10, 8), rectangle(5e-4, 5e-4, 10 - 5e-4, 8 - 5e-4), rectangle(-1, -1, 11, 9)}) {
        const plane_cut left = cut(wall, {p});
        EXPECT_FALSE(left.is_whole);
        EXPECT_THAT(left.points, IsEmpty());
        EXPECT_THAT(left.sizes, IsEmpty());
        EXPECT_EQ(left.pieces, 0u);
        EXPECT_EQ(left.area, 0);
    }
}

TEST(PlaneCut, an_opening_across_the_face_splits_it_in_two) {
    const plane_cut left = cut(wall, {rectangle(4, -1, 5, 8 + 5e-4)});
    EXPECT_EQ(left.pieces, 2u);
    EXPECT_EQ(contour(left, 0), (points{{0, 0, 0}, {4, 0, 0}, {4, 8, 0}, {0, 8, 0}}));
    EXPECT_EQ(contour(left, 1), (points{{10, 0, 0}, {10, 8, 0}, {5, 8, 0}, {5, 0, 0}}));
    EXPECT_NEAR(left.area, 72, 1e-12);
}

TEST(PlaneCut, pieces_that_touch_in_points_are_counted_apart) {
    // A square on its tip that reaches all four sides of a square leaves its four corners.
    const plane_cut left = cut({rectangle(0, 0, 2, 2)}, {{{1, 0, 0}, {2, 1, 0}, {1, 2, 0}, {0, 1, 0}}});
    EXPECT_EQ(left.pieces, 4u);
    EXPECT_THAT(left.sizes, ElementsAre(3, 3, 3, 3));
    EXPECT_EQ(left.area, 2);
}

TEST(PlaneCut, a_sliver_of_a_nearly_touching_outline_is_dropped) {
    // Beside the opening a wedge is left, 0 wide at the bottom and 0.0018 at the top.
    const points door = {{1, -1, 0}, {10, -1, 0}, {10, 0, 0}, {10 - 0.0018, 9, 0}, {1, 9, 0}};
    const plane_cut left = cut(wall, {door});
    EXPECT_EQ(left.pieces, 1u);
    EXPECT_NEAR(left.area, 8, 1e-9);
    const plane_cut with_sliver = cut(wall, {door}, {.tolerance = 0});
    EXPECT_EQ(with_sliver.pieces, 2u);
    EXPECT_NEAR(with_sliver.area, 8 + 0.0016 * 8 / 2, 1e-9); // 0.0018 x 8 / 9 wide at the top
}

TEST(PlaneCut, a_concave_face_keeps_the_corners_on_its_straight_sides) {
    const points corner = {{0, 0, 0}, {5, 0, 0}, {10, 0, 0}, {10, 4, 0}, {4, 4, 0}, {4, 8, 0}, {0, 8, 0}};
    const plane_cut left = cut({corner}, {rectangle(8, 2, 12, 6)});
    EXPECT_EQ(
        contour(left, 0),
        (points{{0, 0, 0}, {5, 0, 0}, {10, 0, 0}, {10, 2, 0}, {8, 2, 0}, {8, 4, 0}, {4, 4, 0}, {4, 8, 0}, {0, 8, 0}}));
    EXPECT_EQ(left.area, 52); // 40 + 16 - 4
}

TEST(PlaneCut, corners_come_back_to_the_last_bit_and_new_points_lie_in_the_plane) {
    const vec3 normal = vec3{2, -3, 6} / 7.0;
    const vec3 away = {1234.5678, -321.1, 0.1};
    const auto placed = [&](const points& flat) {
        points p = in_plane_of(normal, flat);
        for (vec3& corner : p) {
            corner = corner + away;
        }
        return p;
    };
    const loops face = {placed({{0.1, 0.3, 0}, {10.7, 0.1, 0}, {9.9, 8.3, 0}, {0.3, 7.7, 0}})};
    const loops openings = {placed({{8, 1.1, 0}, {12.3, 1.3, 0}, {12.1, 2.9, 0}, {8.1, 3.1, 0}})};
    const plane_cut left = cut_openings(face.list(), normal, openings.list());
    ASSERT_THAT(left.sizes, ElementsAre(8));
    std::size_t corners = 0;
    for (const cut_point& p : left.points) {
        if (p.origin == cut_origin::face) {
            EXPECT_EQ(p.position, face.all[p.number]);
            ++corners;
        }
        EXPECT_NEAR(dot(p.position - face.all[0], normal), 0, 1e-11);
    }
    EXPECT_EQ(corners, 4u);
}

TEST(PlaneCut, a_face_that_crosses_itself_stays_whole) {
    EXPECT_TRUE(cut({points{{0, 0, 0}, {4, 4, 0}, {4, 0, 0}, {0, 4, 0}}}, {rectangle(0.2, 1.9, 0.4, 2.1)}).is_whole);
    EXPECT_TRUE(cut({rectangle(0, 0, 4, 4), rectangle(3, 1, 6, 2)}, {rectangle(1, 1, 2, 2)}).is_whole);
}

TEST(PlaneCut, an_opening_that_crosses_itself_leaves_the_face_whole) {
    EXPECT_TRUE(cut(wall, {{{1, 1, 0}, {3, 3, 0}, {3, 1, 0}, {1, 3, 0}}}).is_whole);
}

TEST(PlaneCut, openings_without_area_take_nothing) {
    EXPECT_TRUE(cut(wall, {{{1, 1, 0}, {2, 2, 0}}}).is_whole);
    EXPECT_TRUE(cut(wall, {{{1, 1, 0}, {2, 2, 0}, {3, 3, 0}}}).is_whole);
    EXPECT_TRUE(cut(wall, {{{1, 1, 0}, {1, 1, 0}, {1, 1, 0}, {1, 1, 0}}}).is_whole);
    EXPECT_TRUE(cut(wall, {{}}).is_whole);
    EXPECT_TRUE(cut(wall, {}).is_whole);
}

TEST(PlaneCut, an_opening_beside_the_face_takes_nothing_though_rounding_puts_a_corner_of_it_inside) {
    const vec3 normal = vec3{-6, 3, 2} / 7.0;
    const plane_frame frame({3, -2, 5}, normal);
    const auto lifted = [&frame](std::initializer_list<sweep_point> flat) {
        points p;
        for (const sweep_point& corner : flat) {
            p.push_back(frame.lift(corner));
        }
        return p;
    };
    const loops face = {lifted({{5, 18}, {23, 18}, {23, 36}, {5, 36}})};
    const loops openings = {lifted({{18, 18}, {18, 0}, {31.0011, 16}})};
    const plane_cut left = cut_openings(face.list(), normal, openings.list(), {.tolerance = 0});
    EXPECT_TRUE(left.is_whole || std::abs(left.area - 324) < 1e-9) << left.area; // 18 x 18
}

TEST(PlaneCut, openings_whose_sides_run_slantwise_along_each_other_are_joined) {
    // The right side of the second window runs from 8e-4 left to 8e-4 right of the first one's.
    const points first = rectangle(1, 1, 3, 7);
    const points second = {{2, 1, 0}, {3 - 8e-4, 1, 0}, {3 + 8e-4, 7, 0}, {2, 7, 0}};
    EXPECT_NEAR(cut(wall, {first, second}).area, 68, 1e-9); // 80 - 2 x 6
}

TEST(PlaneCut, what_is_no_number_takes_nothing) {
    EXPECT_TRUE(cut(wall, {{{1, 1, 0}, {nan, 1, 0}, {2, 2, 0}}}).is_whole);
    EXPECT_TRUE(cut({points{{0, 0, 0}, {10, 0, 0}, {10, nan, 0}}}, {rectangle(1, 1, 2, 2)}).is_whole);
    EXPECT_TRUE(cut_openings(wall.list(), {0, nan, 1}, loops{rectangle(1, 1, 2, 2)}.list()).is_whole);
    EXPECT_TRUE(cut_openings(wall.list(), {}, loops{rectangle(1, 1, 2, 2)}.list()).is_whole);
    EXPECT_TRUE(cut({}, {rectangle(1, 1, 2, 2)}).is_whole);
    // One bad opening does not spare the face the others.
    EXPECT_EQ(cut(wall, {{{1, 1, 0}, {nan, 1, 0}, {2, 2, 0}}, rectangle(1, 1, 2, 2)}).area, 79);
}

TEST(PlaneCut, an_opening_thousands_of_times_larger_than_the_face_is_refused) {
    EXPECT_TRUE(cut(wall, {rectangle(1, 1, 1e6, 1e6)}).is_whole);
    EXPECT_EQ(cut(wall, {rectangle(2, -1, 1e4, 1e4)}).area, 16); // 2 x 8
}

TEST(PlaneCut, an_outline_of_thousands_of_points_is_cut) {
    const points round = circle(3, 20'000);
    const double area = 20'000 / 2.0 * 9 * std::sin(2 * std::numbers::pi / 20'000);
    EXPECT_NEAR(cut({rectangle(-4, -4, 4, 4)}, {round}).area, 64 - area, 1e-9);
    // Half of it beyond the border.
    EXPECT_NEAR(cut({rectangle(-4, 0, 4, 4)}, {round}).area, 32 - area / 2, 1e-9);
}

TEST(PlaneCut, thousands_of_openings_are_cut) {
    loops openings = {};
    for (int i = 0; i < 50; ++i) {
        for (int j = 0; j < 50; ++j) {
            openings.add(rectangle(2 * i + 0.5, 2 * j + 0.5, 2 * i + 1.5, 2 * j + 1.5));
        }
    }
    EXPECT_EQ(cut({rectangle(0, 0, 100, 100)}, openings).area, 7500); // 10000 - 2500
    // The topmost row reaches over by 0.6: 100 x 98.9 - 49 x 50 - 50 x 0.4
    EXPECT_NEAR(cut({rectangle(0, 0, 100, 98.9)}, openings).area, 7420, 1e-9);
}

TEST(PlaneCut, a_face_whose_outlines_are_too_long_stays_whole) {
    // A comb of 1000 teeth: each tooth's sides stand beside all the others.
    points comb = {{0, -1, 0}};
    for (int i = 0; i < 1000; ++i) {
        const double x = i;
        comb.insert(comb.end(), {{8, x, 0}, {8, x + 0.5, 0}, {1, x + 0.5, 0}, {1, x + 1, 0}});
    }
    comb.push_back({0, 1000, 0});
    const loops face = {rectangle(-1, -2, 9, 1001)};
    EXPECT_FALSE(cut(face, {comb}).is_whole);
    EXPECT_TRUE(cut(face, {comb}, {.most_pairs = 1'000'000}).is_whole);
}

TEST(PlaneCut, openings_entangled_beyond_measure_leave_the_face_whole) {
    // 60 strips across 60 strips: 60 x 60 x 4 crossings, of 480 points.
    loops openings = {};
    for (int i = 0; i < 60; ++i) {
        openings.add(rectangle(i + 0.25, 1, i + 0.75, 59));
        openings.add(rectangle(1, i + 0.25, 59, i + 0.75));
    }
    EXPECT_TRUE(cut({rectangle(0, 0, 60, 60)}, openings).is_whole);
}

} // namespace
} // namespace sketchup
