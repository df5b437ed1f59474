#include "tests/batch/stream_grammar.h"

#include "tests/batch/stream_pieces.h"
#include "tests/support/temporary_folder.h"

namespace stream_pieces {
namespace {

TEST(StreamGrammar, takes_an_empty_model) {
    expect_good({});
}

TEST(StreamGrammar, wants_cr_lf_behind_every_line) {
    std::string text = text_of(joined({head, pass, end}));
    text.erase(text.rfind('\r'), 1);
    EXPECT_EQ(first_grammar_fault(text), (grammar_fault{1, "not every line ends in CR LF"}));
    text.pop_back();
    EXPECT_EQ(first_grammar_fault(text), (grammar_fault{1, "not every line ends in CR LF"}));
}

TEST(StreamGrammar, refuses_an_end_too_early_and_lines_behind_the_end) {
    EXPECT_EQ(fault_of({}),
              (grammar_fault{1, "\"#;Tessaline Geometry, new extractor\" must stand here, the stream ends"}));
    EXPECT_EQ(fault_of({head, pass}), (grammar_fault{10, "\"#;\" must stand here, the stream ends"}));
    EXPECT_EQ(fault_of({head, pass, end, {"#;"}}),
              (grammar_fault{12, "nothing may stand behind \"END;\", found \"#;\""}));
}

TEST(StreamGrammar, refuses_a_second_line_that_is_no_date) {
    lines wrong = head;
    wrong[1] = "#;2001-09-09";
    EXPECT_EQ(fault_of({wrong, pass, end}), (grammar_fault{2, "this is no date, found \"#;2001-09-09\""}));
    wrong[1] = "#;Invalid DateTime";
    EXPECT_EQ(fault_of({wrong, pass, end}), std::nullopt);
}

TEST(StreamGrammar, takes_a_layer_table_numbered_from_0) {
    EXPECT_EQ(fault_of({head, layer_table, pass, end}), std::nullopt);
    EXPECT_EQ(fault_of({head, {"LYIN;1", "LYNM;Layer0"}, pass, end}),
              (grammar_fault{7, "\"LYIN;0\" must stand here, found \"LYIN;1\""}));
}

TEST(StreamGrammar, takes_a_face_block) {
    expect_good({face_block});
}

TEST(StreamGrammar, wants_the_stray_close_ahead_of_every_face_block_but_the_first) {
    expect_good({face_block, {"EMSH; Face"}, face_block});
    expect_bad(18, "\"EMSH; Face\" must stand here, found \"#; ProcessFace MESH\"", {face_block, face_block});
    expect_bad(1, "\"#; ProcessFace MESH\" must stand here, found \"EMSH; Face\"", {{"EMSH; Face"}, face_block});
}

TEST(StreamGrammar, takes_the_block_parameters_in_their_order_only) {
    const lines cover = {"GCOR;-1", "GNDC;Grass.skp"};
    const lines invisible = {"INVS;1", "SHDW;0"};
    const lines body = joined({state, triangle(0), close});
    expect_good({face_head, {"SHDW;0"}, cover, invisible, body});
    expect_bad(5, "\"TLAY;\" must stand here, found \"GCOR;-1\"", {face_head, invisible, cover, body});
    expect_bad(4, "\"SHDW;0\" must stand here, found \"TLAY;Layer0\"", {face_head, {"INVS;1"}, body});
    expect_bad(4, "\"GNDC;\" must stand here, found \"TLAY;Layer0\"", {face_head, {"GCOR;2"}, body});
}

TEST(StreamGrammar, refuses_a_block_without_vertices_and_one_that_is_not_closed) {
    expect_bad(7, "a mesh has at least one vertex, found \"EMSH;\"", {face_head, state, close});
    expect_bad(17, "\"EMSH;\" must stand here, found \"#;\"", {face_head, state, triangle(0)});
}

TEST(StreamGrammar, refuses_vertices_that_do_not_count_from_0) {
    expect_bad(9, "\"ADDV;0\" must stand here, found \"ADDV;1\"", {face_head, state, triangle(1), close});
}

TEST(StreamGrammar, refuses_triangles_of_vertices_that_are_not_there) {
    lines block = face_block;
    block[15] = "FACE;0,1,3";
    expect_bad(16, "the mesh has no vertex of this number, found \"FACE;0,1,3\"", {block});
    block[15] = "FACE;0, 1, 2";
    expect_bad(16, "these are no whole numbers, found \"FACE;0, 1, 2\"", {block});
    block[15] = "FACE;0,1";
    expect_bad(16, "a triangle has three corners, found \"FACE;0,1\"", {block});
}

TEST(StreamGrammar, takes_only_numbers_in_their_nine_digit_form) {
    for (const char* number : {"1234.56789", "0.1", "1e-05", "1.23456789e+10", "-1e-07"}) {
        lines block = face_block;
        block[7] = "VERT;(0,0," + std::string(number) + ")";
        expect_good({block});
    }
    for (const char* number : {"-0", "0.10", "5e-08", "1.0", "+1", "inf", "nan", "", "0.1234567891", " 1"}) {
        lines block = face_block;
        block[7] = "VERT;(0,0," + std::string(number) + ")";
        expect_bad(8, "this is no triple of numbers in their shortest form, found \"" + block[7] + '"', {block});
    }
}

TEST(StreamGrammar, takes_normals_that_are_unit_vectors_or_zero) {
    lines block = face_block;
    block[6] = "NORM;(0.577350269,0.577350269,0.577350269)";
    expect_good({block});
    block[6] = "NORM;(0,0,0)";
    expect_good({block});
    block[6] = "NORM;(0,1,1)";
    expect_bad(7, "this is no unit vector, found \"NORM;(0,1,1)\"", {block});
}

TEST(StreamGrammar, wants_a_layer_list_in_an_animation_and_only_there) {
    const lines listed = {"TLAY;Walls", "LYRS;0,1", "CULL;0", "MATL;0", "MAT2;0"};
    const lines block = joined({face_head, listed, triangle(0), close});
    EXPECT_EQ(fault_of({head, layer_table, pass, block, end}), std::nullopt);
    EXPECT_EQ(fault_of({head, layer_table, pass, face_block, end}),
              (grammar_fault{17, "\"LYRS;\" must stand here, found \"CULL;0\""}));
    expect_bad(4, "\"CULL;0\" must stand here, found \"LYRS;0,1\"", {block});
    lines wrong = block;
    wrong[3] = "LYRS;0,2";
    EXPECT_EQ(fault_of({head, layer_table, pass, wrong, end}),
              (grammar_fault{17, "no layer has this number, found \"LYRS;0,2\""}));
    lines unknown = joined({face_head, {"TLAY;Roof", "CULL;0", "MATL;0", "MAT2;0"}, triangle(0), close});
    EXPECT_EQ(fault_of({head, layer_table, pass, unknown, end}), std::nullopt);
}

TEST(StreamGrammar, takes_materials_that_were_declared) {
    const lines painted = {"TLAY;Layer0", "CULL;0", "MATL;10", "MAT2;10"};
    expect_good({wall, face_head, painted, triangle(0), close});
    expect_bad(5, "no material has this number, found \"MATL;10\"", {face_head, painted, triangle(0), close});
    expect_bad(3, "\"MATI;10\" must stand here, found \"MATI;11\"", {{"MATF;a", "MTX2;1", "MATI;11"}});
}

TEST(StreamGrammar, refuses_a_back_material_in_a_block_of_one_side) {
    const lines one_sided = {"TLAY;Layer0", "CULL;1", "MATL;0"};
    const lines front = joined({face_head, one_sided, triangle(0), close});
    expect_good({front, {"EMSH; Face"}, front});
    expect_bad(6, "a mesh has at least one vertex, found \"MAT2;0\"",
               {face_head, one_sided, {"MAT2;0"}, triangle(0), close});
}

TEST(StreamGrammar, wants_texture_coordinates_exactly_in_textured_blocks) {
    const lines textured = {"TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;10", "MPU2;1", "MAT2;10"};
    expect_good({wall, face_head, textured, textured_triangle(0), close});
    expect_bad(13, "\"UVQ;\" must stand here, found \"VERT;(0,0,0)\"", {wall, face_head, textured, triangle(0), close});
    expect_bad(8, "\"VERT;\" must stand here, found \"UVQ;(0.5,1.5,1)\"",
               {face_head, state, textured_triangle(0), close});
    expect_bad(13, "the third texture coordinate of a face is 1, found \"UVQ;(0,0,0)\"",
               {wall, face_head, textured, textured_triangle(0, "UVQ;(0,0,0)"), close});
    const lines stray = {"EMSH; Face"};
    const lines behind = {"TLAY;Layer0", "CULL;1", "MATL;10", "MPUV;1"};
    expect_good({wall, face_head, behind, textured_triangle(0), close, stray, face_head, behind, triangle(0), close});
}

TEST(StreamGrammar, a_lamp_block_gathers_faces_images_and_declarations) {
    expect_good({lamp_head,
                 state,
                 triangle(0),
                 wall,
                 state,
                 triangle(3),
                 {"#;", "#;INSERT IMAGE IN LAMP"},
                 image(6),
                 state,
                 triangle(10),
                 end_of_lamp});
    expect_good({lamp_head, {"INVS;1", "SHDW;0"}, end_of_lamp});
    expect_bad(24, "\"ADDV;3\" must stand here, found \"ADDV;0\"",
               {lamp_head, state, triangle(0), state, triangle(0), end_of_lamp});
    expect_bad(18, "this cannot stand in the block of a lamp, found \"EMSH;\"", {lamp_head, state, triangle(0), close});
    expect_bad(4, "this cannot stand in the block of a lamp, found \"#; ProcessFace MESH\"", {lamp_head, face_block});
}

TEST(StreamGrammar, a_lamp_block_neither_needs_nor_sets_off_the_stray_close) {
    expect_good({face_block, lamp_head, state, triangle(0), end_of_lamp});
    expect_good({lamp_head, state, triangle(0), end_of_lamp, face_block});
}

TEST(StreamGrammar, lamps_count_from_0_whatever_their_kind) {
    const lines second = {"#; Process Face Lamp MESH", "MESH;", "LITE;1"};
    expect_good({lamp_head, state, triangle(0), end_of_lamp, second, state, triangle(0), end_of_lamp});
    expect_bad(5, "\"LITE;1\" must stand here, found \"LITE;0\"", {point_light, lamp_head, end_of_lamp});
}

TEST(StreamGrammar, a_face_lamp_closes_the_block_before) {
    const lines face_lamp = {"#; Process Face Lamp MESH", "MESH;", "LITE;0"};
    expect_good({face_block,
                 {"EMSH; Close for new Face Lamp MESH"},
                 face_lamp,
                 state,
                 triangle(0),
                 end_of_lamp,
                 {"EMSH; Face"},
                 face_block});
    expect_bad(18, "\"EMSH; Close for new Face Lamp MESH\" must stand here, found \"#; Process Face Lamp MESH\"",
               {face_block, face_lamp, state, triangle(0), end_of_lamp});
}

TEST(StreamGrammar, the_two_sides_of_a_face_follow_one_another) {
    const lines alone = {"TLAY;Layer0", "CULL;1", "MATL;0"};
    const lines front = joined({face_head, alone, triangle(0), close});
    const lines stray = {"EMSH; Face"};
    expect_bad(17, "\"EMSH; Face\" must stand here, found \"#;\"", {front});
    expect_bad(34, "the other side of this face must be one-sided too, found \"EMSH;\"", {front, stray, face_block});
    expect_bad(17, "\"EMSH; Face\" must stand here, found \"MATF;COL%3a0012_Wall.OrnMaterial\"",
               {front, wall, stray, front});
    lines larger = triangle(0);
    larger.insert(larger.begin() + 9, {"NORM;(0,0,1)", "VERT;(1,1,0)", "ADDV;3"});
    expect_bad(36, "the two sides of this face have other vertices, found \"EMSH;\"",
               {front, stray, face_head, alone, larger, close});
}

TEST(StreamGrammar, the_two_sides_of_a_face_number_on_inside_a_lamp) {
    const lines alone = {"TLAY;Layer0", "CULL;1", "MATL;0"};
    expect_good({lamp_head, alone, triangle(0), alone, triangle(3), state, triangle(6), end_of_lamp});
    expect_bad(17, "\"TLAY;\" must stand here, found \"EMSH; END OF LAMP\"",
               {lamp_head, alone, triangle(0), end_of_lamp});
}

TEST(StreamGrammar, a_face_lamp_holds_one_face_alone_or_nothing) {
    const lines face_lamp = {"#; Process Face Lamp MESH", "MESH;", "LITE;0"};
    const lines alone = {"TLAY;Layer0", "CULL;1", "MATL;0"};
    expect_good({face_lamp, alone, triangle(0), alone, triangle(3), end_of_lamp});
    expect_good({face_lamp, {"EMSH; Face"}, face_block}); // its face could not be cut: the block stays open and empty
    expect_good({face_lamp, {"INVS;1", "SHDW;0"}});
    expect_bad(18, "\"EMSH; END OF LAMP\" must stand here, found \"TLAY;Layer0\"",
               {face_lamp, state, triangle(0), state, triangle(3), end_of_lamp});
    expect_bad(18, "\"EMSH; END OF LAMP\" must stand here, found \"EMSH;\"", {face_lamp, state, triangle(0), close});
}

const lines glowing = {
    "#; Process Material Illum MESH", "MESH;", "TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;10", "MPU2;1", "MAT2;10"};
const lines end_of_glow = {"EMSH; END OF ILLUM material"};

TEST(StreamGrammar, an_illuminated_block_has_one_state_for_all_its_faces) {
    expect_good({wall, glowing, triangle(0), textured_triangle(3), end_of_glow, face_block});
    expect_good({wall, glowing, triangle(0), close, face_block});
    expect_good({wall, glowing, end_of_glow}); // its face could not be cut
    expect_bad(22, "this cannot stand in an illuminated block, found \"TLAY;Layer0\"",
               {wall, glowing, triangle(0), state, triangle(3), close});
    expect_bad(24, "\"ADDV;3\" must stand here, found \"ADDV;0\"", {wall, glowing, triangle(0), triangle(0), close});
    expect_bad(22, "this cannot stand in an illuminated block, found \"EMSH; END OF LAMP\"",
               {wall, glowing, triangle(0), end_of_lamp});
}

TEST(StreamGrammar, only_declarations_stand_between_the_faces_of_an_illuminated_block) {
    const lines door = {"MATF;COL%3a0013_Door.OrnMaterial", "MTX2;1", "MATI;11"};
    expect_good({wall, glowing, triangle(0), door, triangle(3), end_of_glow});
    expect_bad(22, "this cannot stand in an illuminated block, found \"CLPN;(0,0,1)\"",
               {wall, glowing, triangle(0), {"CLPN;(0,0,1)", "CLPP;(1,2,3)"}, end_of_glow});
    expect_bad(22, "this cannot stand in an illuminated block, found \"#; Process Group Lamp\"",
               {wall, glowing, triangle(0), lamp_head, end_of_lamp, end_of_glow});
}

TEST(StreamGrammar, what_glows_is_a_declared_material_and_the_same_on_both_sides) {
    lines wrong = joined({wall, glowing, triangle(0), end_of_glow});
    wrong[8] = "MATL;0";
    expect_bad(9, "no material does not glow, found \"MATL;0\"", {wrong});
    wrong[8] = "MATL;11";
    expect_bad(9, "no material has this number, found \"MATL;11\"", {wrong});
    wrong[8] = "MATL;10";
    wrong[10] = "MAT2;0";
    expect_bad(11, "\"MAT2;10\" must stand here, found \"MAT2;0\"", {wrong});
}

TEST(StreamGrammar, a_hidden_block_says_so_behind_its_lamp_and_ahead_of_its_state) {
    const lines hidden = {"INVS;1", "SHDW;0"};
    const lines glow_state(glowing.begin() + 2, glowing.end());
    expect_good({wall, {"#; Process Material Illum MESH", "MESH;"}, hidden, glow_state, triangle(0), end_of_glow});
    expect_bad(4, "this cannot stand in the block of a lamp, found \"SHDW;0\"",
               {lamp_head, {"SHDW;0"}, state, triangle(0), end_of_lamp});
    expect_bad(5, "\"SHDW;0\" must stand here, found \"TLAY;Layer0\"",
               {lamp_head, {"INVS;1"}, state, triangle(0), end_of_lamp});
    expect_bad(3, "\"LITE;0\" must stand here, found \"INVS;1\"",
               {{"#; Process Group Lamp", "MESH;"}, hidden, {"LITE;0"}, state, triangle(0), end_of_lamp});
}

TEST(StreamGrammar, bare_faces_need_a_direct_light_before_them) {
    const lines bare = joined({state, triangle(0), close});
    const lines alone = joined({{"TLAY;Layer0", "CULL;1", "MATL;0"}, triangle(0), close});
    expect_good({point_light, bare, bare});
    expect_good({point_light, alone, alone, bare});
    expect_good({face_block, {"#; Process Group LGHT Lamp Direct Light", "LGHT;0"}, bare, {"EMSH; Face"}, face_block});
    expect_bad(1, "no item begins so, found \"TLAY;Layer0\"", {bare});
    expect_bad(17, "\"EMSH;\" must stand here, found \"#;\"", {point_light, state, triangle(0)});
    expect_bad(17, "\"TLAY;\" must stand here, found \"#;\"", {point_light, alone});
}

TEST(StreamGrammar, a_block_of_faces_or_of_a_lamp_ends_what_belongs_to_a_direct_light) {
    const lines bare = joined({state, triangle(0), close});
    expect_bad(20, "no item begins so, found \"TLAY;Layer0\"", {point_light, face_block, bare});
    expect_bad(7, "no item begins so, found \"TLAY;Layer0\"",
               {point_light, {"#; Process Group Lamp", "MESH;", "LITE;1"}, end_of_lamp, bare});
    expect_good({wall, point_light, bare, glowing, triangle(0), end_of_glow, bare});
}

TEST(StreamGrammar, a_direct_light_is_a_line_with_the_next_lamp_number) {
    expect_good({point_light, {"#; Process Group LGHT Lamp Direct Light", "LGHT;1"}});
    expect_bad(2, "\"LGHT;0\" must stand here, found \"LGHT;1\"",
               {{"#; Process Instance Lamp Direct Light", "LGHT;1"}});
    expect_bad(4, "this cannot stand in the block of a lamp, found \"#; Process Instance Lamp Direct Light\"",
               {lamp_head, {"#; Process Instance Lamp Direct Light", "LGHT;1"}, end_of_lamp});
}

TEST(StreamGrammar, an_image_block_has_its_own_forms) {
    const lines opening = {"#;", "#;NEW MESH for Image", "MESH"};
    expect_good({wall, opening, image(0), close, face_block});
    lines shadowless = joined({wall, opening, image(0), close});
    shadowless.insert(shadowless.begin() + 8, "SHDW;0");
    expect_good({shadowless});
    lines wrong = joined({wall, opening, image(0), close});
    wrong[5] = "MESH;";
    expect_bad(6, "\"MESH\" must stand here, found \"MESH;\"", {wrong});
    wrong = joined({wall, opening, image(0), close});
    wrong[13] = "UVQ;(0,0,1)";
    expect_bad(14, "\"UVQ;(0,0,0)\" must stand here, found \"UVQ;(0,0,1)\"", {wrong});
}

TEST(StreamGrammar, takes_section_planes_plants_and_rpc_objects_anywhere_in_the_body) {
    const lines plane = {"CLPN;(0,0,1)", "CLPP;(1,2,3)"};
    const lines plant = {"#;PLANT",
                         "PLLB;OrnPlant",
                         with_own_separators("PLNM;/batch/Plants/Oak"),
                         "PLLC;(10,0,0)",
                         "PLDM;1.000000",
                         "PLSN;1",
                         "PLRT;90.000000",
                         "PLSC;0.950000",
                         "PLNT;1",
                         "#"};
    const lines rpc = {"RPCP;(0,0,0)",  "RPCX;(1,0,0)",  "RPCY;(0,1,0)", "RPCZ;(0,0,1)", "RPSX;1.000000",
                       "RPSY;1.000000", "RPSZ;1.000000", "RPCL;Layer0",  "RPCN;0",       "#"};
    expect_good({plane, plant, rpc, face_block, plant, lamp_head, plane, plant, rpc, end_of_lamp});
    lines wrong = plant;
    wrong[4] = "PLDM;1";
    expect_bad(5, "this is no number with six decimals, found \"PLDM;1\"", {wrong});
    expect_bad(1, "no item begins so, found \"PLLB;OrnPlant\"", {{plant.begin() + 1, plant.end()}});
    wrong = rpc;
    wrong[1] = "RPCX;(2,0,0)";
    expect_bad(2, "this is no unit vector, found \"RPCX;(2,0,0)\"", {wrong});
    wrong[1] = "RPCX;(0,0,0)";
    expect_good({wrong});
    wrong[4] = "RPSX;-1.000000";
    expect_bad(5, "the length of an axis is not negative, found \"RPSX;-1.000000\"", {wrong});
}

TEST(StreamGrammar, wants_the_file_of_a_plant_in_the_folder_of_plants) {
    const lines plant = {"#;PLANT", "PLLB;Trees",    "PLNM;Oak",      "PLLC;(10,0,0)", "PLDM;inf",
                         "PLSN;-1", "PLRT;0.000000", "PLSC;1.000000", "PLNT;1",        "#"};
    expect_good({plant});
    lines wrong = plant;
    wrong[4] = "PLDM;nan";
    expect_good({wrong});
    wrong[1] = "PLLB;OrnPlant";
    expect_bad(3, "data of its own lie in the folder of plants, found \"PLNM;Oak\"", {wrong});
    wrong[2] = with_own_separators("PLNM;/batch/Plants/../Oak");
    expect_bad(3, "data of its own lie in the folder of plants, found \"" + wrong[2] + '"', {wrong});
}

TEST(StreamGrammar, refuses_lines_that_no_item_begins_with) {
    for (const char* line : {"", "MESH;", "EMSH;", "FACE;0,1,2", "SHDW;0", "XXXX;1", "# ; ProcessFace MESH"})
        expect_bad(1, "no item begins so, found \"" + std::string(line) + '"', {{line}});
}

} // namespace
} // namespace stream_pieces
