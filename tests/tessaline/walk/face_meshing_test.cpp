#include "tests/tessaline/settled_faces.h"

#include <gtest/gtest.h>

#include <string>

namespace {

constexpr transform16 mirrored_in_y{1, 0, 0, 0, 0, -1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

using FaceMeshing = settled_faces_test;

// The square as the second pass writes it: the same vertices, the triangles turned round.
const std::string square_turned_round =
    lines({"NORM;(0,0,1)", "VERT;(2.54,0,0)", "ADDV;0", "NORM;(0,0,1)", "VERT;(0,2.54,0)", "ADDV;1", "NORM;(0,0,1)",
           "VERT;(0,0,0)", "ADDV;2", "NORM;(0,0,1)", "VERT;(2.54,2.54,0)", "ADDV;3", "FACE;2,1,0", "FACE;3,0,1"});

} // namespace

TEST_F(FaceMeshing, the_first_face_of_a_file_has_no_close_before_it) {
    builder.root().square(100);
    open();
    EXPECT_EQ(process_faces(), 1);
    EXPECT_EQ(stream_text(), plain_head + square_without_uvq + end_of_block);
}

TEST_F(FaceMeshing, a_second_face_is_preceded_by_a_stray_close_and_counts_from_zero) {
    builder.root().square(100);
    builder.root().face({{0, 0, 100}, {100, 0, 100}, {100, 100, 100}, {0, 100, 100}});
    open();
    process_faces();
    EXPECT_EQ(stream_text(),
              plain_head + square_without_uvq + end_of_block + lines({"EMSH; Face"}) + plain_head +
                  lines({"NORM;(0,0,1)", "VERT;(2.54,0,2.54)", "ADDV;0", "NORM;(0,0,1)", "VERT;(0,2.54,2.54)", "ADDV;1",
                         "NORM;(0,0,1)", "VERT;(0,0,2.54)", "ADDV;2", "NORM;(0,0,1)", "VERT;(2.54,2.54,2.54)", "ADDV;3",
                         "FACE;0,1,2", "FACE;1,0,3"}) +
                  end_of_block);
    EXPECT_EQ(reader.blocks.state().vertex_base, 0);
}

TEST_F(FaceMeshing, a_mirroring_transform_turns_the_triangles) {
    builder.root().square(100);
    open();
    process_faces(mirrored_in_y);
    EXPECT_EQ(stream_text(), plain_head +
                                 lines({"NORM;(0,0,-1)", "VERT;(2.54,0,0)", "ADDV;0", "NORM;(0,0,-1)",
                                        "VERT;(0,-2.54,0)", "ADDV;1", "NORM;(0,0,-1)", "VERT;(0,0,0)", "ADDV;2",
                                        "NORM;(0,0,-1)", "VERT;(2.54,-2.54,0)", "ADDV;3", "FACE;2,1,0", "FACE;3,0,1"}) +
                                 end_of_block);
}

TEST_F(FaceMeshing, the_setting_two_gives_a_face_without_materials_two_blocks) {
    set_global_int("ivl_2_sided_faces", 2);
    builder.root().square(100);
    open();
    process_faces();
    const std::string head = lines({"#; ProcessFace MESH", "MESH;", "TLAY;Layer0", "CULL;1", "MATL;0"});
    EXPECT_EQ(stream_text(), head + square_without_uvq + end_of_block + lines({"EMSH; Face"}) + head +
                                 square_turned_round + end_of_block);
}

TEST_F(FaceMeshing, a_mirrored_two_sided_face_turns_the_first_pass_and_not_the_second) {
    set_global_int("ivl_2_sided_faces", 2);
    builder.root().square(100);
    open();
    process_faces(mirrored_in_y);
    const std::string text = stream_text();
    const auto first = text.find("FACE;2,1,0\r\nFACE;3,0,1\r\nEMSH;\r\n");
    const auto second = text.find("FACE;0,1,2\r\nFACE;1,0,3\r\nEMSH;\r\n");
    ASSERT_NE(first, std::string::npos) << text;
    ASSERT_NE(second, std::string::npos) << text;
    EXPECT_LT(first, second);
}

TEST_F(FaceMeshing, two_materials_with_the_setting_one_give_a_block_each) {
    set_global_int("ivl_2_sided_faces", 1);
    builder.root().square(100);
    open();
    EXPECT_EQ(write_first_face(side(10), side(11)), 1);
    EXPECT_EQ(stream_text(),
              lines({"#; ProcessFace MESH", "MESH;", "TLAY;Layer0", "CULL;1", "MATL;10"}) + square_without_uvq +
                  end_of_block +
                  lines({"EMSH; Face", "#; ProcessFace MESH", "MESH;", "TLAY;Layer0", "CULL;1", "MATL;11"}) +
                  square_turned_round + end_of_block);
}

TEST_F(FaceMeshing, one_material_on_both_sides_with_the_setting_one_gives_one_block) {
    set_global_int("ivl_2_sided_faces", 1);
    builder.root().square(100);
    open();
    write_first_face(side(10), side(10));
    EXPECT_EQ(stream_text(), lines({"#; ProcessFace MESH", "MESH;", "TLAY;Layer0", "CULL;0", "MATL;10", "MAT2;10"}) +
                                 square_without_uvq + end_of_block);
}

TEST_F(FaceMeshing, an_inherited_material_stretches_the_coordinates_by_its_picture) {
    builder.root().square(100);
    open();
    material_records.resize(1);
    material_records[0].tile_x = 0.5;
    material_records[0].tile_y = 0.25;
    face_side front = side(10, true);
    front.inherited = true;
    write_first_face(front, side(10, true));
    const std::string text = stream_text();
    EXPECT_NE(text.find("UVQ;(50,0,1)\r\nVERT;(2.54,0,0)"), std::string::npos) << text;
    EXPECT_NE(text.find("UVQ;(0,25,1)\r\nVERT;(0,2.54,0)"), std::string::npos) << text;
}

TEST_F(FaceMeshing, a_face_painted_itself_keeps_its_coordinates) {
    builder.root().square(100);
    open();
    material_records.resize(1);
    material_records[0].tile_x = 0.5;
    write_first_face(side(10, true), side(10, true));
    const std::string text = stream_text();
    EXPECT_NE(text.find("UVQ;(100,0,1)\r\nVERT;(2.54,0,0)"), std::string::npos) << text;
}

TEST_F(FaceMeshing, an_inherited_back_is_stretched_by_the_record_of_the_front) {
    set_global_int("ivl_2_sided_faces", 1);
    builder.root().square(100);
    open();
    material_records.resize(2);
    material_records[0].tile_y = 0.25; // of the front, number 10
    material_records[1].tile_y = 0.5;  // of the back, number 11
    face_side back = side(11, true);
    back.inherited = true;
    write_first_face(side(10), back);
    const std::string text = stream_text();
    EXPECT_NE(text.find("UVQ;(0,25,1)\r\nVERT;(0,2.54,0)"), std::string::npos) << text;
}

TEST_F(FaceMeshing, a_front_without_record_stretches_nothing) {
    builder.root().square(100);
    open();
    face_side front = side(9, true);
    front.inherited = true;
    write_first_face(front, side(0));
    EXPECT_NE(stream_text().find("UVQ;(100,0,1)\r\nVERT;(2.54,0,0)"), std::string::npos);
}

TEST_F(FaceMeshing, a_face_inside_a_lamp_block_repeats_the_state_lines_and_numbers_on) {
    builder.root().square(100);
    open();
    current_oparms->light.lamp_type = "rect_glow";
    open_lamp_block();
    process_faces();
    process_faces();
    const std::string state = lines({"TLAY;Layer0", "CULL;0", "MATL;0", "MAT2;0"});
    EXPECT_EQ(stream_text(), lamp_head + state + square_from(0) + state + square_from(4));
    EXPECT_EQ(reader.blocks.state().vertex_base, 8);
    EXPECT_EQ(reader.blocks.state().lamp_count, 1) << "a lamp inside a lamp is none";
}

TEST_F(FaceMeshing, a_face_that_is_a_lamp_gets_a_block_of_its_own) {
    builder.root().square(100);
    open();
    current_oparms->light.lamp_type = "rect_glow";
    set_global_int("ivl_2_sided_faces", 2);
    write_first_face(side(0), side(0));
    EXPECT_EQ(stream_text(),
              lines({"#; Process Face Lamp MESH", "MESH;", "LITE;0", "TLAY;Layer0", "CULL;1", "MATL;0"}) +
                  square_from(0) + lines({"TLAY;Layer0", "CULL;1", "MATL;0"}) +
                  lines({"NORM;(0,0,1)", "VERT;(2.54,0,0)", "ADDV;4", "NORM;(0,0,1)", "VERT;(0,2.54,0)", "ADDV;5",
                         "NORM;(0,0,1)", "VERT;(0,0,0)", "ADDV;6", "NORM;(0,0,1)", "VERT;(2.54,2.54,0)", "ADDV;7",
                         "FACE;6,5,4", "FACE;7,4,5", "EMSH; END OF LAMP"}));
    EXPECT_EQ(reader.blocks.state().lamp_count, 1);
    EXPECT_EQ(reader.blocks.state().vertex_base, 0);
    EXPECT_EQ(current_oparms->light.face_x_axis, (fpt{1, 0, 0}));
}

// From the third corner back to the first, with x counted the other way.
TEST_F(FaceMeshing, the_longest_edge_of_a_face_that_is_a_lamp_is_kept) {
    builder.root().face({{0, 0, 0}, {300, 0, 0}, {300, 100, 0}});
    open();
    current_oparms->light.lamp_type = "rect_glow";
    write_first_face(side(0), side(0));
    EXPECT_EQ(current_oparms->light.face_edge_vector, (fpt{300, -100, 0}));
}

TEST_F(FaceMeshing, a_face_that_is_hidden_or_invisible_has_an_unseen_block) {
    builder.root().square(100);
    open();
    current_oparms->light.hide = true;
    write_first_face(side(0), side(0));
    current_oparms->light.hide = false;
    current_oparms->invisible = true;
    write_first_face(side(0), side(0));
    const std::string unseen =
        lines({"#; ProcessFace MESH", "MESH;", "INVS;1", "SHDW;0", "TLAY;Layer0", "CULL;0", "MATL;0", "MAT2;0"}) +
        square_from(0) + end_of_block;
    EXPECT_EQ(stream_text(), unseen + lines({"EMSH; Face"}) + unseen);
}

TEST_F(FaceMeshing, a_face_that_is_a_hidden_or_invisible_lamp_has_an_unseen_block) {
    builder.root().square(100);
    open();
    current_oparms->light.lamp_type = "rect_glow";
    current_oparms->light.hide = true;
    write_first_face(side(0), side(0));
    current_oparms->light.hide = false;
    current_oparms->invisible = true;
    write_first_face(side(0), side(0));
    const std::string rest = lines({"INVS;1", "SHDW;0", "TLAY;Layer0", "CULL;0", "MATL;0", "MAT2;0"}) + square_from(0) +
                             lines({"EMSH; END OF LAMP"});
    EXPECT_EQ(stream_text(),
              lines({"#; Process Face Lamp MESH", "MESH;", "LITE;0"}) + rest +
                  lines({"EMSH; Close for new Face Lamp MESH", "#; Process Face Lamp MESH", "MESH;", "LITE;1"}) + rest);
}

// The z axis looks along x at 4 times its length; the origin is at 100, 200, 300 inches.
TEST_F(FaceMeshing, a_face_that_is_a_lamp_stands_and_looks_as_the_list_that_holds_it) {
    constexpr transform16 turned{0, 2, 0, 0, 0, 0, 3, 0, 4, 0, 0, 0, 100, 200, 300, 1};
    for (const char* const type : {"rect_glow", "bulb"})
        builder.attribute(builder.root().square(100), "qlw_lamp", "sorndll_lamp_type", sketchup::text(type));
    open();
    process_faces(turned);
    EXPECT_NE(batch.read("ZynBatch_Lights/light_0.txt").find("direction;(1.000000,0.000000,0.000000)\r\n"),
              std::string::npos);
    EXPECT_NE(batch.read("ZynBatch_Lights/light_1.txt")
                  .find("location;(2.540000,5.080000,7.620000)\r\n"
                        "direction;(0.000000,0.000000,-1.000000)\r\n"),
              std::string::npos);
}

TEST_F(FaceMeshing, the_faces_of_a_direct_light_stand_bare_and_close_each) {
    builder.root().square(100);
    open();
    current_oparms->light.lamp_type = "bulb";
    current_oparms->light.direct_light = true;
    process_faces();
    process_faces();
    const std::string bare = lines({"TLAY;Layer0", "CULL;0", "MATL;0", "MAT2;0"}) + square_from(0) + end_of_block;
    EXPECT_EQ(stream_text(), bare + bare);
}

TEST_F(FaceMeshing, the_beam_pass_writes_lamp_faces_as_ordinary_meshes) {
    const auto glow = builder.layer("QLW_Lamp_Beam_Glow");
    const auto face = builder.root().square(100);
    builder.element(face).layer = glow;
    open();
    current_oparms->light.lamp_type = "spot_beams";
    reader.blocks.want_beam_pass();
    reader.blocks.begin_beam_pass();
    EXPECT_EQ(process_faces(), 1);
    EXPECT_EQ(stream_text(),
              lines({"#; ProcessFace MESH", "MESH;", "TLAY;QLW_Lamp_Beam_Glow", "CULL;0", "MATL;0", "MAT2;0"}) +
                  square_from(0) + end_of_block);
}

TEST_F(FaceMeshing, a_beam_glow_face_in_its_lamps_block_is_skipped_and_not_counted) {
    const auto glow = builder.layer("QLW_Lamp_Beam_Glow");
    const auto face = builder.root().square(100);
    builder.element(face).layer = glow;
    open();
    open_lamp_block();
    reader.items_done = 7;
    EXPECT_EQ(process_faces(), 0);
    EXPECT_EQ(reader.items_done, 6);
    EXPECT_EQ(stream_text(), lamp_head);
}

TEST_F(FaceMeshing, an_ordinary_face_in_the_beam_pass_is_skipped_and_not_counted) {
    builder.root().square(100);
    open();
    reader.blocks.want_beam_pass();
    reader.blocks.begin_beam_pass();
    EXPECT_EQ(process_faces(), 0);
    EXPECT_EQ(reader.items_done, -1);
    EXPECT_EQ(stream_text(), "");
}

TEST_F(FaceMeshing, a_hidden_face_is_skipped) {
    const auto face = builder.root().square(100);
    builder.element(face).hidden = true;
    open();
    EXPECT_EQ(process_faces(), 0);
    EXPECT_EQ(reader.items_done, 0);
    EXPECT_EQ(stream_text(), "");
}

TEST_F(FaceMeshing, a_face_on_a_beam_helper_layer_is_skipped) {
    const auto layer = builder.layer("my QLW_Lamp_Beams");
    builder.element(builder.root().square(100)).layer = layer;
    open();
    EXPECT_EQ(process_faces(), 0);
    EXPECT_EQ(stream_text(), "");
}

TEST_F(FaceMeshing, a_face_on_a_layer_that_is_off_is_skipped) {
    const auto layer = builder.layer("Attic", false);
    builder.element(builder.root().square(100)).layer = layer;
    open();
    EXPECT_EQ(process_faces(), 0);
    EXPECT_EQ(stream_text(), "");
}

TEST_F(FaceMeshing, an_animation_run_writes_the_faces_of_all_layers) {
    theApp.is_doing_animation = true;
    const auto layer = builder.layer("Attic", false);
    builder.element(builder.root().square(100)).layer = layer;
    open();
    EXPECT_EQ(process_faces(), 1);
    EXPECT_EQ(stream_text(),
              lines({"#; ProcessFace MESH", "MESH;", "TLAY;Attic", "LYRS;1", "CULL;0", "MATL;0", "MAT2;0"}) +
                  square_without_uvq + end_of_block);
}

TEST_F(FaceMeshing, a_face_without_shadow_says_so) {
    builder.element(builder.root().square(100)).casts_shadows = false;
    open();
    process_faces();
    EXPECT_EQ(stream_text(),
              lines({"#; ProcessFace MESH", "MESH;", "SHDW;0", "TLAY;Layer0", "CULL;0", "MATL;0", "MAT2;0"}) +
                  square_without_uvq + end_of_block);
}

TEST_F(FaceMeshing, a_triangle_with_two_corners_together_is_left_out_and_its_vertices_stay) {
    builder.root().face({{0, 0, 0}, {100, 0, 0}, {100, 5e-8, 0}});
    open();
    process_faces();
    const std::string text = stream_text();
    EXPECT_NE(text.find("ADDV;2"), std::string::npos) << text;
    EXPECT_EQ(text.find("FACE;"), std::string::npos) << text;
}

TEST_F(FaceMeshing, a_face_without_area_is_skipped_before_any_block) {
    builder.root().face({{0, 0, 0}, {100, 0, 0}, {200, 0, 0}});
    open();
    EXPECT_EQ(process_faces(), 0);
    EXPECT_EQ(stream_text(), "");
    EXPECT_FALSE(block_seen);
}

TEST_F(FaceMeshing, a_lamp_face_without_area_leaves_its_block_open) {
    builder.root().face({{0, 0, 0}, {100, 0, 0}, {200, 0, 0}});
    open();
    current_oparms->light.lamp_type = "rect_glow";
    EXPECT_EQ(write_first_face(side(0), side(0)), 0);
    EXPECT_EQ(stream_text(), lines({"#; Process Face Lamp MESH", "MESH;", "LITE;0"}));
}

TEST_F(FaceMeshing, a_component_below_1e_7_is_written_as_plain_zero) {
    // 3e-6 inches are 7.62e-8 metres; 1e-5 inches are 2.54e-7.
    builder.root().face({{0, 0, 0}, {100, 3e-6, 0}, {1e-5, 100, 0}});
    open();
    process_faces();
    const std::string text = stream_text();
    EXPECT_NE(text.find("VERT;(2.54,0,0)"), std::string::npos) << text;
    EXPECT_NE(text.find("VERT;(2.54e-07,2.54,0)"), std::string::npos) << text;
}

TEST_F(FaceMeshing, colour_by_layer_takes_the_paint_off_the_face) {
    theApp.color_by_layer = true;
    const auto red = builder.material("Red", {255, 0, 0, 255});
    builder.element(builder.root().square(100)).material = red;
    open();
    process_faces();
    SUMaterialRef front = SU_INVALID;
    SUFaceGetFrontMaterial(faces().front(), &front);
    EXPECT_TRUE(SUIsInvalid(front));
}
