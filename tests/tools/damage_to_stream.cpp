// Damage to the stream: its frame, the order of its lines, the forms of its numbers.

#include "tests/tools/damage.h"

namespace {

using batch_check::code;

const std::string stream = "batch_file.txt";

} // namespace

std::vector<damage> damage_to_frames() {
    const std::string first = "#;Tessaline Geometry, new extractor";
    const std::string date = "#;09/09/2001  01:46:40 GMT";
    return {
        {"the_first_line_is_missing", code::stream_head, removed(stream, first)},
        {"the_first_line_names_another_program", code::stream_head, replaced(stream, first, "#;Other Geometry")},
        {"the_date_is_missing", code::stream_head, removed(stream, date)},
        {"the_date_is_spelt_year_first", code::stream_head, replaced(stream, date, "#;2001-09-09 01:46:40")},
        {"the_date_has_one_blank", code::stream_head, replaced(stream, date, "#;09/09/2001 01:46:40 GMT")},
        {"the_colour_of_fronts_is_missing", code::stream_head, removed(stream, "DFFC;ffffff")},
        {"the_colour_of_backs_is_another", code::stream_head, replaced(stream, "DFBC;ffffff", "DFBC;fffffe")},
        {"the_colour_of_edges_is_short", code::stream_head, replaced(stream, "DFEC;000000", "DFEC;0")},
        {"two_lines_of_the_head_are_swapped", code::stream_head, swapped_with_next(stream, "DFFC;ffffff")},
        {"the_comment_behind_the_colours_is_missing", code::stream_head, removed(stream, "#;")},
        {"the_pass_is_missing", code::stream_head, removed(stream, "PASS;0")},
        {"there_is_a_second_pass", code::stream_head, replaced(stream, "PASS;0", "PASS;1")},
        {"the_end_is_missing", code::stream_cut_off, removed(stream, "END;")},
        {"the_stream_is_empty", code::stream_cut_off, overwritten(stream, "")},
        {"the_stream_stops_behind_its_head", code::stream_cut_off, cut_behind(stream, "PASS;0")},
        {"the_stream_stops_within_a_vertex", code::stream_cut_off, cut_behind(stream, "NORM;(0,0,1)")},
        {"the_stream_stops_between_blocks", code::stream_cut_off, cut_behind(stream, "EMSH;")},
        {"the_stream_stops_within_a_lamp", code::stream_cut_off, cut_behind(stream, "LITE;0")},
        {"the_stream_stops_within_a_line", code::stream_cut_off, cut_within(stream, "VERT;(2.54,0,1)", 9)},
        {"the_stream_stops_within_the_edges", code::stream_cut_off, cut_behind(stream, "#;MESH for Edges")},
        {"the_stream_stops_within_a_declaration", code::stream_cut_off, cut_behind(stream, "MTX2;1", 1)},
        {"the_stream_stops_within_a_plant", code::stream_cut_off, cut_behind(stream, "PLSN;1")},
        {"a_comment_stands_behind_the_end", code::stream_after_end, appended(stream, "#;\r\n")},
        {"a_second_end_stands_behind_the_end", code::stream_after_end, appended(stream, "END;\r\n")},
        {"another_stream_stands_behind_the_end", code::stream_after_end,
         [](files_by_name& files) {
             files["batch_file.txt"] += std::string(files["batch_file.txt"]);
             return true;
         }},
        {"one_line_ends_in_a_line_feed_alone", code::stream_line_end, with_bare_line_feed(stream, "MESH;")},
        {"the_last_line_has_no_end", code::stream_line_end, cut_within(stream, "END;", 4)},
        {"all_lines_end_in_a_line_feed_alone", code::stream_line_end, replaced_everywhere(stream, "\r\n", "\n")},
        {"all_lines_end_in_a_carriage_return_alone", code::stream_line_end, replaced_everywhere(stream, "\r\n", "\r")},
        {"a_tag_is_misspelt", code::stream_unknown, replaced(stream, "VERT;(0,0,1)", "VRET;(0,0,1)")},
        {"a_tag_is_in_lower_case", code::stream_unknown, replaced(stream, "NORM;(0,0,1)", "norm;(0,0,1)")},
        {"a_line_is_empty", code::stream_unknown, put_ahead(stream, "ADDV;1", "")},
        {"a_tag_lacks_its_semicolon", code::stream_unknown, replaced(stream, "EMSH;", "EMSH")},
        {"a_line_is_zero_bytes", code::stream_unknown, replaced(stream, "MESH;", std::string(5, '\0'))},
        {"a_line_is_that_of_another_text", code::stream_unknown, put_ahead(stream, "MATI;11", "Hello, world")},
        {"there_are_hundreds_of_faults", code::stream_given_up,
         [](files_by_name& files) {
             std::string& text = files["batch_file.txt"];
             std::string faults;
             for (int i = 0; i < 300; ++i)
                 faults += "MATF;a\r\nCULL;0\r\n";
             text.insert(text.find("#;\r\n#;EDGES"), faults);
             return true;
         }},
    };
}

