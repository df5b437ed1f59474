#include "tests/support/temporary_folder.h"
#include "tests/tessaline/reader_fixture.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using MeshHeads = reader_test;

} // namespace

TEST_F(MeshHeads, a_plain_head_is_a_label_and_an_opening) {
    reader.blocks.begin_mesh({.label = "ProcessFace MESH", .layer_name = "Layer0"});
    EXPECT_EQ(stream_text(), lines({"#; ProcessFace MESH", "MESH;"}));
}

TEST_F(MeshHeads, a_face_without_shadow_that_is_also_invisible_says_so_twice) {
    reader.blocks.begin_mesh(
        {.label = "ProcessFace MESH", .casts_shadows = false, .invisible = true, .layer_name = "Layer0"});
    EXPECT_EQ(stream_text(), lines({"#; ProcessFace MESH", "MESH;", "SHDW;0", "INVS;1", "SHDW;0"}));
}

TEST_F(MeshHeads, a_hidden_lamp_shows_its_beam_glow_whatever_the_case_of_the_layer) {
    reader.blocks.begin_mesh({.label = "a", .hide = true, .layer_name = "QLW_Lamp_Beam_Glow"});
    reader.blocks.begin_mesh({.label = "b", .hide = true, .layer_name = "QLW_Lamp_Beam_Glow_2"});
    EXPECT_EQ(stream_text(), lines({"#; a", "MESH;", "#; b", "MESH;", "INVS;1", "SHDW;0"}));
}

TEST_F(MeshHeads, an_invisible_object_is_invisible_on_the_beam_glow_layer_too) {
    reader.blocks.begin_mesh({.label = "a", .invisible = true, .layer_name = "QLW_Lamp_Beam_Glow"});
    EXPECT_EQ(stream_text(), lines({"#; a", "MESH;", "INVS;1", "SHDW;0"}));
}

TEST_F(MeshHeads, a_ground_cover_file_that_is_not_there_is_named_as_it_stands) {
    reader.blocks.begin_mesh({.label = "a",
                              .groundcover_file = "c:\\covers\\grass.orn",
                              .groundcover_orientation = 2,
                              .layer_name = "Layer0"});
    EXPECT_EQ(stream_text(), lines({"#; a", "MESH;", "GCOR;2", "GNDC;c:\\covers\\grass.orn"}));
}

TEST_F(MeshHeads, the_ground_cover_stands_between_the_shadow_and_the_invisibility) {
    reader.blocks.begin_mesh({.label = "a",
                              .casts_shadows = false,
                              .groundcover_file = "c:\\covers\\grass.orn",
                              .groundcover_orientation = 2,
                              .invisible = true,
                              .layer_name = "Layer0"});
    EXPECT_EQ(stream_text(),
              lines({"#; a", "MESH;", "SHDW;0", "GCOR;2", "GNDC;c:\\covers\\grass.orn", "INVS;1", "SHDW;0"}));
}

TEST_F(MeshHeads, a_ground_cover_file_is_copied_into_the_plants_of_the_batch_folder) {
    temporary_folder folder;
    theApp.batch_folder = folder.name();
    const std::string original = folder.write("covers/grass.orn", "green");
    reader.blocks.begin_mesh({.label = "a", .groundcover_file = original, .layer_name = "Layer0"});
    EXPECT_EQ(stream_text(), lines({"#; a", "MESH;", "GCOR;-1", "GNDC;" + (folder / "Plants/grass.orn")}));
    EXPECT_EQ(folder.read("Plants/grass.orn"), "green");
}

TEST_F(MeshHeads, a_ground_cover_file_of_that_name_is_not_copied_again) {
    temporary_folder folder;
    theApp.batch_folder = folder.name();
    folder.write("Plants/grass.orn", "old");
    const std::string original = folder.write("covers/grass.orn", "green");
    reader.blocks.begin_mesh({.label = "a", .groundcover_file = original, .layer_name = "Layer0"});
    EXPECT_EQ(stream_text(), lines({"#; a", "MESH;", "GCOR;-1", "GNDC;" + (folder / "Plants/grass.orn")}));
    EXPECT_EQ(folder.read("Plants/grass.orn"), "old");
}

