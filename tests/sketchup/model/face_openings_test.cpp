#include "sketchup/model/face_openings.h"

#include "sketchup/builder/model_builder.h"
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

// Which edges bound an opening

TEST(FaceOpenings, hidden_and_soft_edges_bound_an_opening_too) {
    wall_with_windows house;
    for (edge& e : house.m.model().edges) {
        e.hidden = true;
        e.soft = e.smooth = true;
    }
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, the_chords_of_a_curve_bound_an_opening) {
    wall_with_windows house(false);
    house.window.arc({0, 0, 0}, {2, 0, 0}, {0, 2, 0}, 0, 3.14159265358979, 2);
    house.window.edge({-2, 0, 0}, {2, 0, 0});
    house.glue(house.window, moved({10, 20, 0}));
    const std::vector<points> found = house.openings();
    ASSERT_EQ(found.size(), 1u);
    ASSERT_EQ(found[0].size(), 3u); // both ends of the arc and its top
    EXPECT_NEAR(found[0][0].x, 10, 1e-12);
    EXPECT_NEAR(found[0][0].y, 22, 1e-12);
}

TEST(FaceOpenings, edges_off_the_plane_of_the_component_count_for_nothing) {
    wall_with_windows house;
    draw_rectangle(house.window, -9, -9, 9, 9, 0.0011);
    draw_rectangle(house.window, -9, -9, 9, 9, -2);
    house.window.edge({0, 0, 0}, {0, 0, 0.0011});
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, edges_within_a_thousandth_of_an_inch_are_in_the_plane) {
    wall_with_windows house(false);
    draw_rectangle(house.window, 0, 0, 4, 6, -0.0009);
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, each_outline_of_a_component_is_an_opening) {
    wall_with_windows house;
    draw_rectangle(house.window, 6, 0, 10, 6);
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), (std::vector<points>{hole(10, 20, 14, 26), hole(16, 20, 20, 26)}));
}

TEST(FaceOpenings, the_panes_inside_a_frame_are_no_openings_of_their_own) {
    wall_with_windows house;
    draw_rectangle(house.window, 1, 1, 1.5, 5);
    draw_rectangle(house.window, 2, 1, 3, 5);
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, a_loose_edge_changes_nothing) {
    wall_with_windows house;
    house.window.edge({4, 6, 0}, {9, 9, 0});
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, an_open_chain_cuts_nothing) {
    wall_with_windows house(false);
    house.window.edge({0, 0, 0}, {4, 0, 0});
    house.window.edge({4, 0, 0}, {4, 6, 0});
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_TRUE(house.openings().empty());
}

// Outlines of what a component holds

TEST(FaceOpenings, a_component_without_edges_cuts_what_the_cutting_ones_in_it_outline) {
    wall_with_windows house;
    list_builder row = cutting_component(house.m, "row");
    row.instance(house.window, moved({0, 1, 0}));
    row.instance(house.window, moved({10, 1, 0}));
    house.glue(row, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), (std::vector<points>{hole(10, 21, 14, 27), hole(20, 21, 24, 27)}));
}

TEST(FaceOpenings, groups_in_a_component_cut_as_components_in_it_do) {
    wall_with_windows house(false);
    list_builder pane = house.window.group("pane", moved({0, 1, 0}));
    draw_rectangle(pane, 0, 0, 4, 6);
    house.m.definition(pane).behavior.cuts_opening = true;
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 21, 14, 27)});
}

TEST(FaceOpenings, what_does_not_cut_inside_a_component_is_left_out) {
    wall_with_windows house;
    list_builder shutter = house.m.component("shutter");
    draw_rectangle(shutter, -3, 0, 7, 6);
    house.window.instance(shutter);
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, hidden_things_inside_a_component_are_left_out) {
    wall_with_windows house;
    list_builder row = cutting_component(house.m, "row");
    house.m.placement(row.instance(house.window)).hidden = true;
    const sketchup::index off = house.m.layer("off", false);
    house.m.placement(row.instance(house.window, moved({10, 0, 0}))).layer = off;
    row.instance(house.window, moved({20, 0, 0}));
    house.glue(row, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(30, 20, 34, 26)});
}

TEST(FaceOpenings, what_stands_off_the_plane_inside_a_component_is_left_out) {
    wall_with_windows house;
    list_builder row = cutting_component(house.m, "row");
    row.instance(house.window, moved({0, 0, 0.5}));
    row.instance(house.window, moved({10, 0, 0}));
    house.glue(row, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(20, 20, 24, 26)});
}

TEST(FaceOpenings, outlines_of_neighbours_inside_a_component_are_joined) {
    wall_with_windows house;
    list_builder row = cutting_component(house.m, "row");
    row.instance(house.window);
    row.instance(house.window, moved({4, 0, 0}));
    house.glue(row, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(),
              (std::vector<points>{{{10, 26, 0}, {14, 26, 0}, {18, 26, 0}, {18, 20, 0}, {14, 20, 0}, {10, 20, 0}}}));
}

