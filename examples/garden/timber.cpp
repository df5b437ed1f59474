// What was built of timber.

#include "garden_parts.h"

using namespace sketchup;

namespace {

// Posts share one component; the rails between them are stand-alone edges, as wires are drawn.
void add_fence(model_builder& m, const garden_materials& use) {
    list_builder post = m.component("Fence post");
    post.box({-2, -2, 0}, {2, 2, 48});
    list_builder fence = m.root().group("Fence", moved({0, garden_depth - 4, 0}));
    m.element(fence.placement()).layer = m.layer("Fence");
    for (double x = 4; x < garden_width; x += 74)
        m.element(fence.instance(post, moved({x, 0, 0}))).material = use.timber;
    for (const double z : {16.0, 30.0, 44.0})
        m.element(fence.edge({4, 0, z}, {596, 0, z})).material = use.timber;
}

void add_pergola(model_builder& m, const garden_materials& use) {
    list_builder pergola = m.root().group("Pergola", moved({250, 340, 0}));
    for (const double x : {0.0, 100.0})
        for (const double y : {0.0, 80.0})
            add_box(m, pergola, "Post", {x, y, 0}, {x + 5, y + 5, 90}, use.timber);
    for (const double y : {0.0, 80.0})
        add_box(m, pergola, "Beam", {-8, y + 0.5, 90}, {113, y + 4.5, 97}, use.timber);
    for (double x = 0; x <= 100; x += 25)
        add_box(m, pergola, "Rafter", {x + 1, -8, 97}, {x + 4, 93, 101}, use.timber);
}

void add_bench(model_builder& m, const garden_materials& use) {
    list_builder bench = m.root().group("Bench", after(moved({372, 250, 0}), turned_about_z(90)));
    add_box(m, bench, "Seat", {0, 0, 16}, {60, 16, 18}, use.timber);
    add_box(m, bench, "Left foot", {4, 2, 0}, {8, 14, 16}, use.stone);
    add_box(m, bench, "Right foot", {52, 2, 0}, {56, 14, 16}, use.stone);
}

// The first cuts; the second is an old one that was switched off, and stays out of the stream.
void add_section_planes(model_builder& m) {
    m.root().section_plane({0, -1, 0, 470}, true, "Behind the fence");
    m.root().section_plane({1, 0, 0, -300}, false, "Along the path");
}

} // namespace

void add_timber(model_builder& m, const garden_materials& use) {
    add_fence(m, use);
    add_pergola(m, use);
    add_bench(m, use);
    add_section_planes(m);
}
