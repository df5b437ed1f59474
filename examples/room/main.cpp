// Writes the model of a furnished room: textured floor, window, table with a glass top, chairs, sofa, books, a mirror,
// a painting, a glowing panel, and a lamp of every type.

#include "examples/write_model.h"
#include "room_parts.h"

using namespace sketchup;

int main(int argc, char** argv) {
    model_builder m;
    const room_materials use = add_materials(m);
    add_shell(m, use);
    add_furniture(m, use);
    add_lamps(m, use);
    camera& view = m.model().camera; // the same as that of the view file
    view.eye = {78, -118, 64};
    view.target = {92, 150, 44};
    view.field_of_view = 42;
    shadow_info& sun = m.model().shadow_info;
    sun.time = 1782054000; // 21 June 2026, three in the afternoon
    sun.latitude = 48.14;
    sun.longitude = 11.58;
    sun.time_zone = 1;
    sun.daylight_saving = true;
    return write_model(argc, argv, m);
}
