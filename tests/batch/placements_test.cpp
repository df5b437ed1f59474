// Where groups and components put their faces in the world.

#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

TEST(PlacementsBatch, a_mirrored_group_turns_its_triangles_round) {
    batch b;
    model_builder m;
    m.root().group("mirrored", scaled(-1, 1, 1)).square(10);
    b.put_model(m);
    expect_run(b, "mirrored_group");
}

TEST(PlacementsBatch, a_mirror_in_a_mirror_leaves_its_triangles_as_they_are) {
    batch b;
    model_builder m;
    m.root().group("outer", scaled(-1, 1, 1)).group("inner", scaled(1, -1, 1)).square(10);
    b.put_model(m);
    expect_run(b, "mirror_in_a_mirror");
}

TEST(PlacementsBatch, a_mirrored_two_sided_face_is_turned_round_in_its_first_pass_only) {
    batch b;
    model_builder m;
    m.root().group("mirrored", scaled(-1, 1, 1)).square(10);
    m.attribute(m.root().list(), "qlw_globals", "ivl_2_sided_faces", whole_number(2));
    b.put_model(m);
    expect_run(b, "mirrored_group_two_sided");
}

// Triangles of which two corners are 5e-08 inch apart are left out.
TEST(PlacementsBatch, a_squeezed_placement_keeps_its_vertices_and_loses_its_triangles) {
    batch b;
    model_builder m;
    m.root().group("squeezed", scaled(5e-9, 1, 1)).square(10);
    b.put_model(m);
    expect_run(b, "squeezed_placement");
}

TEST(PlacementsBatch, a_component_is_written_anew_for_each_turned_placement) {
    batch b;
    model_builder m;
    list_builder tile = m.component("tile");
    tile.square(10);
    m.root().instance(tile, turned_about_z(90));
    m.root().instance(tile, after(moved({20, 100, 0}), turned_about_z(180)));
    m.root().instance(tile, after(moved({50, 0, 0}), turned_about_z(30)));
    b.put_model(m);
    expect_run(b, "turned_placements");
}

TEST(PlacementsBatch, a_weight_of_one_half_doubles_size_and_distance) {
    batch b;
    model_builder m;
    list_builder tile = m.component("tile");
    tile.square(10);
    transform halved = moved({10, 0, 0});
    halved[15] = 0.5;
    m.root().instance(tile, halved);
    b.put_model(m);
    expect_run(b, "weight_in_a_placement");
}

// Seen from (100, 0) towards the origin the first axis runs along y and the second along -x.
TEST(PlacementsBatch, a_component_that_faces_the_camera_keeps_its_scale) {
    batch b;
    model_builder m;
    m.model().camera.eye = {100, 0, 50};
    m.model().camera.target = {0, 0, 0};
    list_builder tile = m.component("tile");
    tile.square(10);
    m.definition(tile).behavior.always_faces_camera = true;
    m.root().instance(tile, after(moved({100, 0, 0}), scaled(2, 3, 4)));
    b.put_model(m);
    expect_run(b, "camera_facing_component");
}

} // namespace