TEST(FaceOpenings, outlines_come_from_any_depth) {
    wall_with_windows house;
    list_builder inner = house.window;
    for (int depth = 0; depth < 1000; ++depth) {
        list_builder outer = cutting_component(house.m, "level " + std::to_string(depth));
        outer.instance(inner);
        inner = outer;
    }
    house.glue(inner, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

// What cuts, and which face

TEST(FaceOpenings, what_is_not_glued_cuts_nothing) {
    wall_with_windows house;
    house.root.instance(house.window, moved({10, 20, 0}));
    EXPECT_TRUE(house.openings().empty());
}

TEST(FaceOpenings, what_is_glued_without_cutting_leaves_the_face_whole) {
    wall_with_windows house;
    house.m.definition(house.window).behavior.cuts_opening = false;
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_TRUE(house.openings().empty());
}

TEST(FaceOpenings, a_group_cuts_as_a_component_does) {
    wall_with_windows house;
    list_builder group = house.root.group("group", moved({10, 20, 0}));
    draw_rectangle(group, 0, 0, 4, 6);
    house.m.definition(group).behavior = {.glues = true, .cuts_opening = true};
    house.root.glue(group.placement(), house.wall);
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, a_hidden_placement_cuts_nothing) {
    wall_with_windows house;
    house.m.placement(house.glue(house.window, moved({10, 20, 0}))).hidden = true;
    house.glue(house.window, moved({30, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(30, 20, 34, 26)});
}

TEST(FaceOpenings, a_placement_on_a_layer_that_is_off_cuts_nothing) {
    wall_with_windows house;
    const entity_place placed = house.glue(house.window, moved({10, 20, 0}));
    house.m.placement(placed).layer = house.m.layer("off", false);
    EXPECT_TRUE(house.openings().empty());
}

// As it is drawn: the folder of a layer does not hide what stands on the layer.
TEST(FaceOpenings, a_placement_on_a_visible_layer_in_a_folder_that_is_off_cuts) {
    wall_with_windows house;
    const entity_place placed = house.glue(house.window, moved({10, 20, 0}));
    const sketchup::index layer = house.m.layer("on");
    house.m.model().layers[layer].folder = house.m.layer_folder("off", no_index, false);
    house.m.placement(placed).layer = layer;
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, what_is_glued_to_a_placement_cuts_no_face) {
    wall_with_windows house;
    const entity_place board = house.root.instance(house.m.component("board"));
    house.root.glue(house.root.instance(house.window, moved({10, 20, 0})), board);
    EXPECT_TRUE(house.openings().empty());
}

TEST(FaceOpenings, a_face_of_another_list_is_not_cut) {
    wall_with_windows house;
    list_builder other = house.m.component("other");
    other.glue(other.instance(house.window, moved({10, 20, 0})), house.wall);
    house.root.instance(other);
    EXPECT_TRUE(house.openings().empty());
}

TEST(FaceOpenings, openings_come_in_the_order_of_the_relations) {
    wall_with_windows house;
    const entity_place right = house.root.instance(house.window, moved({50, 20, 0}));
    const entity_place left = house.root.instance(house.window, moved({10, 20, 0}));
    house.root.glue(left, house.wall);
    house.root.glue(right, house.wall);
    EXPECT_EQ(house.openings(), (std::vector<points>{hole(10, 20, 14, 26), hole(50, 20, 54, 26)}));
}

// How a placement lies

TEST(FaceOpenings, scales_of_a_placement_scale_its_opening) {
    wall_with_windows house;
    house.glue(house.window, after(moved({10, 20, 0}), scaled(2, 2, 2)));
    house.glue(house.window, after(moved({40, 20, 0}), scaled(3, 0.5, 7)));
    EXPECT_EQ(house.openings(), (std::vector<points>{hole(10, 20, 18, 32), hole(40, 20, 52, 23)}));
}

TEST(FaceOpenings, the_weight_of_a_placement_scales_its_opening) {
    wall_with_windows house;
    transform doubled = moved({5, 10, 0}); // all divided by a half
    doubled[15] = 0.5;
    house.glue(house.window, doubled);
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 18, 32)});
}

TEST(FaceOpenings, a_mirrored_placement_has_an_opening_that_runs_the_same_way) {
    wall_with_windows house;
    house.glue(house.window, after(moved({10, 20, 0}), scaled(-1, 1, 1)));
    EXPECT_EQ(house.openings(), (std::vector<points>{{{10, 20, 0}, {6, 20, 0}, {6, 26, 0}, {10, 26, 0}}}));
}

TEST(FaceOpenings, a_placement_whose_axis_runs_against_the_normal_cuts_too) {
    wall_with_windows house;
    const transform turned_about_x = {1, 0, 0, 0, 0, -1, 0, 0, 0, 0, -1, 0, 10, 26, 0, 1};
    house.glue(house.window, turned_about_x);
    EXPECT_EQ(house.openings(), (std::vector<points>{{{10, 26, 0}, {14, 26, 0}, {14, 20, 0}, {10, 20, 0}}}));
}

