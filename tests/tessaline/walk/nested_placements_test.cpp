// What placements inside groups inherit, and where they end up.

#include "tests/tessaline/run_fixture.h"

namespace {

using sketchup::list_builder;
using sketchup::model_builder;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

using NestedPlacements = run_fixture;

// The camera looks along (0.6, 0.8), so the first axis points along (0.8, -0.6) however group and component are turned,
// and the group doubles both and the height: the corner (8, 0) comes to (12.8, -9.6, 10) inches and the corner (0, 8)
// to (9.6, 12.8, 10).
TEST_F(NestedPlacements, a_component_that_faces_the_camera_is_turned_behind_its_group_and_keeps_the_scale_of_both) {
    model_builder m;
    m.model().camera.eye = {0, 0, 50};
    m.model().camera.target = {30, 40, 0};
    list_builder tree = m.component("tree");
    tree.square(8);
    m.definition(tree).behavior.always_faces_camera = true;
    m.root()
        .group({}, sketchup::after(sketchup::turned_about_z(90), sketchup::scaled(2, 2, 2)))
        .instance(tree, sketchup::after(sketchup::moved({0, 0, 5}), sketchup::turned_about_z(30)));
    EXPECT_THAT(tagged(body_of(m), "VERT"),
                UnorderedElementsAre("VERT;(0.32512,-0.24384,0.254)", "VERT;(0,0,0.254)",
                                     "VERT;(0.24384,0.32512,0.254)", "VERT;(0.56896,0.08128,0.254)"));
}

// A component whose group, on Layer0, holds a square on "Walls"; two more squares lie beside the group.
class LayersOfAComponent : public run_fixture {
protected:
    std::vector<std::string> layers_on(const std::string& layer) {
        model_builder m;
        const auto walls = m.layer("Walls");
        const auto placed_on = m.layer(layer);
        list_builder part = m.component("part");
        m.element(part.group().square(10)).layer = walls;
        m.element(part.square(20)).layer = m.layer("Beside");
        part.square(30);
        m.element(m.root().instance(part)).layer = placed_on;
        return tagged(body_of(m), "TLAY");
    }
};

// The group and the face on Layer0 are on the layer of the instance, which is itself written.
TEST_F(LayersOfAComponent, that_is_placed_on_a_layer_of_lamp_beams_hide_the_groups_and_faces_that_inherit_it) {
    EXPECT_THAT(layers_on("my QLW_Lamp_Beams"), ElementsAre("TLAY;Beside"));
}

TEST_F(LayersOfAComponent, that_is_placed_on_another_layer_hide_nothing) {
    EXPECT_THAT(layers_on("Roof"), ElementsAre("TLAY;Walls", "TLAY;Beside", "TLAY;Roof"));
}

// A layer may have no name; what stands on it says so, and what is inside inherits from further out.
TEST_F(NestedPlacements, a_group_or_an_instance_on_a_layer_without_a_name_lets_the_outer_layer_through) {
    model_builder m;
    const auto walls = m.layer("Walls");
    const auto unnamed = m.layer("");
    list_builder part = m.component("part");
    part.square(10);
    list_builder outer = m.root().group();
    m.element(outer.placement()).layer = walls;
    list_builder inner = outer.group();
    m.element(inner.placement()).layer = unnamed;
    inner.group().square(20);
    inner.square(30);
    m.element(inner.square(40)).layer = unnamed;
    m.element(outer.instance(part)).layer = unnamed;
    EXPECT_THAT(tagged(body_of(m), "TLAY"), ElementsAre("TLAY;Walls", "TLAY;Walls", "TLAY;", "TLAY;Walls"));
}

// Layer0 is off, so the layer of the outer group decides.
TEST_F(NestedPlacements, with_layer0_hidden_the_layer_beyond_one_without_a_name_decides_what_is_seen) {
    model_builder m;
    m.model().layers[0].hidden = true;
    const auto on = m.layer("On");
    const auto unnamed = m.layer("");
    list_builder outer = m.root().group();
    m.element(outer.placement()).layer = on;
    list_builder inner = outer.group();
    m.element(inner.placement()).layer = unnamed;
    inner.square(10);
    EXPECT_THAT(tagged(body_of(m), "TLAY"), ElementsAre("TLAY;On"));
}

// The end of the group pops the level of the last of them, so what follows the group inherits from the second.
TEST_F(NestedPlacements, instances_dropped_inside_a_group_leave_their_levels_to_what_follows) {
    set_global_bool("bvl_process_invisible_lights", true);
    model_builder m;
    list_builder part = m.component("part");
    part.square(10);
    list_builder outer = m.root().group();
    m.element(outer.placement()).layer = m.layer("on");
    for (const char* const name : {"first", "second", "third"})
        m.element(outer.instance(part)).layer = m.layer(name, false);
    outer.square(10); // its own layer is "Layer0", which decides that it is seen
    m.root().square(10);
    EXPECT_THAT(tagged(body_of(m), "TLAY"), ElementsAre("TLAY;third", "TLAY;second"));
    EXPECT_EQ(oparms_array.size(), 4); // the bottom one, the group's and three, of which one was popped
}

// Layer0 is off; a square on it lies in a group on the first of two layers "Walls".
class LayersOfOneName : public run_fixture {
protected:
    std::vector<std::string> stream_with(bool first_visible, bool second_visible) {
        model_builder m;
        m.model().layers[0].hidden = true;
        const auto first = m.layer("Walls", first_visible);
        const auto second = m.layer("Walls", second_visible);
        list_builder group = m.root().group();
        m.element(group.placement()).layer = first_visible ? first : second;
        group.square(10);
        body_of(m);
        return stream_lines();
    }
};

TEST_F(LayersOfOneName, hide_what_inherits_the_name_if_the_last_of_them_is_off) {
    EXPECT_THAT(tagged(stream_with(true, false), "MESH"), IsEmpty());
}

TEST_F(LayersOfOneName, show_what_inherits_the_name_if_the_last_of_them_is_on) {
    EXPECT_THAT(tagged(stream_with(false, true), "MESH"), ElementsAre("MESH;"));
}

TEST_F(LayersOfOneName, are_the_last_of_them_in_the_layer_list_of_an_animation) {
    theApp.is_doing_animation = true;
    EXPECT_THAT(tagged(stream_with(true, true), "LYRS"), ElementsAre("LYRS;2,2")); // the group, then the face
}

} // namespace
