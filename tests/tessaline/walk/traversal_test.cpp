// What of a model reaches the stream, and in which order.

#include "tests/tessaline/run_fixture.h"

#include "sketchup/api/handles.h"
#include "sketchup/skp/link.h"
#include "tests/support/page_examples.h"

#include <algorithm>
#include <utility>

namespace {

using sketchup::list_builder;
using sketchup::model_builder;
using testing::ElementsAre;
using testing::IsEmpty;

class Traversal : public run_fixture {
protected:
    // A square of 10 inches on a layer.
    static void square_on(model_builder& m, list_builder list, sketchup::index layer) {
        m.element(list.square(10)).layer = layer;
    }
    static constexpr sketchup::index layer0 = 0;
};

TEST_F(Traversal, an_empty_model_gives_eleven_lines) {
    model_builder m;
    EXPECT_THAT(body_of(m), IsEmpty());
    EXPECT_THAT(stream_lines(),
                ElementsAre("#;Tessaline Geometry, new extractor", "#;01/01/1970  00:00:00 GMT", "DFFC;ffffff",
                            "DFBC;ffffff", "DFEC;000000", "#;", "#;", "PASS;0", "#;", "#;", "END;"));
}

TEST_F(Traversal, a_square_in_a_group_is_the_example_of_the_documentation) {
    model_builder m;
    m.root().group().square(10);
    std::string body_text;
    for (const std::string& line : body_of(m))
        body_text += line + "\r\n";
    EXPECT_EQ(body_text, page_examples("geometry-stream.md").at(0));
}

TEST_F(Traversal, groups_come_before_instances_and_instances_before_faces) {
    model_builder m;
    const auto in_face = m.layer("in face");
    const auto in_instance = m.layer("in instance");
    const auto in_group = m.layer("in group");
    square_on(m, m.root(), in_face);
    list_builder component = m.component("part");
    square_on(m, component, in_instance);
    m.root().instance(component);
    square_on(m, m.root().group(), in_group);
    EXPECT_THAT(tagged(body_of(m), "TLAY"), ElementsAre("TLAY;in group", "TLAY;in instance", "TLAY;in face"));
}

TEST_F(Traversal, transforms_of_nested_groups_are_composed) {
    model_builder m;
    list_builder outer = m.root().group("outer", sketchup::moved({100, 0, 0}));
    outer.group("inner", sketchup::turned_about_z(90)).square(10);
    // The corner (10, 0) turns to (0, 10) and moves to (100, 10) inches: 2.54 and 0.254 metres.
    EXPECT_THAT(tagged(body_of(m), "VERT"), testing::Contains("VERT;(2.54,0.254,0)"));
}

TEST_F(Traversal, a_hidden_group_is_dropped_with_all_its_content) {
    model_builder m;
    list_builder group = m.root().group();
    group.group().square(10);
    m.element(group.placement()).hidden = true;
    EXPECT_THAT(body_of(m), IsEmpty());
}

TEST_F(Traversal, a_group_on_a_layer_of_lamp_beams_is_dropped_and_an_instance_there_is_kept) {
    model_builder m;
    const auto beams = m.layer("My QLW_Lamp_Beams");
    const auto real = m.layer("real");
    list_builder group = m.root().group();
    square_on(m, group, real);
    m.element(group.placement()).layer = beams;
    list_builder component = m.component("part");
    square_on(m, component, real);
    m.element(m.root().instance(component)).layer = beams;
    EXPECT_THAT(tagged(body_of(m), "TLAY"), ElementsAre("TLAY;real"));
}

TEST_F(Traversal, an_element_on_Layer0_counts_as_being_on_the_layer_of_the_nearest_group_that_has_one) {
    model_builder m;
    const auto walls = m.layer("Walls");
    list_builder outer = m.root().group();
    m.element(outer.placement()).layer = walls;
    square_on(m, outer.group(), layer0);
    square_on(m, m.root(), layer0);
    EXPECT_THAT(tagged(body_of(m), "TLAY"), ElementsAre("TLAY;Walls", "TLAY;Layer0"));
}

TEST_F(Traversal, while_Layer0_is_off_the_inherited_layer_decides_the_visibility) {
    model_builder m;
    m.model().layers[0].hidden = true;
    const auto walls = m.layer("Walls");
    list_builder group = m.root().group();
    m.element(group.placement()).layer = walls;
    square_on(m, group, layer0);
    square_on(m, m.root(), layer0); // nothing to inherit: stays on the layer that is off
    EXPECT_THAT(tagged(body_of(m), "TLAY"), ElementsAre("TLAY;Walls"));
    EXPECT_TRUE(reader.layer0_hidden);
}

TEST_F(Traversal, content_of_a_hidden_layer_is_left_out) {
    model_builder m;
    list_builder group = m.root().group();
    group.square(10);
    m.element(group.placement()).layer = m.layer("off", false);
    EXPECT_THAT(body_of(m), IsEmpty());
    EXPECT_EQ(oparms_array.size(), 1);
}

TEST_F(Traversal, an_animation_run_walks_the_content_of_hidden_layers) {
    theApp.is_doing_animation = true;
    model_builder m;
    list_builder group = m.root().group();
    group.square(10);
    m.element(group.placement()).layer = m.layer("off", false);
    body_of(m);
    EXPECT_THAT(tagged(stream_lines(), "TLAY"), ElementsAre("TLAY;off"));
}

TEST_F(Traversal, dropped_content_of_a_hidden_layer_leaves_its_level_for_its_siblings_when_lamps_are_let_through) {
    set_global_bool("bvl_process_invisible_lights", true);
    model_builder m;
    const auto off = m.layer("off", false);
    list_builder component = m.component("part");
    component.square(10);
    list_builder first = m.root().group();
    first.square(10);
    m.element(first.placement()).layer = off;
    m.element(m.root().instance(component)).layer = off;
    m.root().square(10); // stands on Layer0 and inherits from the levels that stayed
    EXPECT_THAT(tagged(body_of(m), "TLAY"), ElementsAre("TLAY;off"));
    EXPECT_EQ(oparms_array.size(), 3); // the bottom one and one for each of the two
}

// The end of the group pops the level of the last of them, so what follows the group inherits from the second.
TEST_F(Traversal, levels_that_stay_inside_a_group_are_popped_by_what_encloses_them) {
    set_global_bool("bvl_process_invisible_lights", true);
    model_builder m;
    list_builder outer = m.root().group();
    m.element(outer.placement()).layer = m.layer("on");
    for (const char* const name : {"first", "second", "third"}) {
        list_builder dropped = outer.group();
        dropped.square(10);
        m.element(dropped.placement()).layer = m.layer(name, false);
    }
    outer.square(10); // its own layer is "Layer0", which decides that it is seen
    m.root().square(10);
    EXPECT_THAT(tagged(body_of(m), "TLAY"), ElementsAre("TLAY;third", "TLAY;second"));
    EXPECT_EQ(oparms_array.size(), 4); // the bottom one, the group's and three, of which one was popped
}

// The bottom level copies what is on the stack, so a level that says "lamp" makes one of everything below.
TEST_F(Traversal, a_lamp_inside_a_lamp_is_part_of_it) {
    oparms_array.push()->light.lamp_type = "rect";
    model_builder m;
    list_builder outer = m.root().group();
    outer.square(10);
    outer.group().square(20);
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "LITE"), ElementsAre("LITE;0"));
    EXPECT_THAT(tagged(lines, "EMSH"), ElementsAre("EMSH; END OF LAMP"));
    EXPECT_EQ(lines.back(), "EMSH; END OF LAMP");
    EXPECT_EQ(reader.blocks.state().lamp_count, 1);
}