std::vector<damage> damage_to_order_of_faces() {
    const auto order = code::stream_order;
    return {
        {"a_block_is_not_opened", order, removed(stream, "MESH;")},
        {"a_block_is_opened_twice", order, doubled(stream, "MESH;")},
        {"the_comment_ahead_of_a_block_is_missing", order, removed(stream, "#; ProcessFace MESH")},
        {"the_comment_ahead_of_a_block_is_another", order, replaced(stream, "#; ProcessFace MESH", "#; Process MESH")},
        {"a_block_is_not_closed", order, removed(stream, "EMSH;")},
        {"the_layer_of_a_face_is_missing", order, removed(stream, "TLAY;Layer0")},
        {"the_sidedness_of_a_face_is_missing", order, removed(stream, "CULL;0")},
        {"the_sidedness_of_a_face_is_2", order, replaced(stream, "CULL;0", "CULL;2")},
        {"the_front_material_is_missing", order, removed(stream, "MATL;10")},
        {"the_back_material_is_missing", order, removed(stream, "MAT2;10")},
        {"a_side_alone_has_a_back_material", order, put_ahead(stream, "MPUV;1", "MAT2;11")},
        {"materials_stand_ahead_of_the_sidedness", order, swapped_with_next(stream, "CULL;0")},
        {"a_normal_is_missing", order, removed(stream, "NORM;(0,0,1)", 1)},
        {"a_position_is_missing", order, removed(stream, "VERT;(2.54,0,1)")},
        {"a_vertex_is_not_added", order, removed(stream, "ADDV;1")},
        {"a_normal_stands_behind_its_position", order, swapped_with_next(stream, "NORM;(0,0,1)")},
        {"a_triangle_stands_among_the_vertices", order, swapped_with_next(stream, "ADDV;2")},
        {"a_block_is_invisible_and_casts_shadows", order, removed(stream, "SHDW;0", 1)},
        {"a_shadow_flag_is_1", order, replaced(stream, "SHDW;0", "SHDW;1")},
        {"a_ground_cover_has_no_file", order, removed(stream, "GNDC;/batches/small/Plants/Meadow.cover")},
        {"a_ground_cover_has_no_orientation", order, removed(stream, "GCOR;-1")},
        {"a_declaration_stands_within_a_face_block", order,
         put_ahead(stream, "CULL;0", "MATF;a.OrnMaterial\r\nMTX2;1\r\nMATI;11")},
        {"a_declaration_lacks_its_second_line", order, removed(stream, "MTX2;1")},
        {"a_declaration_has_another_second_line", order, replaced(stream, "MTX2;1", "MTX2;2")},
        {"a_declaration_has_no_number", order, removed(stream, "MATI;11")},
        {"the_second_texture_flag_is_missing", order, removed(stream, "MPU2;1")},
        {"the_close_ahead_of_a_face_stands_twice", order, doubled(stream, "EMSH; Face")},
        {"a_textured_face_does_not_use_its_coordinates_on_its_back", order,
         replaced(stream, "MATL;10", "MPUV;1\r\nMATL;10\r\nMPU2;0")},
        {"a_layer_has_no_name", order, removed(stream, "LYNM;Walls"), true},
        {"a_layer_list_is_missing_in_an_animation", order, removed(stream, "LYRS;0,1"), true},
        {"a_layer_list_stands_in_no_animation", order, put_ahead(stream, "CULL;0", "LYRS;0")},
    };
}

