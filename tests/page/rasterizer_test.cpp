#include "tools/raster/rasterizer.h"

#include <cmath>
#include <gtest/gtest.h>

namespace {

// Looks down along z at the square of 4 about the origin.
view from_above() {
    view seen;
    seen.eye = {0, 0, 10};
    seen.target = {0, 0, 0};
    seen.up = {0, 1, 0};
    seen.perspective = false;
    seen.height = 4;
    return seen;
}

constexpr std::array<vec, 3> lower_left = {{{-2, -2, 0}, {2, -2, 0}, {-2, 2, 0}}};

TEST(Rasterizer, without_a_background_what_nothing_covers_is_clear) {
    rasterizer drawing(from_above(), 4, 4, 1, std::nullopt);
    drawing.draw(lower_left, color{1, 0, 0});
    const image::picture picture = drawing.drawn();
    ASSERT_TRUE(picture.has_alpha());
    const std::uint8_t* const corner = picture.row(3); // blue, green, red, alpha
    EXPECT_EQ((std::array<int, 4>{corner[0], corner[1], corner[2], corner[3]}), (std::array<int, 4>{0, 0, 255, 255}));
    EXPECT_EQ(picture.row(0)[4 * 3 + 3], 0); // the upper right one
}

TEST(Rasterizer, a_pixel_covered_by_three_quarters_has_that_alpha_and_the_whole_colour) {
    rasterizer drawing(from_above(), 1, 1, 2, std::nullopt);
    drawing.draw(std::array<vec, 3>{{{-2, -2, 0}, {2, -2, 0}, {-2, 6, 0}}}, color{0, 1, 0}); // three of the four points
    const image::picture picture = drawing.drawn();
    EXPECT_EQ(picture.row(0)[1], 255);
    EXPECT_EQ(picture.row(0)[3], 191); // 3 * 255 / 4
}

TEST(Rasterizer, half_clear_red_lets_half_of_the_background_through) {
    rasterizer drawing(from_above(), 1, 1, 1, color{0, 0, 1});
    drawing.draw(std::array<vec, 3>{{{-9, -9, 0}, {9, -9, 0}, {0, 9, 0}}}, color{1, 0, 0}, 0.5);
    const image::picture picture = drawing.drawn();
    ASSERT_FALSE(picture.has_alpha());
    EXPECT_EQ(picture.row(0)[0], 128);
    EXPECT_EQ(picture.row(0)[2], 128);
}

TEST(Rasterizer, a_line_is_as_wide_as_a_pixel_however_many_points_that_has) {
    rasterizer drawing(from_above(), 4, 4, 3, std::nullopt);
    drawing.draw_line({-9, 0.5, 0}, {9, 0.5, 0}, {1, 1, 1}); // through the middle of the second row
    const image::picture picture = drawing.drawn();
    for (std::uint32_t row = 0; row < 4; ++row)
        EXPECT_EQ(picture.row(row)[4 * 2 + 3], row == 1 ? 255 : 0) << row;
}

// A square of 4x4 points takes 16 and one more, a triangle over all of it too.
TEST(Rasterizer, what_would_take_too_long_is_left_out_and_it_says_so) {
    constexpr std::array<vec, 3> whole = {{{-9, -9, 0}, {9, -9, 0}, {0, 9, 0}}};
    constexpr std::array<vec, 3> nearer = {{{-9, -9, 1}, {9, -9, 1}, {0, 9, 1}}};
    rasterizer enough(from_above(), 4, 4, 1, color{0, 0, 1}, 34);
    enough.draw(whole, color{1, 0, 0});
    enough.draw(nearer, color{0, 1, 0});
    EXPECT_FALSE(enough.is_cut_short());
    EXPECT_EQ(enough.drawn().row(1)[3 + 1], 255);
    rasterizer short_one(from_above(), 4, 4, 1, color{0, 0, 1}, 33);
    short_one.draw(whole, color{1, 0, 0});
    short_one.draw(nearer, color{0, 1, 0});
    EXPECT_TRUE(short_one.is_cut_short());
    EXPECT_EQ(short_one.drawn().row(1)[3 + 2], 255); // still red
}

TEST(Rasterizer, what_lies_beside_the_picture_comes_to_an_end_too) {
    rasterizer drawing(from_above(), 4, 4, 1, color{0, 0, 1}, 2);
    for (int i = 0; i < 3; ++i)
        drawing.draw(std::array<vec, 3>{{{99, 99, 0}, {101, 99, 0}, {99, 101, 0}}}, color{1, 0, 0});
    EXPECT_TRUE(drawing.is_cut_short());
}

TEST(Rasterizer, a_picture_that_is_hidden_does_not_show_through) {
    auto blue = image::picture::make({1, 1, 24});
    ASSERT_TRUE(blue);
    blue->row(0)[0] = 255;
    rasterizer drawing(from_above(), 1, 1, 1, color{1, 1, 1});
    constexpr std::array<picture_point, 3> points = {{{0, 0}, {1, 0}, {0, 1}}};
    drawing.draw(std::array<vec, 3>{{{-9, -9, 1}, {9, -9, 1}, {0, 9, 1}}}, color{1, 0, 0});
    drawing.draw(std::array<vec, 3>{{{-9, -9, 0}, {9, -9, 0}, {0, 9, 0}}}, points, *blue);
    EXPECT_EQ(drawing.drawn().row(0)[0], 0);
    drawing.draw(std::array<vec, 3>{{{-9, -9, 2}, {9, -9, 2}, {0, 9, 2}}}, points, *blue);
    EXPECT_EQ(drawing.drawn().row(0)[0], 255);
}

TEST(ViewOfBox, the_ball_around_the_box_just_fits_the_picture) {
    const view seen = view_of_box({-3, -2, -6}, {3, 2, 6}, 1.5); // half the diagonal is 7
    EXPECT_TRUE(looks_somewhere(seen));
    EXPECT_EQ(seen.target, (vec{0, 0, 0}));
    const double away = std::hypot(seen.eye[0], seen.eye[1], seen.eye[2]);
    EXPECT_NEAR(std::asin(7 / away) * 360 / 3.14159265358979, seen.field_of_view, 1e-9);
    EXPECT_TRUE(seen.fov_is_vertical);
    EXPECT_FALSE(view_of_box({0, 0, 0}, {1, 1, 1}, 0.5).fov_is_vertical);
}

TEST(ViewOfBox, a_point_is_seen_from_some_distance) {
    EXPECT_TRUE(looks_somewhere(view_of_box({5, 5, 5}, {5, 5, 5}, 1)));
}

TEST(View, an_eye_at_its_target_and_an_angle_of_nothing_look_nowhere) {
    view seen;
    seen.eye = {1, 0, 0};
    EXPECT_TRUE(looks_somewhere(seen));
    seen.field_of_view = 0;
    EXPECT_FALSE(looks_somewhere(seen));
    seen.perspective = false;
    EXPECT_FALSE(looks_somewhere(seen)); // its height is 0
    seen.height = 1;
    EXPECT_TRUE(looks_somewhere(seen));
    seen.eye = seen.target;
    EXPECT_FALSE(looks_somewhere(seen));
}

} // namespace