TEST_F(Traversal, a_lamp_block_is_numbered_through_and_the_next_block_starts_anew) {
    oparms_array.push()->light.lamp_type = "rect";
    model_builder m;
    list_builder first = m.root().group();
    first.square(10);
    first.square(20); // shares its corner with the first; a face of its own
    m.root().group().square(10);
    const auto numbers = tagged(body_of(m), "ADDV");
    EXPECT_THAT(numbers, ElementsAre("ADDV;0", "ADDV;1", "ADDV;2", "ADDV;3", "ADDV;4", "ADDV;5", "ADDV;6", "ADDV;7",
                                     "ADDV;0", "ADDV;1", "ADDV;2", "ADDV;3"));
}

TEST_F(Traversal, a_lamp_on_a_hidden_layer_is_let_through_unseen) {
    set_global_bool("bvl_process_invisible_lights", true);
    oparms_array.push()->light.lamp_type = "rect";
    model_builder m;
    list_builder group = m.root().group();
    m.element(group.placement()).layer = m.layer("off", false);
    square_on(m, group, m.layer("on"));
    const auto lines = body_of(m);
    EXPECT_THAT(std::vector<std::string>(lines.begin(), lines.begin() + 5),
                ElementsAre("#; Process Group Lamp", "MESH;", "LITE;0", "INVS;1", "SHDW;0"));
    EXPECT_THAT(tagged(lines, "TLAY"), ElementsAre("TLAY;on"));
    EXPECT_EQ(oparms_array.size(), 2); // the one pushed here and the bottom one of the walk
}

