// Placements, worked out by hand.

#include "tessaline/model/transforms.h"

#include <gtest/gtest.h>

namespace {

TEST(Transforms, a_transform_whose_last_element_is_1_is_left_alone) {
    transform16 transform{2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 4, 0, 5, 6, 7, 1};
    const transform16 before = transform;
    normalise(transform);
    EXPECT_EQ(transform, before);
}

TEST(Transforms, a_uniform_scale_in_the_last_element_moves_into_the_others) {
    transform16 transform{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 20, 30, 0.5};
    normalise(transform);
    EXPECT_EQ(transform, (transform16{2, 0, 0, 0, 0, 2, 0, 0, 0, 0, 2, 0, 20, 40, 60, 1}));
}

TEST(Transforms, the_inner_placement_is_applied_first) {
    const transform16 move{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 10, 0, 0, 1};
    const transform16 quarter_turn{0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    // Turned, then moved: the origin ends at (10, 0, 0).
    EXPECT_EQ(composed(move, quarter_turn), (transform16{0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 10, 0, 0, 1}));
    // Moved, then turned: the origin ends at (0, 10, 0).
    EXPECT_EQ(composed(quarter_turn, move), (transform16{0, 1, 0, 0, -1, 0, 0, 0, 0, 0, 1, 0, 0, 10, 0, 1}));
}

TEST(Transforms, the_last_row_is_computed_like_the_others) {
    const transform16 outer{1, 0, 0, 1, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    const transform16 inner{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 3, 0, 0, 1};
    // Element 15: 1 x 3 (row 3, column 0 of outer by x of inner's translation) + 1.
    EXPECT_EQ(composed(outer, inner)[15], 4);
}

TEST(Transforms, a_component_that_faces_the_camera_keeps_the_scale_of_its_first_two_axes) {
    transform16 transform{2, 0, 0, 0, 0, 3, 0, 0, 0, 0, 5, 0, 7, 8, 9, 1};
    face_camera(transform, {0, 0, 50}, {30, 40, 0}); // seen from above the direction is (0.6, 0.8)
    const transform16 expected{1.6, -1.2, 0, 0, 1.8, 2.4, 0, 0, 0, 0, 5, 0, 7, 8, 9, 1};
    for (std::size_t at = 0; at < 16; ++at)
        EXPECT_NEAR(transform[at], expected[at], 1e-12) << at;
}

TEST(Transforms, a_camera_along_x_turns_the_first_axis_to_minus_y_exactly) {
    transform16 transform = identity16;
    face_camera(transform, {0, 0, 0}, {10, 0, 0});
    EXPECT_EQ(vector_image(transform, {1, 0, 0}), (fpt{0, -1, 0}));
    EXPECT_EQ(vector_image(transform, {0, 1, 0}), (fpt{1, 0, 0}));
}

TEST(Transforms, a_camera_that_looks_straight_down_leaves_no_plan_direction) {
    transform16 transform = identity16;
    face_camera(transform, {0, 0, 100}, {0, 0, 0});
    EXPECT_EQ(vector_image(transform, {1, 1, 0}), (fpt{0, 0, 0}));
}

TEST(Transforms, the_images_of_the_axes_are_the_first_three_elements_of_each_column) {
    const std::array<fpt, 3> axes = axis_images({1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16});
    EXPECT_EQ(axes[0], (fpt{1, 2, 3}));
    EXPECT_EQ(axes[1], (fpt{5, 6, 7}));
    EXPECT_EQ(axes[2], (fpt{9, 10, 11}));
}

TEST(Transforms, a_vector_is_not_moved) {
    const transform16 transform{0, 2, 0, 0, -2, 0, 0, 0, 0, 0, 2, 0, 10, 20, 30, 1};
    EXPECT_EQ(vector_image(transform, {1, 0, 0}), (fpt{0, 2, 0}));
    EXPECT_EQ(origin_image(transform), (fpt{10, 20, 30}));
}

TEST(Transforms, one_mirror_mirrors_and_a_second_one_undoes_it) {
    const transform16 mirror{-1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    EXPECT_FALSE(is_mirrored(identity16));
    EXPECT_TRUE(is_mirrored(mirror));
    EXPECT_FALSE(is_mirrored(composed(mirror, mirror)));
}

TEST(Transforms, a_matrix_takes_the_columns_as_its_own) {
    const transform16 transform{1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16};
    const matrix4 expected{{{1, 5, 9, 4}, {2, 6, 10, 8}, {3, 7, 11, 12}, {13, 14, 15, 16}}};
    EXPECT_EQ(matrix_from(transform).forward, expected);
}

} // namespace