std::vector<damage> damage_to_order_of_lamps() {
    const auto order = code::stream_order;
    return {
        {"a_lamp_block_has_no_number", order, removed(stream, "LITE;0")},
        {"a_lamp_block_is_closed_like_a_face", order, replaced(stream, "EMSH; END OF LAMP", "EMSH;")},
        {"a_face_block_stands_in_a_lamp_block", order, put_ahead(stream, "INVS;1", "#; ProcessFace MESH\r\nMESH;")},
        {"a_direct_light_stands_in_a_lamp_block", order,
         put_ahead(stream, "EMSH; END OF LAMP", "#; Process Instance Lamp Direct Light\r\nLGHT;1")},
        {"a_second_face_stands_in_the_block_of_a_face_lamp", order,
         put_ahead(stream, "EMSH; END OF LAMP", "TLAY;Layer0", 1)},
        {"a_glowing_block_has_state_lines_twice", order, put_ahead(stream, "UVQ;(0.5,1.5,1)", "TLAY;Layer0", 3)},
        {"a_glowing_block_is_closed_like_a_lamp", order,
         replaced(stream, "EMSH; END OF ILLUM material", "EMSH; END OF LAMP")},
        {"a_face_without_block_has_no_direct_light", order,
         all_of({removed(stream, "#; Process Instance Lamp Direct Light"), removed(stream, "LGHT;2")})},
        {"a_direct_light_has_no_number", order, removed(stream, "LGHT;2")},
        {"a_lamp_block_is_opened_like_an_image", order, replaced(stream, "MESH;", "MESH", 4)},
        {"a_glowing_block_is_opened_like_an_image", order, replaced(stream, "MESH;", "MESH", 3)},
        {"a_glowing_block_is_one_sided", order, replaced(stream, "CULL;0", "CULL;1", 1)},
        {"a_glowing_block_does_not_use_its_coordinates", order, replaced(stream, "MPUV;1", "MPUV;0", 1)},
        {"a_glowing_block_does_not_use_them_on_its_back", order, replaced(stream, "MPU2;1", "MPU2;0")},
    };
}

std::vector<damage> damage_to_order_of_places() {
    const auto order = code::stream_order;
    return {
        {"a_section_plane_has_no_place", order, removed(stream, "CLPP;(1,2,3)")},
        {"a_plant_has_no_name", order, removed(stream, "PLNM;/batches/small/Plants/Oak")},
        {"a_plant_has_no_turn", order, removed(stream, "PLRT;90.000000")},
        {"a_plant_is_not_placed", order, removed(stream, "PLNT;1")},
        {"the_comment_ahead_of_a_plant_is_missing", order, removed(stream, "#;PLANT")},
        {"the_comment_behind_a_plant_is_missing", order, removed(stream, "#")},
        {"an_outside_object_has_two_axes", order, removed(stream, "RPCY;(0,1,0)")},
        {"an_outside_object_has_no_type", order, removed(stream, "RPCN;0")},
        {"an_outside_object_is_not_ended", order, removed(stream, "#", 1)},
        {"an_image_block_is_opened_like_a_face", order, replaced(stream, "MESH", "MESH;")},
        {"the_comment_of_an_image_is_missing", order, removed(stream, "#;NEW MESH for Image")},
        {"an_image_lacks_a_corner", order, removed(stream, "UVQ;(1,1,0)", 1)},
        {"an_image_lacks_a_triangle", order, removed(stream, "FACE;2, 3, 0")},
        {"an_image_is_one_sided", order, replaced(stream, "CULL;0", "CULL;1", 6)},
        {"an_image_does_not_use_its_coordinates", order, replaced(stream, "MPUV;1", "MPUV;0", 3)},
        {"an_image_does_not_use_them_on_its_back", order, replaced(stream, "MPU2;1", "MPU2;0", 2)},
        {"an_image_block_is_closed_with_a_label", order, replaced(stream, "EMSH;", "EMSH; Image", 4)},
        {"a_plant_is_placed_0_times", order, replaced(stream, "PLNT;1", "PLNT;0")},
        {"a_plant_ends_in_another_comment", order, replaced(stream, "#", "#;")},
        {"an_outside_object_ends_in_another_comment", order, replaced(stream, "#", "#;", 1)},
    };
}