TEST_F(Traversal, a_hidden_lamp_is_dropped_even_when_invisible_lamps_are_let_through) {
    set_global_bool("bvl_process_invisible_lights", true);
    oparms_array.push()->light.lamp_type = "rect";
    model_builder m;
    list_builder group = m.root().group();
    group.square(10);
    m.element(group.placement()).hidden = true;
    EXPECT_THAT(body_of(m), IsEmpty());
}

TEST_F(Traversal, a_direct_light_of_a_group_opens_no_block) {
    oparms_array.push()->light.lamp_type = "bulb";
    model_builder m;
    m.root().group();
    EXPECT_THAT(body_of(m), ElementsAre("#; Process Group LGHT Lamp Direct Light", "LGHT;0"));
}

TEST_F(Traversal, a_direct_light_of_an_instance_has_its_own_label) {
    oparms_array.push()->light.lamp_type = "spot";
    model_builder m;
    m.root().instance(m.component("part"));
    EXPECT_THAT(body_of(m), ElementsAre("#; Process Instance Lamp Direct Light", "LGHT;0"));
}

TEST_F(Traversal, the_beams_of_a_spot_lamp_follow_its_block_as_ordinary_meshes) {
    oparms_array.push()->light.lamp_type = "spot_beams";
    model_builder m;
    const auto glow = m.layer("QLW_Lamp_Beam_Glow");
    const auto shade = m.layer("shade");
    list_builder component = m.component("lamp");
    square_on(m, component, shade);
    square_on(m, component.group(), glow);
    m.root().instance(component);
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "TLAY"), ElementsAre("TLAY;shade", "TLAY;QLW_Lamp_Beam_Glow"));
    EXPECT_THAT(tagged(lines, "LITE"), ElementsAre("LITE;0")); // none is recognised in the second walk
    const auto end_of_lamp = std::find(lines.begin(), lines.end(), "EMSH; END OF LAMP");
    ASSERT_NE(end_of_lamp, lines.end());
    EXPECT_THAT(std::vector<std::string>(end_of_lamp + 1, end_of_lamp + 4),
                ElementsAre("#; ProcessFace MESH", "MESH;", "TLAY;QLW_Lamp_Beam_Glow"));
    EXPECT_FALSE(reader.blocks.state().beam_pass_wanted);
    EXPECT_FALSE(reader.blocks.state().beam_pass_running);
}

// Only the end of the lamp's own block begins its second walk, and what is placed inside the lamp does not end it.
TEST_F(Traversal, components_inside_a_spot_with_beams_neither_begin_nor_end_its_second_walk) {
    model_builder m;
    const auto glow = m.layer("QLW_Lamp_Beam_Glow");
    const auto shade = m.layer("shade");
    list_builder part = m.component("part");
    square_on(m, part, shade);
    square_on(m, part, glow);
    list_builder lamp = m.component("lamp");
    m.attribute(lamp.list(), "qlw_lamp", "sorndll_lamp_type", sketchup::text("spot_beams"));
    lamp.instance(part);
    lamp.instance(part);
    square_on(m, lamp, glow);
    m.root().instance(lamp);
    m.root().square(10);
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "LITE"), ElementsAre("LITE;0"));
    EXPECT_THAT(tagged(lines, "TLAY"),
                ElementsAre("TLAY;shade", "TLAY;shade", "TLAY;QLW_Lamp_Beam_Glow", "TLAY;QLW_Lamp_Beam_Glow",
                            "TLAY;QLW_Lamp_Beam_Glow", "TLAY;Layer0"));
    EXPECT_THAT(tagged(lines, "EMSH"), ElementsAre("EMSH; END OF LAMP", "EMSH;", "EMSH; Face", "EMSH;", "EMSH; Face",
                                                   "EMSH;", "EMSH; Face", "EMSH;"));
}

TEST_F(Traversal, the_second_walk_of_a_spot_passes_over_images_and_edges) {
    set_global_int("ivl_edge_lines", 2); // those that bound no face
    model_builder m;
    const auto glow = m.layer("QLW_Lamp_Beam_Glow");
    list_builder lamp = m.component("lamp");
    m.attribute(lamp.list(), "qlw_lamp", "sorndll_lamp_type", sketchup::text("spot_beams"));
    square_on(m, lamp, glow);
    lamp.image(m.image_definition({1, 2, 3}, "no picture.bmp", 2, 2));
    lamp.edge({0, 0, 0}, {0, 0, 5});
    m.root().instance(lamp);
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "LITE"), ElementsAre("LITE;0"));
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "#;INSERT IMAGE IN LAMP"), 1);
    EXPECT_EQ(std::count(lines.begin(), lines.end(), "#;NEW MESH for Image"), 0);
    const auto edges = std::find(lines.begin(), lines.end(), "#;EDGES");
    ASSERT_NE(edges, lines.end());
    EXPECT_EQ(tagged({edges, lines.end()}, "VERT").size(), 16u); // the beam of one edge
}

