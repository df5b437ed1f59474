#include "sketchup/skp/writer/written_cameras.h"

#include "sketchup/model/vector_math.h"

#include <gtest/gtest.h>

namespace {

using sketchup::camera;
using sketchup::vec3;

camera looking(const vec3& from, const vec3& to, const vec3& up) {
    camera c;
    c.eye = from;
    c.target = to;
    c.up = up;
    c.height = 20;
    return c;
}

} // namespace

TEST(WrittenCameras, a_view_that_is_upright_and_has_a_height_stays_as_it_is) {
    const camera written = skp::written_camera(looking({0, -100, 0}, {0, 0, 0}, {0, 0, 1}));
    EXPECT_EQ(written.up, (vec3{0, 0, 1}));
    EXPECT_EQ(written.height, 20);
}

TEST(WrittenCameras, an_up_vector_that_is_a_hair_off_stays_as_it_is) {
    EXPECT_EQ(skp::written_camera(looking({0, -100, 0}, {0, 0, 0}, {0, 0.0004, 1})).up, (vec3{0, 0.0004, 1}));
}

TEST(WrittenCameras, a_slanted_up_vector_is_turned_to_a_right_angle) {
    // The view falls 3 for every 4 that it goes ahead, so up leans 3 ahead for every 4 that it rises.
    const vec3 up = skp::written_camera(looking({0, 0, 3}, {0, 4, 0}, {0, 0, 1})).up;
    EXPECT_NEAR(up.x, 0, 1e-15);
    EXPECT_NEAR(up.y, 0.6, 1e-15);
    EXPECT_NEAR(up.z, 0.8, 1e-15);
}

TEST(WrittenCameras, a_view_from_above_whose_up_is_the_view_itself_gets_north_as_up) {
    EXPECT_EQ(skp::written_camera(looking({0, 0, 9}, {0, 0, 0}, {0, 0, 1})).up, (vec3{0, 1, 0}));
}

TEST(WrittenCameras, a_view_without_height_gets_the_usual_one) {
    camera c = looking({0, -100, 0}, {0, 0, 0}, {0, 0, 1});
    c.height = 0;
    EXPECT_EQ(skp::written_camera(c).height, 133);
}

TEST(WrittenCameras, a_view_from_where_it_looks_to_keeps_its_up_vector) {
    EXPECT_EQ(skp::written_camera(looking({1, 2, 3}, {1, 2, 3}, {0, 1, 0})).up, (vec3{0, 1, 0}));
}