TEST_F(MeshHeads, a_ground_cover_copy_that_fails_is_named_all_the_same) {
    temporary_folder folder;
    theApp.batch_folder = folder / "missing";
    const std::string original = folder.write("grass.orn", "green");
    reader.blocks.begin_mesh({.label = "a", .groundcover_file = original, .layer_name = "Layer0"});
    EXPECT_EQ(stream_text(), lines({"#; a", "MESH;", "GCOR;-1", "GNDC;" + (folder / "missing/Plants/grass.orn")}));
}

TEST_F(MeshHeads, ground_covers_that_take_turns_keep_their_names) {
    temporary_folder folder;
    theApp.batch_folder = folder.name();
    const std::string grass = folder.write("covers/grass.orn", "green");
    const std::string moss = folder.write("covers/moss.orn", "dark green");
    for (const std::string& cover : {grass, grass, moss, grass})
        reader.blocks.begin_mesh({.label = "a", .groundcover_file = cover, .layer_name = "Layer0"});
    const auto head = [&](const char* name) {
        return lines({"#; a", "MESH;", "GCOR;-1", "GNDC;" + (folder / "Plants/") + name});
    };
    EXPECT_EQ(stream_text(), head("grass.orn") + head("grass.orn") + head("moss.orn") + head("grass.orn"));
    EXPECT_EQ(folder.read("Plants/grass.orn"), "green");
    EXPECT_EQ(folder.read("Plants/moss.orn"), "dark green");
}

TEST_F(MeshHeads, the_state_of_a_two_sided_block_names_the_side_of_the_pass) {
    mesh_state state{.layer_name = "Walls", .two_sided = true, .front_material = 11, .back_material = 12};
    reader.blocks.write_mesh_state(state);
    state.pass = face_pass::back;
    reader.blocks.write_mesh_state(state);
    EXPECT_EQ(stream_text(), lines({"TLAY;Walls", "CULL;1", "MATL;11", "TLAY;Walls", "CULL;1", "MATL;12"}));
}

TEST_F(MeshHeads, a_textured_two_sided_block_names_the_material_first) {
    reader.blocks.write_mesh_state({.layer_name = "Walls",
                                    .two_sided = true,
                                    .pass = face_pass::back,
                                    .front_material = 11,
                                    .back_material = 12,
                                    .uses_uv = true});
    EXPECT_EQ(stream_text(), lines({"TLAY;Walls", "CULL;1", "MATL;12", "MPUV;1"}));
}

TEST_F(MeshHeads, a_one_sided_block_names_the_front_material_for_both_sides) {
    reader.blocks.write_mesh_state({.layer_name = "Walls", .front_material = 11, .back_material = 12});
    reader.blocks.write_mesh_state({.layer_name = "Walls", .front_material = 11, .back_material = 12, .uses_uv = true});
    EXPECT_EQ(stream_text(), lines({"TLAY;Walls", "CULL;0", "MATL;11", "MAT2;11", "TLAY;Walls", "CULL;0", "MPUV;1",
                                    "MATL;11", "MPU2;1", "MAT2;11"}));
}

TEST_F(MeshHeads, an_animation_run_names_the_layers_from_the_outermost_down) {
    theApp.is_doing_animation = true;
    builder.layer("Roof");
    builder.layer("Walls");
    open();
    reader.blocks.write_mesh_state({.layer_name = "Walls"});
    current_oparms->layer_chain = "0,1";
    reader.blocks.write_mesh_state({.layer_name = "Walls"});
    EXPECT_EQ(stream_text(), lines({"TLAY;Walls", "LYRS;2", "CULL;0", "MATL;0", "MAT2;0", "TLAY;Walls", "LYRS;0,1,2",
                                    "CULL;0", "MATL;0", "MAT2;0"}));
}