// Only components have one: the glow of a group's beams is not written at all.
TEST_F(Traversal, a_group_that_is_a_spot_with_beams_has_no_second_walk) {
    model_builder m;
    const auto glow = m.layer("QLW_Lamp_Beam_Glow");
    list_builder lamp = m.root().group();
    m.attribute(lamp.placement(), "qlw_lamp", "sorndll_lamp_type", sketchup::text("spot_beams"));
    square_on(m, lamp, glow);
    EXPECT_THAT(body_of(m), ElementsAre("#; Process Group Lamp", "MESH;", "LITE;0", "EMSH; END OF LAMP"));
}

TEST_F(Traversal, an_image_behind_glowing_faces_has_numbers_of_its_own) {
    model_builder m;
    m.element(m.root().square(10)).material = m.material("Warm_glow80", {255, 214, 140, 255});
    m.root().image(m.image_definition({1, 2, 3}, "no picture.bmp", 2, 2));
    EXPECT_THAT(tagged(body_of(m), "ADDV"),
                ElementsAre("ADDV;0", "ADDV;1", "ADDV;2", "ADDV;3", "ADDV;0", "ADDV;1", "ADDV;2", "ADDV;3"));
}

TEST_F(Traversal, a_plant_is_not_walked) {
    model_builder m;
    list_builder plant = m.component("oak");
    plant.square(10);
    m.attribute(plant.list(), "qlw_plant", "library", sketchup::text("Trees"));
    m.root().instance(plant);
    EXPECT_THAT(tagged(body_of(m), "MESH"), IsEmpty());
}

TEST_F(Traversal, a_plant_shown_as_a_2D_image_is_walked_as_a_component) {
    model_builder m;
    list_builder plant = m.component("oak");
    plant.square(10);
    m.attribute(plant.list(), "qlw_plant", "library", sketchup::text("Trees"));
    m.attribute(plant.list(), "qlw_plant", "render_plant_as_2d_image", sketchup::truth(true));
    m.root().instance(plant);
    EXPECT_THAT(tagged(body_of(m), "MESH"), ElementsAre("MESH;"));
}

TEST_F(Traversal, the_setting_for_2D_images_walks_every_plant) {
    set_global_bool("bvl_display_all_plants_as_2d_images", true);
    model_builder m;
    list_builder plant = m.component("oak");
    plant.square(10);
    m.attribute(plant.list(), "qlw_plant", "library", sketchup::text("Trees"));
    m.root().instance(plant);
    EXPECT_THAT(tagged(body_of(m), "MESH"), ElementsAre("MESH;"));
}

TEST_F(Traversal, an_object_with_a_name_of_the_outside_library_is_not_walked) {
    model_builder m;
    list_builder object = m.component("car");
    object.square(10);
    m.attribute(object.list(), "ArchVision RPC", "Name", sketchup::text("Car"));
    m.root().instance(object);
    EXPECT_THAT(tagged(body_of(m), "MESH"), IsEmpty());
}

TEST_F(Traversal, an_object_without_a_name_is_geometry) {
    model_builder m;
    list_builder object = m.component("car");
    object.square(10);
    m.attribute(object.list(), "ArchVision RPC", "RPCTypeId", sketchup::text("AV-17"));
    m.root().instance(object);
    EXPECT_THAT(tagged(body_of(m), "MESH"), ElementsAre("MESH;"));
}

TEST_F(Traversal, a_plant_on_a_hidden_layer_is_dropped_even_when_lamps_are_let_through) {
    for (const bool lets_lamps_through : {false, true}) {
        reset_process();
        set_global_bool("bvl_process_invisible_lights", lets_lamps_through);
        model_builder m;
        list_builder plant = m.component("oak");
        plant.square(10);
        m.attribute(plant.list(), "qlw_plant", "library", sketchup::text("Trees"));
        m.element(m.root().instance(plant)).layer = m.layer("off", false);
        SketchUpReader one;
        one.ReadSkpFile(save(m), batch / "batch_file.txt");
        EXPECT_THAT(body(), IsEmpty()) << lets_lamps_through;
        EXPECT_EQ(plant_chance.next(), 41) << lets_lamps_through; // none was taken
    }
}

