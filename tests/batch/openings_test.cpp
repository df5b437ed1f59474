// Walls with something glued to them that cuts an opening.

#include "sketchup/builder/model_builder.h"
#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

// A picture of 2 by 2 pixels: black, red, green, white.
const std::vector<std::uint8_t> small_bmp = {
    'B', 'M', 70, 0,   0,   0,   0, 0, 0, 0, 54, 0, 0, 0,           // the file's header
    40,  0,   0,  0,   2,   0,   0, 0, 2, 0, 0,  0, 1, 0,   24, 0,  // the picture's
    0,   0,   0,  0,   16,  0,   0, 0, 0, 0, 0,  0, 0, 0,   0,  0,  //
    0,   0,   0,  0,   0,   0,   0, 0,                              //
    0,   255, 0,  255, 255, 255, 0, 0, 0, 0, 0,  0, 0, 255, 0,  0}; // rows of 6 bytes and 2, from the bottom

// A component of four edges in the plane z = 0 of its own axes, a square from the origin, that cuts what it is glued
// to.
list_builder window(model_builder& m, double side) {
    list_builder made = m.component("window");
    m.definition(made).behavior.cuts_opening = true;
    made.edge({0, 0, 0}, {side, 0, 0});
    made.edge({side, 0, 0}, {side, side, 0});
    made.edge({side, side, 0}, {0, side, 0});
    made.edge({0, side, 0}, {0, 0, 0});
    return made;
}

// An upright wall of 100 inches that looks along -y, with bricks of 5 x 2.5 inches before and boards of 10 x 20 behind,
// and a window of 20 in its middle. The coordinates are x / 5 and z / 2.5, x / 10 and z / 20.
TEST(OpeningsBatch, a_wall_that_shows_two_textures_has_the_opening_of_its_window_on_both_sides) {
    batch b;
    model_builder m;
    const entity_place wall = m.root().face({{-100, 0, 0}, {0, 0, 0}, {0, 0, 100}, {-100, 0, 100}});
    m.face(wall).material = m.textured_material("Brick", small_bmp, "brick.bmp", 5, 2.5);
    m.face(wall).back_material = m.textured_material("Boards", small_bmp, "boards.bmp", 10, 20);
    const transform upright = {1, 0, 0, 0, 0, 0, 1, 0, 0, -1, 0, 0, -60, 0, 40, 1};
    m.root().glue(m.root().instance(window(m, 20), upright), wall);
    b.put_model(m);
    for (const char* name : {"TX0001_Brick.BMP", "TX0002_Boards.BMP"})
        b.expect_file(std::string("Batch_SketchUp_Textures/") + name, std::string(small_bmp.begin(), small_bmp.end()));
    expect_run(b, "wall_with_a_window");
}

// What is left is the square beside it.
TEST(OpeningsBatch, a_wall_that_is_all_window_leaves_no_block) {
    batch b;
    model_builder m;
    const entity_place wall = m.root().face({{50, 0, 0}, {70, 0, 0}, {70, 20, 0}, {50, 20, 0}});
    m.root().glue(m.root().instance(window(m, 20), moved({50, 0, 0})), wall);
    m.root().square(10);
    b.put_model(m);
    expect_run(b, "one_square");
}

} // namespace
