#pragma once

#include "sketchup/builder/model_builder.h"

// A wall of 10 by 10 inches in the plane z = 0, the first face of the model, and a window of 2 by 3 glued to it that
// cuts an opening from (4, 5) on. Gives the window.
inline sketchup::entity_place add_cut_wall(sketchup::model_builder& builder) {
    using sketchup::vec3;
    const sketchup::entity_place wall = builder.root().square(10);
    sketchup::list_builder window = builder.component("window");
    builder.definition(window).behavior.cuts_opening = true;
    const vec3 corners[] = {{0, 0, 0}, {2, 0, 0}, {2, 3, 0}, {0, 3, 0}};
    for (int i = 0; i < 4; ++i)
        window.edge(corners[i], corners[(i + 1) % 4]);
    const sketchup::entity_place placed = builder.root().instance(window, sketchup::moved({4, 5, 0}));
    builder.root().glue(placed, wall);
    return placed;
}