TEST_F(Traversal, an_outside_object_on_a_hidden_layer_is_dropped_even_when_lamps_are_let_through) {
    for (const bool lets_lamps_through : {false, true}) {
        set_global_bool("bvl_process_invisible_lights", lets_lamps_through);
        model_builder m;
        list_builder object = m.component("car");
        object.square(10);
        m.attribute(object.list(), "ArchVision RPC", "Name", sketchup::text("Car"));
        m.element(m.root().instance(object)).layer = m.layer("off", false);
        SketchUpReader one;
        one.ReadSkpFile(save(m), batch / "batch_file.txt");
        EXPECT_THAT(body(), IsEmpty()) << lets_lamps_through;
    }
}

TEST_F(Traversal, what_stands_for_an_outside_object_and_for_a_plant_is_the_object) {
    model_builder m;
    list_builder both = m.component("tree");
    both.square(10);
    m.attribute(both.list(), "ArchVision RPC", "Name", sketchup::text("Tree"));
    m.attribute(both.list(), "qlw_plant", "library", sketchup::text("Trees"));
    m.root().instance(both);
    const auto lines = body_of(m);
    EXPECT_THAT(tagged(lines, "RPCP"), ElementsAre("RPCP;(0,0,0)"));
    EXPECT_THAT(tagged(lines, "#;PLANT"), IsEmpty());
}

// The camera looks along y, so the plant's first axis becomes (1, 0, 0): 0 degrees and 90 more.
TEST_F(Traversal, a_plant_that_always_faces_the_camera_is_turned_before_it_is_written) {
    model_builder m;
    list_builder plant = m.component("oak");
    plant.square(10);
    m.attribute(plant.list(), "qlw_plant", "library", sketchup::text("Trees"));
    m.definition(plant).behavior.always_faces_camera = true;
    m.model().camera.eye = {0, -100, 0};
    m.model().camera.target = {0, 0, 0};
    m.root().instance(plant, sketchup::turned_about_z(90));
    EXPECT_THAT(tagged(body_of(m), "PLRT"), ElementsAre("PLRT;90.000000"));
}

TEST_F(Traversal, a_mirrored_group_turns_its_triangles_and_a_second_mirror_inside_turns_them_back) {
    model_builder m;
    list_builder mirrored = m.root().group("mirrored", sketchup::scaled(-1, 1, 1));
    mirrored.group("again", sketchup::scaled(-1, 1, 1)).square(10);
    mirrored.square(10);
    m.root().square(10);
    const auto faces = tagged(body_of(m), "FACE");
    ASSERT_EQ(faces.size(), 6u);
    EXPECT_EQ(faces[0], faces[4]); // mirrored twice: as if not at all
    EXPECT_NE(faces[2], faces[4]);
}

TEST_F(Traversal, a_hundred_nested_groups_of_a_file_add_up_their_transforms) {
    constexpr int levels = 100;
    model_builder m;
    list_builder list = m.root();
    for (int level = 0; level < levels; ++level)
        list = list.group({}, sketchup::moved({1, 0, 0}));
    list.square(10);
    const auto vertices = tagged(body_of(m), "VERT");
    EXPECT_THAT(vertices, testing::Contains("VERT;(2.54,0,0)")); // 100 inches along x
}

TEST_F(Traversal, the_deepest_nesting_that_a_model_may_have_is_walked_on_the_usual_stack) {
    constexpr int levels = skp::deepest_nesting;
    model_builder m;
    list_builder list = m.root();
    for (int level = 0; level < levels; ++level)
        list = list.group({}, sketchup::moved({1, 0, 0}));
    list.square(10);
    auto model = m.finish();
    skp::link(*model);
    open_model = sketchup::api::adopt_model(std::move(model)); // no file: its own limits are not asked here
    SUEntitiesRef top = SU_INVALID;
    SUModelGetEntities(open_model, &top);
    std::string path;
    reader.CountEntities(top);
    EXPECT_EQ(reader.items_done, 1);
    reader.ProcessEntities(top, identity16, path, 0);
    EXPECT_EQ(reader.items_done, 2);
    EXPECT_EQ(path, "");
    EXPECT_EQ(oparms_array.size(), 1);
    SUModelRelease(&open_model);
}

TEST_F(Traversal, a_second_reading_of_the_process_starts_with_clean_tables) {
    model_builder first;
    first.layer("only here");
    body_of(first);
    EXPECT_EQ(layers.size(), 2);
    model_builder second;
    SketchUpReader again;
    again.ReadSkpFile(save(second), batch / "batch_file.txt");
    EXPECT_EQ(layers.size(), 1);
    EXPECT_EQ(layers.index_of("only here"), -1);
}

} // namespace