std::vector<damage> damage_to_order_at_the_end() {
    const auto order = code::stream_order;
    return {
        {"the_comment_ahead_of_the_edges_is_missing", order, removed(stream, "#;EDGES")},
        {"a_block_of_edges_is_not_opened", order, removed(stream, "MESH;", 6)},
        {"a_beam_lacks_a_triangle", order, removed(stream, "FACE;14,15,12")},
        {"a_face_stands_behind_the_edges", order,
         put_ahead(stream, "END;", "EMSH; Face\r\n#; ProcessFace MESH\r\nMESH;\r\nTLAY;Layer0\r\nCULL;0")},
        {"the_comment_ahead_of_the_end_is_missing", order,
         all_of({removed(stream, "END;"), removed(stream, "#;", 6), appended(stream, "END;\r\n")})},
        {"a_block_of_edges_is_opened_like_an_image", order, replaced(stream, "MESH;", "MESH", 6)},
        {"edges_are_one_sided", order, replaced(stream, "CULL;0", "CULL;1", 7)},
        {"an_edge_of_a_document_is_marked_2", order, replaced(stream, "EDGE;1", "EDGE;2"), true},
        {"an_edge_of_a_document_lies_on_another_layer", order, replaced(stream, "TLAY;Edges", "TLAY;Layer0"), true},
        {"an_edge_of_a_document_is_closed_with_a_label", order, replaced(stream, "EMSH;", "EMSH; Edges", 1), true},
        {"an_edge_of_a_document_has_one_end", order, removed(stream, "EDG2;(10, 0, 0)"), true},
        {"an_edge_of_a_document_is_not_marked", order, removed(stream, "EDGE;1"), true},
    };
}

