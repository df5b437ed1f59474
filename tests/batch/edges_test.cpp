// Edges as lines, from the model to the end of the stream.

#include "tests/batch/batch_runner.h"

#include <gtest/gtest.h>

namespace {

using namespace sketchup;

void choose_edges(model_builder& m, int choice) {
    m.attribute(m.root().list(), "qlw_globals", "ivl_edge_lines", whole_number(choice));
}

// 4.2 m over 420 pixels, and lines 2 pixels wide: beams with a half-width of 5 mm.
constexpr std::string_view parallel_view = "CAMERATYPE;ortho\r\nORTHOHEIGHT;4.2\r\nPIXELHEIGHT;420\r\n";

// Every kind of edge: in a group, level, vertical, soft, smooth, hidden, painted, on a layer that is off, and those of
// a face.
void put_edges_of_every_kind(batch& b, int choice) {
    model_builder m;
    list_builder top = m.root();
    top.edge({0, 0, 50}, {100, 0, 50});
    top.edge({0, 0, 0}, {0, 0, 100});
    m.edge(top.edge({0, 10, 0}, {100, 10, 0})).soft = true;
    m.edge(top.edge({0, 20, 0}, {100, 20, 0})).smooth = true;
    m.element(top.edge({0, 30, 0}, {100, 30, 0})).hidden = true;
    m.element(top.edge({0, 40, 0}, {0, 140, 0})).material = m.material("Red", {255, 0, 0, 255});
    m.element(top.edge({0, 60, 0}, {100, 60, 0})).layer = m.layer("off", false);
    top.face({{200, 0, 0}, {300, 0, 0}, {300, 100, 0}, {200, 100, 0}});
    top.group("raised", moved({0, 0, 200})).edge({0, 0, 0}, {0, 0, 100});
    choose_edges(m, choice);
    b.put_model(m);
    b.put("zyn_view.txt", parallel_view);
}

TEST(EdgesBatch, without_the_setting_there_are_none) {
    batch b;
    put_edges_of_every_kind(b, 0);
    expect_run(b, "edges_off");
}

TEST(EdgesBatch, all_edges_are_those_that_are_neither_hidden_nor_smoothed) {
    batch b;
    put_edges_of_every_kind(b, 1);
    expect_run(b, "edges_all");
}

TEST(EdgesBatch, stand_alone_edges_bound_no_face) {
    batch b;
    put_edges_of_every_kind(b, 2);
    expect_run(b, "edges_that_stand_alone");
}

TEST(EdgesBatch, painted_edges_have_a_material_of_their_own) {
    batch b;
    put_edges_of_every_kind(b, 3);
    expect_run(b, "edges_painted");
}

// The sine of 0.523598776 is 0.5. The level edge is 8.4 m away: 0.5 x 8.4 x 2 / 420 / 4 = 0.005. The middle of the
// vertical one is the root of 8.4 x 8.4 + 1.27 x 1.27 away, 8.49546349 m: 0.00505682351.
TEST(EdgesBatch, in_perspective_a_line_is_as_thick_as_it_is_far) {
    batch b;
    model_builder m;
    m.root().edge({0, 0, 0}, {100, 0, 0});
    m.root().edge({50, 0, 0}, {50, 0, 100});
    choose_edges(m, 1);
    b.put_model(m);
    b.put("zyn_pages.txt", "EYE;(1.27,8.4,0)\r\nFOV;0.523598776\r\nPIXELHEIGHT;420\r\nEND_CURRENT;\r\nFOV;1\r\n");
    expect_run(b, "edges_in_perspective");
}

// The edge block lists the layer on which edges count as being; plants and edges of layers that are off are there.
TEST(EdgesBatch, an_animation_holds_the_edges_and_plants_of_nested_layers) {
    batch b;
    model_builder m;
    const sketchup::index walls = m.layer("Walls");
    const sketchup::index doors = m.layer("Doors", false);
    list_builder oak = m.component("oak");
    oak.box({0, 0, 0}, {20, 20, 20});
    m.attribute(oak.list(), "qlw_plant", "library", text("Trees"));
    m.attribute(oak.list(), "qlw_plant", "name", text("Oak"));
    m.attribute(oak.list(), "qlw_plant", "hgt_to_diam", real_number(2));
    m.attribute(oak.list(), "qlw_plant", "wid_to_diam", real_number(1));
    list_builder outer = m.root().group("outer");
    m.element(outer.placement()).layer = walls;
    list_builder inner = outer.group("inner", moved({0, 0, 30}));
    m.element(inner.placement()).layer = doors;
    inner.instance(oak, moved({500, 0, 0}));
    inner.square(10);
    inner.edge({0, 0, 0}, {100, 0, 0});
    m.root().square(10);
    m.element(m.root().edge({0, 0, 0}, {0, 0, 100})).layer = doors;
    m.root().section_plane({1, 0, 0, -5}, true);
    choose_edges(m, 2);
    m.attribute(m.root().list(), "qlw_globals", "ivl_plant_random_height", whole_number(0));
    b.put_model(m);
    b.put("zyn_view.txt", parallel_view);
    expect_run(b, "animation_with_edges", {"-is_animation"});
}

// For a 3D document edges are true lines, plants are what they hold, and outside objects are what they always are.
TEST(EdgesBatch, a_folder_named_3dpdf_batch_makes_a_3d_document) {
    batch b("3dpdf_batch");
    model_builder m;
    list_builder car = m.component("car");
    car.square(10);
    m.attribute(car.list(), "ArchVision RPC", "Name", text("Sedan"));
    m.attribute(car.list(), "ArchVision RPC", "RPCTypeId", text("AV-17"));
    m.root().instance(car, moved({500, 0, 0}));
    list_builder oak = m.component("oak");
    oak.square(10);
    m.attribute(oak.list(), "qlw_plant", "library", text("Trees"));
    m.root().instance(oak, moved({100, 0, 0}));
    m.root().square(10);
    m.root().edge({0, 0, 0}, {0, 0, 100});
    m.root().section_plane({0, 0, 1, -1}, true);
    choose_edges(m, 1);
    b.put_model(m);
    b.put("zyn_view.txt", "EYE;(0,0,0)\r\nFOV;30\r\nPIXELHEIGHT;420\r\n");
    expect_run(b, "3d_document");
}

} // namespace
