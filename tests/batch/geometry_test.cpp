// What becomes of faces: their blocks, triangles, numbers and normals.

#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

// A square of 10 inches whose low corner is there, looking up.
void add_square(list_builder list, double x, double y, double z = 0) {
    list.face({{x, y, z}, {x + 10, y, z}, {x + 10, y + 10, z}, {x, y + 10, z}});
}

TEST(GeometryBatch, an_empty_model_gives_eleven_lines) {
    batch b;
    model_builder m;
    b.put_model(m);
    expect_run(b, "empty_model");
}

TEST(GeometryBatch, a_square_becomes_one_block_of_two_triangles) {
    batch b;
    model_builder m;
    m.root().square(10);
    b.put_model(m);
    expect_run(b, "one_square");
}

TEST(GeometryBatch, every_face_but_the_first_is_preceded_by_a_second_closing_line) {
    batch b;
    model_builder m;
    m.root().square(10);
    add_square(m.root(), 20, 0);
    b.put_model(m);
    expect_run(b, "two_squares");
}

TEST(GeometryBatch, a_triangle_begins_at_the_corner_that_the_sweep_meets_last) {
    batch b;
    model_builder m;
    m.root().face({{0, 0, 0}, {10, 0, 0}, {0, 10, 0}});
    b.put_model(m);
    expect_run(b, "triangle");
}

TEST(GeometryBatch, a_face_with_a_hole_is_cut_round_the_hole) {
    batch b;
    model_builder m;
    const std::vector<vec3> outline = {{0, 0, 0}, {100, 0, 0}, {100, 100, 0}, {0, 100, 0}};
    const std::vector<std::vector<vec3>> holes = {{{40, 40, 0}, {60, 40, 0}, {60, 60, 0}, {40, 60, 0}}};
    m.root().face(outline, holes);
    b.put_model(m);
    expect_run(b, "face_with_a_hole");
}

TEST(GeometryBatch, the_six_faces_of_a_box_look_outward) {
    batch b;
    model_builder m;
    m.root().box({0, 0, 0}, {10, 20, 30});
    b.put_model(m);
    expect_run(b, "box");
}

TEST(GeometryBatch, numbers_have_nine_digits_and_are_cut_to_0_in_metres) {
    batch b;
    model_builder m;
    const double z = -100000.0 / 3;  // x 0.0254: -846.666667
    const double near = 3e-6;        // x 0.0254: 7.62e-08, below the limit though 3e-06 is not
    const double far = 48000.123456; // x 0.0254: 1219.20314
    const double wide = 1.0 / 3;     // x 0.0254: 0.00846666667
    m.root().face({{near, 0, z}, {far, 0, z}, {far, wide, z}, {near, wide, z}});
    b.put_model(m);
    expect_run(b, "small_and_large_coordinates");
}

// Above x = -1, y = 0 a normal that looks up has no second direction to turn about, and is taken from the world's axes
// as they are seen from that corner: (2,0,-5) x (1,1,-5) = (5,5,2).
TEST(GeometryBatch, the_normal_tilts_at_a_corner_above_minus_1_and_0) {
    batch b;
    model_builder m;
    add_square(m.root(), -1, 0, 5);
    b.put_model(m);
    expect_run(b, "corner_where_the_normal_tilts");
}

TEST(GeometryBatch, a_face_that_casts_no_shadow_says_so_behind_the_opening_line) {
    batch b;
    model_builder m;
    m.element(m.root().square(10)).casts_shadows = false;
    add_square(m.root(), 20, 0);
    b.put_model(m);
    expect_run(b, "shadowless_face");
}

TEST(GeometryBatch, a_model_gives_the_same_bytes_in_every_run) {
    batch b;
    model_builder m;
    m.root().square(10);
    add_square(m.root().group("raised", moved({0, 0, 10})), 20, 0);
    b.put_model(m);
    b.run();
    const files_by_name first = b.files();
    b.run();
    EXPECT_EQ(differences(first, b.files()), std::vector<std::string>());
    EXPECT_NE(first.at("batch_file.txt"), "");
}

} // namespace