TEST(FaceOpenings, an_opening_runs_against_an_outline_that_runs_clockwise) {
    wall_with_windows house;
    house.m.face(house.wall).plane = {0, 0, -1, 0}; // a damaged file may say so
    house.glue(house.window, moved({10, 20, 0}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, an_opening_lies_in_the_plane_of_the_face) {
    wall_with_windows house;
    house.glue(house.window, moved({10, 20, 0.0002}));
    EXPECT_EQ(house.openings(), std::vector<points>{hole(10, 20, 14, 26)});
}

TEST(FaceOpenings, a_placement_squeezed_to_nothing_cuts_nothing) {
    wall_with_windows house;
    house.glue(house.window, scaled(0, 1, 1));
    house.glue(house.window, scaled(1e-5, 1e-5, 1));
    house.glue(house.window, transform{});
    EXPECT_TRUE(house.openings().empty());
}

TEST(FaceOpenings, a_placement_thrown_beyond_all_numbers_cuts_nothing) {
    wall_with_windows house;
    house.glue(house.window, moved({std::numeric_limits<double>::quiet_NaN(), 0, 0}));
    house.glue(house.window, moved({0, std::numeric_limits<double>::infinity(), 0}));
    house.glue(house.window, scaled(1e300, 1e300, 1));
    EXPECT_TRUE(house.openings().empty());
}

TEST(FaceOpenings, a_face_without_a_direction_has_no_openings) {
    for (const plane& damaged : {plane{0, 0, 0, 0}, plane{std::nan(""), 0, 1, 0}, plane{0, 0, 1e300, 0}}) {
        wall_with_windows house;
        house.m.face(house.wall).plane = damaged;
        house.glue(house.window, moved({10, 20, 0}));
        EXPECT_TRUE(house.openings().empty());
    }
}

// Openings are reported as they lie, whether or not the face is there to be cut.

TEST(FaceOpenings, an_opening_keeps_its_shape_wherever_it_lies) {
    const std::vector<vec3> places = {
        {0, 20, 0},    // touches the border
        {0, 0, 0},     // in a corner
        {98, 20, 0},   // reaches over
        {5000, 20, 0}, // a stale relation
    };
    for (const vec3& at : places) {
        wall_with_windows house;
        house.glue(house.window, moved(at));
        EXPECT_EQ(house.openings(), std::vector<points>{hole(at.x, at.y, at.x + 4, at.y + 6)});
    }
}

TEST(FaceOpenings, overlapping_openings_are_not_joined) {
    wall_with_windows house;
    house.glue(house.window, moved({10, 20, 0}));
    house.glue(house.window, moved({12, 21, 0}));
    EXPECT_EQ(house.openings(), (std::vector<points>{hole(10, 20, 14, 26), hole(12, 21, 16, 27)}));
}

TEST(FaceOpenings, an_opening_as_large_as_the_face_is_one) {
    wall_with_windows house(false);
    draw_rectangle(house.window, 0, 0, 100, 80);
    house.glue(house.window, identity_transform);
    EXPECT_EQ(house.openings(), std::vector<points>{hole(0, 0, 100, 80)});
}

// Bounds

TEST(FaceOpenings, placements_whose_points_are_too_many_cut_nothing_from_the_first_on) {
    wall_with_windows house;
    for (int i = 0; i < 3; ++i)
        house.glue(house.window, moved({10.0 * i, 20, 0}));
    const std::unique_ptr<model> made = house.m.finish();
    skp::link(*made);
    EXPECT_EQ(face_openings(*made, 8).of(made->faces[0]).size(), 2u); // two times four corners
    EXPECT_EQ(face_openings(*made, 7).of(made->faces[0]).size(), 1u);
}

TEST(FaceOpenings, components_that_double_themselves_at_every_level_end_soon_and_cut_nothing) {
    wall_with_windows house;
    list_builder inner = house.window;
    for (int depth = 0; depth < 26; ++depth) { // 2^26 windows
        list_builder outer = cutting_component(house.m, "level " + std::to_string(depth));
        outer.instance(inner);
        outer.instance(inner, moved({5, 0, 0}));
        inner = outer;
    }
    house.glue(inner, moved({10, 20, 0}));
    EXPECT_TRUE(house.openings().empty());
}

TEST(FaceOpenings, the_outlines_of_a_component_are_found_once_for_all_faces) {
    wall_with_windows house;
    list_builder sheet = cutting_component(house.m, "sheet");
    for (int i = 0; i < 10000; ++i)
        draw_rectangle(sheet, i % 100 * 2, i / 100 * 2, i % 100 * 2 + 1, i / 100 * 2 + 1);
    for (int i = 0; i < 100; ++i) {
        const entity_place face = house.root.face({{0, 0, i + 1.0}, {9, 0, i + 1.0}, {9, 9, i + 1.0}});
        house.root.glue(house.root.instance(sheet, moved({0, 0, i + 1.0})), face);
    }
    const std::unique_ptr<model> made = house.m.finish();
    skp::link(*made);
    face_openings found(*made);
    EXPECT_EQ(found.of(made->faces[100]).size(), 10000u);
    EXPECT_EQ(&found.of(made->faces[100]), &found.of(made->faces[100]));
}
