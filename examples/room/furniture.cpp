// What stands and hangs in the room.

#include "room_parts.h"

using namespace sketchup;

namespace {

void add_table(model_builder& m, const room_materials& use) {
    list_builder leg = m.component("Leg");
    leg.box({0, 0, 0}, {3, 3, 28});
    list_builder table = m.root().group("Table", moved({62, 52, 0}));
    m.element(table.placement()).material = use.walnut;
    for (const double x : {0.0, 53.0})
        for (const double y : {0.0, 31.0})
            table.instance(leg, moved({x, y, 0}));
    add_box(m, table, "Glass top", {-2, -2, 28}, {58, 36, 29}, use.glass);
    add_box(m, table, "Bowl", {22, 12, 29}, {34, 22, 32}, use.brass);
}

list_builder chair(model_builder& m, const room_materials& use) {
    list_builder made = m.component("Chair");
    for (const double x : {0.0, 14.0})
        for (const double y : {0.0, 14.0})
            made.box({x, y, 0}, {x + 2, y + 2, 17});
    made.box({0, 14, 18.5}, {2, 16, 36});
    made.box({14, 14, 18.5}, {16, 16, 36});
    made.box({2, 14.5, 28}, {14, 15.5, 36});
    add_box(m, made, "Seat", {0, 0, 17}, {16, 16, 18.5}, use.cushion);
    return made;
}

void add_chairs(model_builder& m, const room_materials& use) {
    const list_builder made = chair(m, use);
    list_builder root = m.root();
    for (const transform& where : {moved({66, 84, 0}), after(moved({116, 84, 0}), scaled(-1, 1, 1)),
                                   after(moved({84, 50, 0}), turned_about_z(180))})
        m.element(root.instance(made, where)).material = use.walnut;
}

void add_sofa(model_builder& m, const room_materials& use) {
    list_builder sofa = m.root().group("Sofa", after(moved({178, 40, 0}), turned_about_z(90)));
    m.element(sofa.placement()).material = use.linen;
    sofa.box({0, 0, 4}, {76, 34, 16});
    sofa.box({0, 0, 16}, {76, 9, 34});
    sofa.box({0, 9, 16}, {8, 34, 24});
    sofa.box({68, 9, 16}, {76, 34, 24});
    add_box(m, sofa, "Left cushion", {9, 10, 16}, {37, 33, 20}, use.cushion);
    add_box(m, sofa, "Right cushion", {39, 10, 16}, {67, 33, 20}, use.cushion);
}

void add_shelf(model_builder& m, const room_materials& use) {
    list_builder shelf = m.root().group("Shelf", moved({8, 138, 0}));
    m.element(shelf.placement()).material = use.walnut;
    shelf.box({0, 0, 0}, {2, 11, 72});
    shelf.box({40, 0, 0}, {42, 11, 72});
    for (const double z : {4.0, 26.0, 48.0, 70.0})
        shelf.box({2, 0, z}, {40, 11, z + 2});
    const sketchup::index covers[] = {use.rug, use.linen, use.leaf, use.cushion};
    double x = 4;
    for (int book = 0; book < 8; ++book) {
        const double width = 2 + book % 3;
        const double height = 14 + book * 5 % 4;
        add_box(m, shelf, "Book", {x, 2, 28}, {x + width, 10, 28 + height}, covers[book % 4]);
        x += width + 0.25;
    }
}

void add_plant(model_builder& m, const room_materials& use) {
    list_builder pot = m.root().group("Pot", moved({16, 24, 0}));
    m.element(pot.placement()).material = use.clay;
    add_turned(pot, {0, 0, 0}, {{0, 6}, {12, 8}}, 8);
    list_builder leaves = m.root().group("Leaves", moved({16, 24, 11}));
    m.element(leaves.placement()).material = use.leaf;
    // Each leaf is folded along its middle: from the stalk out and up, then over to its tip.
    constexpr double outward[][2] = {{1, 0},  {0.7, 0.7},   {0, 1},  {-0.7, 0.7},
                                     {-1, 0}, {-0.7, -0.7}, {0, -1}, {0.7, -0.7}};
    double height = 18;
    for (const auto& [x, y] : outward) {
        const vec3 bend = {7 * x, 7 * y, height};
        const vec3 left = {5 * x - 4 * y, 5 * y + 4 * x, height - 3};
        const vec3 right = {5 * x + 4 * y, 5 * y - 4 * x, height - 3};
        const vec3 tip = {15 * x, 15 * y, height - 2};
        leaves.face({{0, 0, 0}, bend, left});
        leaves.face({{0, 0, 0}, right, bend});
        leaves.face({bend, tip, left});
        leaves.face({bend, right, tip});
        height = height > 24 ? 16 : height + 5;
    }
}

void add_mirror(model_builder& m, const room_materials& use) {
    list_builder mirror = m.root().group("Mirror");
    const double wall = room_width;
    add_box(m, mirror, "Frame", {wall - 2, 56, 44}, {wall, 100, 84}, use.brass);
    const double x = wall - 2.25;
    m.element(mirror.face({{x, 97, 47}, {x, 59, 47}, {x, 59, 81}, {x, 97, 81}})).material = use.mirror;
}

// 60 by 40 pixels of half an inch each, upright on the back wall.
void add_painting(model_builder& m, const room_materials& use) {
    list_builder painting = m.root().group("Painting", moved({112, room_depth, 50}));
    add_box(m, painting, "Frame", {-2, -1.5, -2}, {32, 0, 22}, use.brass);
    constexpr double inch_a_pixel = 0.5;
    const sketchup::index picture = m.image_definition(harbour_picture(), "harbour.bmp", 60, 40);
    const transform upright = {inch_a_pixel, 0, 0, 0, 0, 0, inch_a_pixel, 0, 0, -inch_a_pixel, 0, 0, 0, -1.6, 0, 1};
    painting.image(picture, upright);
}

} // namespace

void add_furniture(model_builder& m, const room_materials& use) {
    add_box(m, m.root(), "Rug", {44, 34, 0}, {136, 112, 0.5}, use.rug);
    add_table(m, use);
    add_chairs(m, use);
    add_sofa(m, use);
    add_shelf(m, use);
    add_plant(m, use);
    add_mirror(m, use);
    add_painting(m, use);
}