TEST_F(MeshHeads, a_layer_that_the_model_lacks_gets_no_list) {
    theApp.is_doing_animation = true;
    reader.blocks.write_mesh_state({.layer_name = "Cellar"});
    EXPECT_EQ(stream_text(), lines({"TLAY;Cellar", "CULL;0", "MATL;0", "MAT2;0"}));
}

TEST_F(MeshHeads, a_lamp_block_is_visible_if_nothing_hides_it) {
    reader.blocks.begin_lamp_mesh("Group Lamp", 3, false);
    EXPECT_EQ(stream_text(), lines({"#; Process Group Lamp", "MESH;", "LITE;3"}));
}

TEST_F(MeshHeads, four_things_hide_a_lamp_block) {
    const std::string hidden = lines({"#; Process Group Lamp", "MESH;", "LITE;0", "INVS;1", "SHDW;0"});
    reader.blocks.begin_lamp_mesh("Group Lamp", 0, true); // let through although its layer is off
    current_oparms->light.hide = true;
    reader.blocks.begin_lamp_mesh("Group Lamp", 0, false);
    current_oparms->light.hide = false;
    current_oparms->invisible = true;
    reader.blocks.begin_lamp_mesh("Group Lamp", 0, false);
    current_oparms->invisible = false;
    set_global_bool("bvl_show_bulbs", false);
    reader.blocks.begin_lamp_mesh("Group Lamp", 0, false);
    EXPECT_EQ(stream_text(), hidden + hidden + hidden + hidden);
}

TEST_F(MeshHeads, a_face_lamp_behind_any_block_closes_once_more) {
    reader.blocks.begin_face_lamp_mesh(0, false, false);
    reader.blocks.begin_face_lamp_mesh(1, true, false);
    reader.blocks.begin_face_lamp_mesh(2, false, true);
    set_global_bool("bvl_show_bulbs", false);
    reader.blocks.begin_face_lamp_mesh(3, false, false);
    EXPECT_EQ(stream_text(), lines({"#; Process Face Lamp MESH",
                                    "MESH;",
                                    "LITE;0",
                                    "EMSH; Close for new Face Lamp MESH",
                                    "#; Process Face Lamp MESH",
                                    "MESH;",
                                    "LITE;1",
                                    "INVS;1",
                                    "SHDW;0",
                                    "EMSH; Close for new Face Lamp MESH",
                                    "#; Process Face Lamp MESH",
                                    "MESH;",
                                    "LITE;2",
                                    "INVS;1",
                                    "SHDW;0",
                                    "EMSH; Close for new Face Lamp MESH",
                                    "#; Process Face Lamp MESH",
                                    "MESH;",
                                    "LITE;3",
                                    "INVS;1",
                                    "SHDW;0"}));
}

TEST_F(MeshHeads, an_illuminated_block_shows_its_glowing_side_on_both_sides) {
    reader.blocks.begin_illum_mesh("Walls", true, 11, 12, false, false);
    EXPECT_EQ(reader.blocks.state().illum_material, 11);
    reader.blocks.begin_illum_mesh("Walls", false, 11, 12, true, false);
    EXPECT_EQ(reader.blocks.state().illum_material, 12);
    EXPECT_EQ(stream_text(), lines({"#; Process Material Illum MESH", "MESH;", "TLAY;Walls", "CULL;0", "MPUV;1",
                                    "MATL;11", "MPU2;1", "MAT2;11", "#; Process Material Illum MESH", "MESH;", "INVS;1",
                                    "SHDW;0", "TLAY;Walls", "CULL;0", "MPUV;1", "MATL;12", "MPU2;1", "MAT2;12"}));
}

TEST_F(MeshHeads, a_close_without_label_has_no_blank) {
    reader.blocks.end_mesh("");
    reader.blocks.end_mesh("END OF LAMP");
    EXPECT_EQ(stream_text(), lines({"EMSH;", "EMSH; END OF LAMP"}));
}

TEST_F(MeshHeads, a_direct_light_is_no_block) {
    reader.blocks.write_direct_light("Group LGHT Lamp", 5);
    EXPECT_EQ(stream_text(), lines({"#; Process Group LGHT Lamp Direct Light", "LGHT;5"}));
}