std::vector<damage> damage_to_numbers() {
    const auto number = code::stream_number;
    const std::string position = "VERT;(2.54,0,1)";
    const auto spelt = [&](const std::string& triple) { return replaced(stream, position, "VERT;" + triple); };
    return {
        {"a_coordinate_has_a_zero_at_its_end", number, spelt("(2.540,0,1)")},
        {"a_coordinate_has_a_point_and_no_decimals", number, spelt("(2.,0,1)")},
        {"a_coordinate_begins_with_its_point", number, spelt("(.54,0,1)")},
        {"a_coordinate_has_a_leading_zero", number, spelt("(02.54,0,1)")},
        {"a_coordinate_has_a_plus_sign", number, spelt("(+2.54,0,1)")},
        {"a_coordinate_is_minus_zero", number, spelt("(-0,0,1)")},
        {"a_coordinate_has_ten_digits", number, spelt("(2.540000001,0,1)")},
        {"a_whole_coordinate_has_ten_digits", number, spelt("(2540000001,0,1)")},
        {"a_coordinate_has_an_exponent_that_it_does_not_need", number, spelt("(2.54e+00,0,1)")},
        {"a_large_coordinate_has_no_sign_in_its_exponent", number, spelt("(2.54e10,0,1)")},
        {"a_coordinate_has_an_exponent_of_one_digit", number, spelt("(2.54e-5,0,1)")},
        {"a_small_coordinate_is_spelt_without_exponent", number, spelt("(0.0000254,0,1)")},
        {"a_coordinate_below_1e_7_is_not_0", number, spelt("(2.54e-08,0,1)")},
        {"a_coordinate_is_beyond_all_numbers", number, spelt("(2.54e+999,0,1)")},
        {"a_coordinate_has_a_decimal_comma", number, spelt("(2,54,0,1)")},
        {"a_coordinate_is_hexadecimal", number, spelt("(0x2,0,1)")},
        {"a_coordinate_is_missing", number, spelt("(2.54,,1)")},
        {"a_position_has_two_coordinates", number, spelt("(2.54,0)")},
        {"a_position_has_four_coordinates", number, spelt("(2.54,0,1,1)")},
        {"a_position_has_blanks", number, spelt("(2.54, 0, 1)")},
        {"a_position_has_no_closing_bracket", number, spelt("(2.54,0,1")},
        {"a_position_has_no_brackets", number, spelt("2.54,0,1")},
        {"a_position_has_something_behind_it", number, spelt("(2.54,0,1) ")},
        {"a_normal_is_text", number, replaced(stream, "NORM;(0,0,1)", "NORM;up")},
        {"a_texture_coordinate_is_spelt_long", number, replaced(stream, "UVQ;(0.5,1.5,1)", "UVQ;(0.50,1.5,1)")},
        {"a_vertex_number_has_a_leading_zero", number, replaced(stream, "ADDV;1", "ADDV;01")},
        {"a_vertex_number_is_text", number, replaced(stream, "ADDV;1", "ADDV;one")},
        {"a_vertex_number_is_missing", number, replaced(stream, "ADDV;1", "ADDV;")},
        {"a_vertex_number_has_decimals", number, replaced(stream, "ADDV;1", "ADDV;1.0")},
        {"a_triangle_has_blanks", number, replaced(stream, "FACE;0,1,2", "FACE;0, 1, 2")},
        {"a_triangle_has_two_corners", number, replaced(stream, "FACE;0,1,2", "FACE;0,1")},
        {"a_triangle_has_four_corners", number, replaced(stream, "FACE;0,1,2", "FACE;0,1,2,0")},
        {"a_corner_is_negative", number, replaced(stream, "FACE;0,1,2", "FACE;-1,1,2")},
        {"a_corner_does_not_fit_32_bits", number, replaced(stream, "FACE;0,1,2", "FACE;0,1,4294967298")},
        {"a_material_number_is_text", number, replaced(stream, "MATL;10", "MATL;ten")},
        {"a_declared_number_is_text", number, replaced(stream, "MATI;10", "MATI;#10")},
        {"a_lamp_number_has_a_sign", number, replaced(stream, "LITE;1", "LITE;+1")},
        {"a_plant_s_diameter_has_no_decimals", number, replaced(stream, "PLDM;1.000000", "PLDM;1")},
        {"a_plant_s_season_has_decimals", number, replaced(stream, "PLSN;1", "PLSN;1.000000")},
        {"a_plant_s_turn_has_five_decimals", number, replaced(stream, "PLRT;90.000000", "PLRT;90.00000")},
        {"a_plant_s_scale_has_an_exponent", number, replaced(stream, "PLSC;0.950000", "PLSC;9.5e-01")},
        {"an_outside_object_has_a_negative_length", number, replaced(stream, "RPSX;1.000000", "RPSX;-1.000000")},
        {"an_outside_object_has_a_length_without_decimals", number, replaced(stream, "RPSZ;1.000000", "RPSZ;1")},
        {"an_orientation_has_decimals", number, replaced(stream, "GCOR;-1", "GCOR;-1.0")},
        {"an_end_of_an_edge_has_no_blanks", number, replaced(stream, "EDG1;(0, 0, 0)", "EDG1;(0,0,0)"), true},
        {"a_layer_list_has_semicolons", number, replaced(stream, "LYRS;0,1", "LYRS;0;1"), true},
        {"a_layer_list_is_empty", number, replaced(stream, "LYRS;0,1", "LYRS;"), true},
        {"a_coordinate_is_infinite", code::stream_not_finite, spelt("(2.54,inf,1)")},
        {"a_coordinate_is_minus_infinite", code::stream_not_finite, spelt("(2.54,-inf,1)")},
        {"a_coordinate_is_no_number", code::stream_not_finite, spelt("(nan,0,1)")},
        {"a_normal_is_no_number", code::stream_not_finite, replaced(stream, "NORM;(0,0,1)", "NORM;(nan,nan,nan)")},
    };
}
