// The arithmetic of edge lines.

#include "tessaline/faces/edge_geometry.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

TEST(EdgeGeometry, a_vertical_line_takes_the_x_axis_as_its_reference) {
    const line_frame frame = frame_of({0, 0, 2});
    EXPECT_EQ(frame.a, (fpt{0, 2, 0}));  // (0,0,2) x (1,0,0)
    EXPECT_EQ(frame.b, (fpt{-4, 0, 0})); // (0,0,2) x (0,2,0)
}

TEST(EdgeGeometry, a_level_line_takes_the_z_axis) {
    const line_frame frame = frame_of({3, 4, 0});
    EXPECT_EQ(frame.a, (fpt{4, -3, 0}));  // (3,4,0) x (0,0,1)
    EXPECT_EQ(frame.b, (fpt{0, 0, -25})); // (3,4,0) x (4,-3,0)
}

TEST(EdgeGeometry, a_line_must_be_steeper_than_it_is_wide_in_x_and_in_y) {
    EXPECT_EQ(frame_of({1, 0, 1}).a, (fpt{0, -1, 0}));   // as high as wide: (1,0,1) x (0,0,1)
    EXPECT_EQ(frame_of({0, -1, -1}).a, (fpt{-1, 0, 0})); // (0,-1,-1) x (0,0,1)
    EXPECT_EQ(frame_of({1, 0, -2}).a, (fpt{0, -2, 0}));  // steeper: (1,0,-2) x (1,0,0)
    EXPECT_EQ(frame_of({2, 0, 3}).a, (fpt{0, 3, 0}));
}

TEST(EdgeGeometry, a_line_without_length_has_no_directions) {
    EXPECT_EQ(frame_of({0, 0, 0}).a, fpt());
    EXPECT_EQ(frame_of({0, 0, 0}).b, fpt());
}

TEST(EdgeGeometry, sizes_grow_with_distance_in_perspective_only) {
    EXPECT_DOUBLE_EQ(perspective_size(0.5, 10, 2, 400), 0.025); // 0.5 x 10 x 2 / 400
    EXPECT_DOUBLE_EQ(parallel_size(8, 2, 400), 0.04);           // 8 / 400 x 2
}

TEST(EdgeGeometry, a_picture_without_height_gives_what_the_division_gives) {
    EXPECT_EQ(perspective_size(0.5, 10, 2, 0), HUGE_VAL);
    EXPECT_TRUE(std::isnan(perspective_size(0, 10, 2, 0)));
    EXPECT_TRUE(std::isnan(parallel_size(0, 2, 0)));
}

} // namespace
