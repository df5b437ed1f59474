// Which streams are right, and where the check says that one is not.

#include "tests/support/temporary_folder.h"
#include "tests/tools/stream_pieces.h"

namespace stream_pieces {
namespace {

TEST(StreamCheck, takes_an_empty_model) {
    expect_good({});
}

TEST(StreamCheck, wants_cr_lf_behind_every_line) {
    std::string text = text_of(joined({head, pass, end}));
    text.erase(text.rfind('\r'), 1);
    expect_first(found_in(text), code::stream_line_end, 11);
    text.pop_back();
    expect_first(found_in(text), code::stream_line_end, 11);
}

TEST(StreamCheck, refuses_an_end_too_early_and_lines_behind_the_end) {
    expect_first(found_in({}), code::stream_cut_off, 1);
    expect_first(found_in({head, pass}), code::stream_cut_off, 10);
    expect_first(found_in({head, pass, end, {"#;"}}), code::stream_after_end, 12);
}

TEST(StreamCheck, refuses_a_second_line_that_is_no_date) {
    lines wrong = head;
    wrong[1] = "#;2001-09-09";
    expect_first(found_in({wrong, pass, end}), code::stream_head, 2);
    wrong[1] = "#;Invalid DateTime";
    expect_nothing(found_in({wrong, pass, end}));
}

TEST(StreamCheck, takes_a_layer_table_numbered_from_0) {
    expect_nothing(found_in({head, layer_table, pass, end}));
    expect_first(found_in({head, {"LYIN;1", "LYNM;Layer0"}, pass, end}), code::stream_layer_number, 7);
}

TEST(StreamCheck, takes_a_face_block) {
    expect_good({face_block});
}

TEST(StreamCheck, wants_the_stray_close_ahead_of_every_face_block_but_the_first) {
    expect_good({face_block, {"EMSH; Face"}, face_block});
    expect_bad(18, code::stream_stray_close, {face_block, face_block});
    expect_bad(1, code::stream_stray_close, {{"EMSH; Face"}, face_block});
}

TEST(StreamCheck, takes_the_block_parameters_in_their_order_only) {
    const lines cover = {"GCOR;-1", "GNDC;Grass.skp"};
    const lines invisible = {"INVS;1", "SHDW;0"};
    const lines body = joined({state, triangle(0), close});
    expect_good({face_head, {"SHDW;0"}, cover, invisible, body});
    expect_bad(5, code::stream_order, {face_head, invisible, cover, body});
    expect_bad(4, code::stream_order, {face_head, {"INVS;1"}, body});
    expect_bad(4, code::stream_order, {face_head, {"GCOR;2"}, body});
}

TEST(StreamCheck, refuses_a_block_without_vertices_and_one_that_is_not_closed) {
    expect_bad(7, code::stream_empty_mesh, {face_head, state, close});
    expect_bad(17, code::stream_order, {face_head, state, triangle(0)});
}

TEST(StreamCheck, refuses_vertices_that_do_not_count_from_0) {
    expect_bad(9, code::stream_vertex_number, {face_head, state, triangle(1), close});
}

TEST(StreamCheck, refuses_triangles_of_vertices_that_are_not_there) {
    lines block = face_block;
    block[15] = "FACE;0,1,3";
    expect_bad(16, code::stream_corner, {block});
    block[15] = "FACE;0, 1, 2";
    expect_bad(16, code::stream_number, {block});
    block[15] = "FACE;0,1";
    expect_bad(16, code::stream_number, {block});
}

TEST(StreamCheck, takes_only_numbers_in_their_nine_digit_form) {
    for (const char* number : {"1234.56789", "0.1", "1e-05", "1.23456789e+10", "-1e-07"}) {
        lines block = face_block;
        block[7] = "VERT;(0,0," + std::string(number) + ")";
        expect_good({block});
    }
    for (const char* number : {"-0", "0.10", "5e-08", "1.0", "+1", "", "0.1234567891", " 1"}) {
        lines block = face_block;
        block[7] = "VERT;(0,0," + std::string(number) + ")";
        expect_bad(8, code::stream_number, {block});
    }
}

TEST(StreamCheck, takes_normals_that_are_unit_vectors_or_zero) {
    lines block = face_block;
    block[6] = "NORM;(0.577350269,0.577350269,0.577350269)";
    expect_good({block});
    block[6] = "NORM;(0,0,0)";
    expect_good({block});
    block[6] = "NORM;(0,1,1)";
    expect_bad(7, code::stream_direction, {block});
}

TEST(StreamCheck, wants_a_layer_list_in_an_animation_and_only_there) {
    const lines listed = {"TLAY;Walls", "LYRS;0,1", "CULL;0", "MATL;0", "MAT2;0"};
    const lines block = joined({face_head, listed, triangle(0), close});
    expect_nothing(found_in({head, layer_table, pass, block, end}));
    expect_first(found_in({head, layer_table, pass, face_block, end}), code::stream_order, 17);
    expect_bad(4, code::stream_order, {block});
    lines wrong = block;
    wrong[3] = "LYRS;0,2";
    expect_first(found_in({head, layer_table, pass, wrong, end}), code::stream_layer_number, 17);
    lines unknown = joined({face_head, {"TLAY;Roof", "CULL;0", "MATL;0", "MAT2;0"}, triangle(0), close});
    expect_nothing(found_in({head, layer_table, pass, unknown, end}));
}

TEST(StreamCheck, reports_the_first_fault_of_a_layer_list_alone) {
    const auto found_with = [](const std::string& list) {
        const lines listed = {"TLAY;Walls", list, "CULL;0", "MATL;0", "MAT2;0"};
        return found_in({head, layer_table, pass, face_head, listed, triangle(0), close, end});
    };
    EXPECT_EQ(found_with("LYRS;7,8,x,9").count(code::stream_layer_number), 1U);
    EXPECT_EQ(found_with("LYRS;7,8,x,9").kept().size(), 1U);
    EXPECT_EQ(found_with("LYRS;0,x,7").count(code::stream_number), 1U);
    EXPECT_EQ(found_with("LYRS;0,x,7").kept().size(), 1U);
}

TEST(StreamCheck, takes_materials_that_were_declared) {
    const lines painted = {"TLAY;Layer0", "CULL;0", "MATL;10", "MAT2;10"};
    expect_good({wall, face_head, painted, triangle(0), close});
    expect_bad(5, code::stream_material_number, {face_head, painted, triangle(0), close});
    expect_bad(3, code::stream_declaration, {{"MATF;a", "MTX2;1", "MATI;11"}});
}

TEST(StreamCheck, refuses_a_back_material_in_a_block_of_one_side) {
    const lines one_sided = {"TLAY;Layer0", "CULL;1", "MATL;0"};
    const lines front = joined({face_head, one_sided, triangle(0), close});
    expect_good({front, {"EMSH; Face"}, front});
    expect_bad(6, code::stream_empty_mesh, {face_head, one_sided, {"MAT2;0"}, triangle(0), close});
}

TEST(StreamCheck, wants_texture_coordinates_exactly_in_textured_blocks) {
    const lines textured = {"TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;10", "MPU2;1", "MAT2;10"};
    expect_good({wall, face_head, textured, textured_triangle(0), close});
    expect_bad(13, code::stream_texture_coordinates, {wall, face_head, textured, triangle(0), close});
    expect_bad(8, code::stream_texture_coordinates, {face_head, state, textured_triangle(0), close});
    expect_bad(13, code::stream_texture_coordinates,
               {wall, face_head, textured, textured_triangle(0, "UVQ;(0,0,0)"), close});
    const lines stray = {"EMSH; Face"};
    const lines behind = {"TLAY;Layer0", "CULL;1", "MATL;10", "MPUV;1"};
    expect_good({wall, face_head, behind, textured_triangle(0), close, stray, face_head, behind, triangle(0), close});
}

TEST(StreamCheck, a_lamp_block_gathers_faces_images_and_declarations) {
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
    expect_bad(24, code::stream_vertex_number, {lamp_head, state, triangle(0), state, triangle(0), end_of_lamp});
    expect_bad(18, code::stream_order, {lamp_head, state, triangle(0), close});
    expect_bad(4, code::stream_order, {lamp_head, face_block});
}

TEST(StreamCheck, a_lamp_block_neither_needs_nor_sets_off_the_stray_close) {
    expect_good({face_block, lamp_head, state, triangle(0), end_of_lamp});
    expect_good({lamp_head, state, triangle(0), end_of_lamp, face_block});
}

TEST(StreamCheck, lamps_count_from_0_whatever_their_kind) {
    const lines second = {"#; Process Face Lamp MESH", "MESH;", "LITE;1"};
    expect_good({lamp_head, state, triangle(0), end_of_lamp, second, state, triangle(0), end_of_lamp});
    expect_bad(5, code::stream_lamp_number, {point_light, lamp_head, end_of_lamp});
}

TEST(StreamCheck, a_face_lamp_closes_the_block_before) {
    const lines face_lamp = {"#; Process Face Lamp MESH", "MESH;", "LITE;0"};
    expect_good({face_block,
                 {"EMSH; Close for new Face Lamp MESH"},
                 face_lamp,
                 state,
                 triangle(0),
                 end_of_lamp,
                 {"EMSH; Face"},
                 face_block});
    expect_bad(18, code::stream_stray_close, {face_block, face_lamp, state, triangle(0), end_of_lamp});
}

TEST(StreamCheck, the_two_sides_of_a_face_follow_one_another) {
    const lines alone = {"TLAY;Layer0", "CULL;1", "MATL;0"};
    const lines front = joined({face_head, alone, triangle(0), close});
    const lines stray = {"EMSH; Face"};
    expect_bad(17, code::stream_two_sides, {front});
    expect_bad(35, code::stream_two_sides, {front, stray, face_block});
    expect_bad(17, code::stream_two_sides, {front, wall, stray, front});
    lines larger = triangle(0);
    larger.insert(larger.begin() + 9, {"NORM;(0,0,1)", "VERT;(1,1,0)", "ADDV;3"});
    expect_bad(37, code::stream_two_sides, {front, stray, face_head, alone, larger, close});
}

TEST(StreamCheck, the_two_sides_of_a_face_number_on_inside_a_lamp) {
    const lines alone = {"TLAY;Layer0", "CULL;1", "MATL;0"};
    expect_good({lamp_head, alone, triangle(0), alone, triangle(3), state, triangle(6), end_of_lamp});
    expect_bad(17, code::stream_two_sides, {lamp_head, alone, triangle(0), end_of_lamp});
}

TEST(StreamCheck, a_face_lamp_holds_one_face_alone_or_nothing) {
    const lines face_lamp = {"#; Process Face Lamp MESH", "MESH;", "LITE;0"};
    const lines alone = {"TLAY;Layer0", "CULL;1", "MATL;0"};
    expect_good({face_lamp, alone, triangle(0), alone, triangle(3), end_of_lamp});
    expect_good({face_lamp, {"EMSH; Face"}, face_block}); // its face could not be cut: the block stays open and empty
    expect_good({face_lamp, {"INVS;1", "SHDW;0"}});
    expect_bad(18, code::stream_order, {face_lamp, state, triangle(0), state, triangle(3), end_of_lamp});
    expect_bad(18, code::stream_order, {face_lamp, state, triangle(0), close});
}

const lines glowing = {
    "#; Process Material Illum MESH", "MESH;", "TLAY;Layer0", "CULL;0", "MPUV;1", "MATL;10", "MPU2;1", "MAT2;10"};
const lines end_of_glow = {"EMSH; END OF ILLUM material"};

TEST(StreamCheck, an_illuminated_block_has_one_state_for_all_its_faces) {
    expect_good({wall, glowing, triangle(0), textured_triangle(3), end_of_glow, face_block});
    expect_good({wall, glowing, triangle(0), close, face_block});
    expect_good({wall, glowing, end_of_glow}); // its face could not be cut
    expect_bad(22, code::stream_order, {wall, glowing, triangle(0), state, triangle(3), close});
    expect_bad(24, code::stream_vertex_number, {wall, glowing, triangle(0), triangle(0), close});
    expect_bad(22, code::stream_order, {wall, glowing, triangle(0), end_of_lamp});
}

TEST(StreamCheck, only_declarations_stand_between_the_faces_of_an_illuminated_block) {
    const lines door = {"MATF;COL%3a0013_Door.OrnMaterial", "MTX2;1", "MATI;11"};
    expect_good({wall, glowing, triangle(0), door, triangle(3), end_of_glow});
    expect_bad(22, code::stream_order, {wall, glowing, triangle(0), {"CLPN;(0,0,1)", "CLPP;(1,2,3)"}, end_of_glow});
    expect_bad(22, code::stream_order, {wall, glowing, triangle(0), lamp_head, end_of_lamp, end_of_glow});
}

TEST(StreamCheck, what_glows_is_a_declared_material_and_the_same_on_both_sides) {
    lines wrong = joined({wall, glowing, triangle(0), end_of_glow});
    wrong[8] = "MATL;0";
    expect_bad(9, code::stream_material_number, {wrong});
    wrong[8] = "MATL;11";
    expect_bad(9, code::stream_material_number, {wrong});
    wrong[8] = "MATL;10";
    wrong[10] = "MAT2;0";
    expect_bad(11, code::stream_material_number, {wrong});
}

TEST(StreamCheck, a_hidden_block_says_so_behind_its_lamp_and_ahead_of_its_state) {
    const lines hidden = {"INVS;1", "SHDW;0"};
    const lines glow_state(glowing.begin() + 2, glowing.end());
    expect_good({wall, {"#; Process Material Illum MESH", "MESH;"}, hidden, glow_state, triangle(0), end_of_glow});
    expect_bad(4, code::stream_order, {lamp_head, {"SHDW;0"}, state, triangle(0), end_of_lamp});
    expect_bad(5, code::stream_order, {lamp_head, {"INVS;1"}, state, triangle(0), end_of_lamp});
    expect_bad(3, code::stream_order,
               {{"#; Process Group Lamp", "MESH;"}, hidden, {"LITE;0"}, state, triangle(0), end_of_lamp});
}

TEST(StreamCheck, bare_faces_need_a_direct_light_before_them) {
    const lines bare = joined({state, triangle(0), close});
    const lines alone = joined({{"TLAY;Layer0", "CULL;1", "MATL;0"}, triangle(0), close});
    expect_good({point_light, bare, bare});
    expect_good({point_light, alone, alone, bare});
    expect_good({face_block, {"#; Process Group LGHT Lamp Direct Light", "LGHT;0"}, bare, {"EMSH; Face"}, face_block});
    expect_bad(1, code::stream_order, {bare});
    expect_bad(17, code::stream_order, {point_light, state, triangle(0)});
    expect_bad(17, code::stream_two_sides, {point_light, alone});
}

TEST(StreamCheck, a_block_of_faces_or_of_a_lamp_ends_what_belongs_to_a_direct_light) {
    const lines bare = joined({state, triangle(0), close});
    expect_bad(20, code::stream_order, {point_light, face_block, bare});
    expect_bad(7, code::stream_order, {point_light, {"#; Process Group Lamp", "MESH;", "LITE;1"}, end_of_lamp, bare});
    expect_good({wall, point_light, bare, glowing, triangle(0), end_of_glow, bare});
}

TEST(StreamCheck, a_direct_light_is_a_line_with_the_next_lamp_number) {
    expect_good({point_light, {"#; Process Group LGHT Lamp Direct Light", "LGHT;1"}});
    expect_bad(2, code::stream_lamp_number, {{"#; Process Instance Lamp Direct Light", "LGHT;1"}});
    expect_bad(4, code::stream_order, {lamp_head, {"#; Process Instance Lamp Direct Light", "LGHT;1"}, end_of_lamp});
}

TEST(StreamCheck, an_image_block_has_its_own_forms) {
    const lines opening = {"#;", "#;NEW MESH for Image", "MESH"};
    expect_good({wall, opening, image(0), close, face_block});
    lines shadowless = joined({wall, opening, image(0), close});
    shadowless.insert(shadowless.begin() + 8, "SHDW;0");
    expect_good({shadowless});
    lines wrong = joined({wall, opening, image(0), close});
    wrong[5] = "MESH;";
    expect_bad(6, code::stream_order, {wrong});
    wrong = joined({wall, opening, image(0), close});
    wrong[13] = "UVQ;(0,0,1)";
    expect_bad(14, code::stream_texture_coordinates, {wrong});
}

TEST(StreamCheck, takes_section_planes_plants_and_rpc_objects_anywhere_in_the_body) {
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
    expect_bad(5, code::stream_number, {wrong});
    expect_bad(1, code::stream_order, {{plant.begin() + 1, plant.end()}});
    wrong = rpc;
    wrong[1] = "RPCX;(2,0,0)";
    expect_bad(2, code::stream_direction, {wrong});
    wrong[1] = "RPCX;(0,0,0)";
    expect_good({wrong});
    wrong[4] = "RPSX;-1.000000";
    expect_bad(5, code::stream_number, {wrong});
}

TEST(StreamCheck, names_the_files_of_plants_that_bring_their_own) {
    const lines plant = {"#;PLANT", "PLLB;Trees",    "PLNM;Oak",      "PLLC;(10,0,0)", "PLDM;inf",
                         "PLSN;-1", "PLRT;0.000000", "PLSC;1.000000", "PLNT;1",        "#"};
    lines own = plant;
    own[1] = "PLLB;OrnPlant";
    own[2] = "PLNM;/batch/Plants/Oak";
    own[4] = "PLDM;nan";
    const std::string text = text_of(joined({head, pass, plant, own, end}));
    batch_check::findings found;
    files_in_memory::bytes_in_memory stream(text);
    const batch_check::stream_facts facts = batch_check::check_stream(stream, "batch_file.txt", found);
    expect_nothing(found);
    ASSERT_EQ(facts.plants.size(), 1U);
    EXPECT_EQ(facts.plants[0].name, "/batch/Plants/Oak");
    EXPECT_EQ(facts.plants[0].line, 22U);
}

TEST(StreamCheck, refuses_lines_that_no_item_begins_with) {
    for (const char* line : {"MESH;", "EMSH;", "FACE;0,1,2", "SHDW;0", "# ; ProcessFace MESH"})
        expect_bad(1, code::stream_order, {{line}});
    for (const char* line : {"", "XXXX;1"})
        expect_bad(1, code::stream_unknown, {{line}});
}

TEST(StreamCheck, counts_what_a_stream_holds) {
    const lines painted = {"TLAY;Walls", "CULL;0", "MATL;10", "MAT2;10"};
    const std::string text = text_of(joined({head,
                                             pass,
                                             wall,
                                             face_head,
                                             painted,
                                             triangle(0),
                                             close,
                                             {"EMSH; Face"},
                                             face_block,
                                             point_light,
                                             state,
                                             triangle(0),
                                             close,
                                             end}));
    batch_check::findings found;
    files_in_memory::bytes_in_memory stream(text);
    const batch_check::stream_facts facts = batch_check::check_stream(stream, "batch_file.txt", found);
    expect_nothing(found);
    EXPECT_TRUE(facts.is_whole);
    EXPECT_EQ(facts.bytes, text.size());
    EXPECT_EQ(facts.layers, 2U);
    EXPECT_EQ(facts.meshes, 3U);
    EXPECT_EQ(facts.vertices, 9U);
    EXPECT_EQ(facts.triangles, 3U);
    EXPECT_EQ(facts.triangles_without, 2U);
    ASSERT_EQ(facts.materials.size(), 1U);
    EXPECT_EQ(facts.materials[0].name, "COL%3a0012_Wall.OrnMaterial");
    EXPECT_EQ(facts.materials[0].line, 10U);
    EXPECT_EQ(facts.materials[0].triangles, 1U);
    ASSERT_EQ(facts.lamps.size(), 1U);
    EXPECT_TRUE(facts.lamps[0].is_direct);
    EXPECT_EQ(facts.low, (batch_check::triple{0, 0, 0}));
    EXPECT_EQ(facts.high, (batch_check::triple{2.54, 2.54, 0}));
}

// One wrong line costs one finding: the check finds its way again.
TEST(StreamCheck, goes_on_behind_a_line_that_cannot_stand_where_it_stands) {
    const lines stray = {"EMSH; Face"};
    const lines broken = joined({face_head, {"TLAY;Layer0", "MATL;0", "MAT2;0"}, triangle(0), close});
    const auto count = [](std::initializer_list<lines> body) {
        return found_in({head, pass, joined(body), end}).kept().size();
    };
    EXPECT_EQ(count({broken}), 1U);
    EXPECT_EQ(count({broken, stray, face_block, stray, face_block}), 1U);
    EXPECT_EQ(count({face_block, stray, broken, wall, stray, face_block}), 1U);
    EXPECT_EQ(count({lamp_head, {"MATL;0"}, state, triangle(0), wall, state, triangle(3), end_of_lamp, face_block}),
              1U);
    const lines alone = {"TLAY;Layer0", "CULL;1", "MATL;0"};
    const lines side = joined({face_head, alone, triangle(0), close});
    const lines broken_side = joined({face_head, alone, {"MAT2;0"}, triangle(0), close});
    EXPECT_EQ(count({side, stray, side, stray, side, stray, side}), 0U);
    EXPECT_EQ(count({side, stray, broken_side, stray, side, stray, side}), 2U); // the line, and the mesh cut short
    EXPECT_EQ(count({broken_side, stray, side, stray, side, stray, side}), 2U);
}

TEST(StreamCheck, declarations_and_lamps_count_where_they_are_passed_over) {
    const lines broken_lamp = joined({lamp_head, {"CULL;0"}, wall, end_of_lamp});
    const lines painted = {"TLAY;Layer0", "CULL;0", "MATL;10", "MAT2;10"};
    const lines second = {"#; Process Group Lamp", "MESH;", "LITE;1"};
    EXPECT_EQ(found_in({head, pass, broken_lamp, second, end_of_lamp, face_head, painted, triangle(0), close, end})
                  .kept()
                  .size(),
              1U);
}

TEST(StreamCheck, a_line_of_more_than_64_MiB_is_read_in_part_and_said) {
    const lines long_name = {"TLAY;" + std::string(line_source::longest_line + 1000000, 'x'), "CULL;0", "MATL;0",
                             "MAT2;0"};
    const batch_check::findings found = found_in({head, pass, face_head, long_name, triangle(0), close, end});
    EXPECT_EQ(found.count(code::stream_given_up), 1U) << batch_check::finding_lines(found);
}

} // namespace
} // namespace stream_pieces
