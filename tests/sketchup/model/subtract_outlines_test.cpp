#include "sketchup/model/subtract_outlines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace sketchup {
namespace {

using testing::ElementsAre;

using flat_loop = std::vector<sweep_point>;

flat_loop rectangle(double s, double t, double to_s, double to_t) {
    return {{s, t}, {to_s, t}, {to_s, to_t}, {s, to_t}};
}

// A face of 10 x 8 and openings in it.
outlines wall_with(const std::vector<flat_loop>& openings) {
    outlines shape;
    shape.face_loops = 1;
    const auto add = [&shape](const flat_loop& loop) {
        shape.loops.emplace_back();
        for (const sweep_point& p : loop) {
            shape.loops.back().push_back(static_cast<index>(shape.points.size()));
            shape.points.push_back(p);
        }
    };
    add(rectangle(0, 0, 10, 8));
    for (const flat_loop& loop : openings) {
        add(loop);
    }
    return shape;
}

double area_left(const std::vector<flat_loop>& openings) {
    outlines shape = wall_with(openings);
    contours left;
    EXPECT_TRUE(subtract(shape, 0, left));
    return left.area;
}

TEST(SubtractOutlines, both_halves_of_an_outline_that_crosses_itself_are_taken_off_also_under_another) {
    const flat_loop bow = {{1, 1}, {3, 3}, {3, 1}, {1, 3}};
    EXPECT_DOUBLE_EQ(area_left({bow}), 78); // two triangles of 1
    // The strip beside it is 3 large and has 0.75 in common with a triangle.
    EXPECT_DOUBLE_EQ(area_left({bow, rectangle(2.5, 0.5, 3.5, 3.5)}), 75.75);
    EXPECT_DOUBLE_EQ(area_left({bow, rectangle(0.5, 0.5, 1.5, 3.5)}), 75.75);
}

TEST(SubtractOutlines, loops_begin_with_their_lowest_point_and_follow_one_another_by_it) {
    outlines shape = wall_with({{{4, -1}, {5, -1}, {5, 9}, {4, 9}}});
    contours left;
    ASSERT_TRUE(subtract(shape, 0, left));
    // Crossings are numbered from 8 on.
    ASSERT_EQ(left.pieces, 2u);
    EXPECT_EQ(left.loops[0][0], 0u);
    EXPECT_EQ(left.loops[0][3], 3u);
    EXPECT_THAT(std::vector(left.loops[1].begin(), left.loops[1].begin() + 2), ElementsAre(1, 2));
    EXPECT_EQ(shape.points.size(), 12u);
}

TEST(SubtractOutlines, pieces_below_the_width_asked_for_are_left_out) {
    const flat_loop all_but_a_strip = rectangle(-1, -1, 9.5, 9);
    outlines shape = wall_with({all_but_a_strip});
    contours left;
    ASSERT_TRUE(subtract(shape, 0.4, left)); // 2 x area 4 by the perimeter of 17 is 0.47
    EXPECT_EQ(left.pieces, 1u);
    ASSERT_TRUE(subtract(shape, 0.5, left));
    EXPECT_EQ(left.pieces, 0u);
}

TEST(SubtractOutlines, an_opening_beyond_the_grid_is_refused) {
    outlines shape = wall_with({rectangle(1, 1, 1e5, 2)});
    contours left;
    EXPECT_FALSE(subtract(shape, 0, left));
}

} // namespace
} // namespace sketchup
