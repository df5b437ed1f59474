// The walls that enclose the room.

#include "room_parts.h"

using namespace sketchup;

void add_shell(model_builder& m, const room_materials& use) {
    const double w = room_width;
    const double d = room_depth;
    const double h = room_height;
    list_builder root = m.root();
    const entity_place floor = root.face({{0, 0, 0}, {w, 0, 0}, {w, d, 0}, {0, d, 0}});
    m.element(floor).material = use.oak_floor;
    m.mapping(floor).front.positioned = true;

    list_builder walls = root.group("Walls");
    m.element(walls.placement()).material = use.plaster;
    m.element(walls.placement()).layer = m.layer("Walls");
    walls.face({{0, d, 0}, {w, d, 0}, {w, d, h}, {0, d, h}}); // back
    walls.face({{w, d, 0}, {w, 0, 0}, {w, 0, h}, {w, d, h}}); // right
    walls.face({{0, d, h}, {w, d, h}, {w, 0, h}, {0, 0, h}}); // ceiling
    // The left wall has the window. It has no front wall: that is where the camera looks in.
    const std::vector<vec3> left = {{0, 0, 0}, {0, d, 0}, {0, d, h}, {0, 0, h}};
    const std::vector<std::vector<vec3>> window = {{{0, 50, 36}, {0, 110, 36}, {0, 110, 82}, {0, 50, 82}}};
    walls.face(left, window);

    list_builder frame = root.group("Window");
    m.element(frame.placement()).material = use.walnut;
    frame.box({-2, 48, 33}, {2, 112, 36});
    frame.box({-2, 48, 82}, {2, 112, 85});
    frame.box({-2, 48, 36}, {2, 50, 82});
    frame.box({-2, 110, 36}, {2, 112, 82});
    frame.box({-1, 79, 36}, {1, 81, 82});
    m.element(frame.face({{0, 50, 36}, {0, 79, 36}, {0, 79, 82}, {0, 50, 82}})).material = use.glass;
    m.element(frame.face({{0, 81, 36}, {0, 110, 36}, {0, 110, 82}, {0, 81, 82}})).material = use.glass;
}
