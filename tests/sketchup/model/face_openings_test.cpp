#include "sketchup/model/face_openings.h"

#include "sketchup/model/model_builder.h"
#include "sketchup/skp/link.h"
#include "tests/sketchup/model/print_points.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using namespace sketchup;
using points = std::vector<vec3>;

void draw_rectangle(list_builder& list, double x0, double y0, double x1, double y1, double z = 0) {
    list.edge({x0, y0, z}, {x1, y0, z});
    list.edge({x1, y0, z}, {x1, y1, z});
    list.edge({x1, y1, z}, {x0, y1, z});
    list.edge({x0, y1, z}, {x0, y0, z});
}

list_builder cutting_component(model_builder& m, std::string_view name) {
    list_builder made = m.component(name);
    m.definition(made).behavior = {.glues = true, .cuts_opening = true};
    return made;
}

// A wall of 100 by 80 in the plane z = 0 that looks up, and a window of 4 by 6 that cuts.
struct wall_with_windows {
    model_builder m;
    list_builder root = m.root();
    entity_place wall = root.face({{0, 0, 0}, {100, 0, 0}, {100, 80, 0}, {0, 80, 0}});
    list_builder window = cutting_component(m, "window");

    explicit wall_with_windows(bool has_outline = true) {
        if (has_outline)
            draw_rectangle(window, 0, 0, 4, 6);
    }
    entity_place glue(const list_builder& component, const transform& where) {
        const entity_place placed = root.instance(component, where);
        root.glue(placed, wall);
        return placed;
    }
    // The openings of the wall, of the first face of the model.
    std::vector<points> openings() {
        const std::unique_ptr<model> made = m.finish();
        skp::link(*made);
        face_openings found(*made);
        std::vector<points> result;
        for (const opening& o : found.of(made->faces[0]))
            result.push_back(o.points);
        return result;
    }
};

// A rectangle in the wall, as an opening of it: clockwise, as the wall runs counter-clockwise.
points hole(double x0, double y0, double x1, double y1) {
    return {{x0, y1, 0}, {x1, y1, 0}, {x1, y0, 0}, {x0, y0, 0}};
}

} // namespace

TEST(FaceOpenings, the_outline_of_what_is_glued_to_a_face_is_an_opening) {
    wall_with_windows house;
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, what_is_not_glued_cuts_nothing) {
    wall_with_windows house;
    house.root.instance(house.window, moved({10, 20, 0}));
    EXPECT_TRUE(house.openings().empty());
}
