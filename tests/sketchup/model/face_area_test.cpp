#include "sketchup/model/face_area.h"

#include "shapes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace sketchup {
namespace {

using test::points;
using test::shapes;

constexpr vec3 up{0, 0, 1};

TEST(FaceArea, holes_are_taken_off_whichever_way_they_run) {
    const points outline = {{0, 0, 0}, {10, 0, 0}, {10, 10, 0}, {0, 10, 0}};
    const points hole = {{1, 1, 0}, {1, 3, 0}, {3, 3, 0}, {3, 1, 0}};
    const points reversed_hole = {{6, 6, 0}, {8, 6, 0}, {8, 7, 0}};
    shapes s;
    const face& f = s.face({outline, hole, reversed_hole}, up);
    EXPECT_DOUBLE_EQ(face_area(s.model, f), 100 - 4 - 1);
}

TEST(FaceArea, a_concave_face_far_from_the_origin_keeps_its_digits) {
    const double far = 1e6;
    shapes s;
    const face& f = s.face(
        points{{far, 0, far}, {far + 2, 0, far}, {far + 2, 0, far + 2}, {far + 1, 0, far + 1}, {far, 0, far + 2}},
        {0, -1, 0});
    EXPECT_DOUBLE_EQ(face_area(s.model, f), 3);
}

TEST(FaceArea, a_placement_scales_stretches_and_mirrors_it) {
    shapes s;
    const face& f = s.face(points{{0, 0, 0}, {2, 0, 0}, {2, 3, 0}, {0, 3, 0}}, up);
    const transform mirrored = {-4, 0, 0, 0, 0, 5, 0, 0, 0, 0, 1, 0, 7, 8, 9, 1};
    EXPECT_DOUBLE_EQ(face_area(s.model, f, mirrored), 6 * 4 * 5);
    const transform doubled = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 0.5};
    EXPECT_DOUBLE_EQ(face_area(s.model, f, doubled), 6 * 4);
    const transform sheared = {1, 0, 0, 0, 0, 1, 1, 0, 0, 0, 1, 0, 0, 0, 0, 1}; // z follows y
    EXPECT_DOUBLE_EQ(face_area(s.model, f, sheared), 6 * std::sqrt(2.0));
}

TEST(FaceArea, what_is_degenerate_or_damaged_has_none) {
    shapes s;
    EXPECT_EQ(face_area(s.model, face()), 0);
    EXPECT_EQ(face_area(s.model, s.face(points{{0, 0, 0}, {1, 0, 0}}, up)), 0);
    EXPECT_EQ(face_area(s.model, s.face(points{{0, 0, 0}, {1, 0, 0}, {2, 0, 0}}, up)), 0);
    const face& damaged = s.face(points{{0, 0, 5}, {1, 0, 5}, {1, 1, 5}}, up);
    s.model.vertices.back().position.x = std::numeric_limits<double>::infinity();
    EXPECT_EQ(face_area(s.model, damaged), 0);
}

} // namespace
} // namespace sketchup
