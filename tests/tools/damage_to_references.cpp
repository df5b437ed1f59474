// Damage to what must agree within the stream: numbers that lead somewhere, and lines of one block.

#include "tests/tools/damage.h"

namespace {

using batch_check::code;

const std::string stream = "batch_file.txt";

// A batch whose first block of edges has so many, and a second block one more.
change with_edges(int edges) {
    return [edges](files_by_name& files) {
        std::string& text = files[stream];
        const std::string head = "#;MESH for Edges\r\nMESH;\r\nTLAY;Layer0\r\nCULL;0\r\nMATL;1\r\nMAT2;1\r\n";
        const std::size_t start = text.find(head) + head.size();
        const std::size_t middle = text.find("NORM;(1,0,0)\r\nVERT;(0,0,0.5)\r\nADDV;16\r\n", start);
        const std::string first = text.substr(start, middle - start);
        std::string beams;
        for (int beam = 0; beam < edges; ++beam) {
            std::size_t line = 0;
            for (std::size_t at = 0; at < first.size(); at = first.find("\r\n", at) + 2, ++line) {
                const std::string_view one = std::string_view(first).substr(at, first.find("\r\n", at) - at);
                if (one.starts_with("ADDV;")) {
                    beams += "ADDV;" + std::to_string(std::stoi(std::string(one.substr(5))) + 16 * beam) + "\r\n";
                } else if (one.starts_with("FACE;")) {
                    std::string numbers;
                    for (std::string rest(one.substr(5)); !rest.empty();) {
                        const std::size_t comma = rest.find(',');
                        numbers += (numbers.empty() ? "" : ",") + std::to_string(std::stoi(rest) + 16 * beam);
                        rest = comma == std::string::npos ? "" : rest.substr(comma + 1);
                    }
                    beams += "FACE;" + numbers + "\r\n";
                } else {
                    beams.append(one).append("\r\n");
                }
            }
        }
        const std::size_t end = text.find("EMSH; Edges\r\n#;\r\nEND;");
        text.replace(start, end - start, beams + "EMSH; Edges\r\n" + head + first);
        return true;
    };
}

} // namespace

std::vector<damage> damage_to_vertices() {
    return {
        {"a_normal_is_of_length_2", code::stream_direction, replaced(stream, "NORM;(0,0,1)", "NORM;(0,0,2)")},
        {"a_normal_is_a_little_short", code::stream_direction, replaced(stream, "NORM;(0,0,1)", "NORM;(0,0,0.99999)")},
        {"a_section_plane_has_no_direction", code::stream_direction, replaced(stream, "CLPN;(0,0,1)", "CLPN;(0,0,0)")},
        {"a_section_plane_has_a_long_normal", code::stream_direction, replaced(stream, "CLPN;(0,0,1)", "CLPN;(1,0,1)")},
        {"an_axis_of_an_outside_object_is_long", code::stream_direction,
         replaced(stream, "RPCX;(1,0,0)", "RPCX;(2,0,0)")},
        {"the_normal_of_an_edge_of_a_document_is_long", code::stream_direction,
         replaced(stream, "EDGN;(0, 0, 1)", "EDGN;(0, 0, 3)"), true},
        {"vertices_count_from_1", code::stream_vertex_number, replaced(stream, "ADDV;0", "ADDV;1")},
        {"a_vertex_number_is_left_out", code::stream_vertex_number, replaced(stream, "ADDV;2", "ADDV;3")},
        {"a_vertex_number_stands_twice", code::stream_vertex_number, replaced(stream, "ADDV;1", "ADDV;0")},
        {"the_vertices_of_a_glowing_block_start_again", code::stream_vertex_number,
         replaced(stream, "ADDV;3", "ADDV;0")},
        {"the_vertices_of_an_image_are_swapped", code::stream_vertex_number, replaced(stream, "ADDV;6", "ADDV;7")},
        {"a_vertex_number_of_a_beam_is_left_out", code::stream_vertex_number, replaced(stream, "ADDV;20", "ADDV;21")},
        {"a_corner_is_no_vertex_of_the_mesh", code::stream_corner, replaced(stream, "FACE;0,1,2", "FACE;0,1,3")},
        {"a_triangle_names_a_vertex_twice", code::stream_corner, replaced(stream, "FACE;0,1,2", "FACE;0,1,1")},
        {"a_triangle_takes_a_vertex_of_the_face_before", code::stream_corner,
         replaced(stream, "FACE;3,4,5", "FACE;0,4,5")},
        {"a_triangle_of_an_image_has_other_corners", code::stream_corner,
         replaced(stream, "FACE;2, 3, 0", "FACE;2, 3, 1")},
        {"a_triangle_of_a_beam_has_other_corners", code::stream_corner, replaced(stream, "FACE;2,3,0", "FACE;2,3,1")},
        {"a_triangle_of_an_image_has_no_blanks", code::stream_corner, replaced(stream, "FACE;0, 1, 2", "FACE;0,1,2")},
    };
}

std::vector<damage> damage_to_blocks() {
    const std::string back = "EMSH; Face\r\n#; ProcessFace MESH\r\nMESH;\r\nTLAY;Walls\r\nCULL;1\r\nMATL;11\r\n";
    return {
        {"a_face_has_no_vertices", code::stream_empty_mesh,
         [](files_by_name& files) {
             std::string& text = files[stream];
             const std::size_t start = text.find("NORM;");
             text.erase(start, text.find("EMSH;") - start);
             return true;
         }},
        {"a_block_of_edges_is_empty", code::stream_empty_mesh,
         [](files_by_name& files) {
             std::string& text = files[stream];
             const std::size_t start = text.find("NORM;", text.find("#;MESH for Edges"));
             text.erase(start, text.find("EMSH; Edges", start) - start);
             return true;
         }},
        {"the_close_ahead_of_a_face_block_is_missing", code::stream_stray_close, removed(stream, "EMSH; Face")},
        {"a_close_stands_ahead_of_the_first_face_block", code::stream_stray_close,
         put_ahead(stream, "#; ProcessFace MESH", "EMSH; Face")},
        {"the_close_ahead_of_a_face_lamp_is_missing", code::stream_stray_close,
         removed(stream, "EMSH; Close for new Face Lamp MESH")},
        {"the_close_ahead_of_the_edges_is_missing", code::stream_stray_close, removed(stream, "EMSH; Edges")},
        {"the_close_behind_the_edges_is_missing", code::stream_stray_close, removed(stream, "EMSH; Edges", 1)},
        {"a_face_lacks_its_other_side", code::stream_two_sides,
         [back](files_by_name& files) {
             std::string& text = files[stream];
             const std::size_t start = text.find(back);
             text.erase(start, text.find("EMSH;\r\n", start + back.size()) + 7 - start);
             return true;
         }},
        {"the_other_side_of_a_face_stands_for_both", code::stream_two_sides,
         all_of({replaced(stream, "CULL;1", "CULL;0", 1), put_ahead(stream, "MPUV;1", "MPUV;1"),
                 replaced(stream, "MATL;11", "MPUV;1"), replaced(stream, "MPUV;1", "MATL;11", 1),
                 replaced(stream, "MPUV;1", "MPU2;1\r\nMAT2;11", 1)})},
        {"the_sides_of_a_face_have_other_vertices", code::stream_two_sides,
         put_ahead(stream, "FACE;0,1,2", "NORM;(0,0,1)\r\nVERT;(1,1,1)\r\nADDV;3", 1)},
        {"a_textured_vertex_has_no_coordinates", code::stream_texture_coordinates,
         removed(stream, "UVQ;(0.5,1.5,1)", 1)},
        {"a_vertex_without_texture_has_coordinates", code::stream_texture_coordinates,
         put_ahead(stream, "VERT;(2.54,0,1)", "UVQ;(0,0,1)")},
        {"a_third_texture_coordinate_is_0", code::stream_texture_coordinates,
         replaced(stream, "UVQ;(0.5,1.5,1)", "UVQ;(0.5,1.5,0)")},
        {"a_corner_of_an_image_has_another_coordinate", code::stream_texture_coordinates,
         replaced(stream, "UVQ;(1,0,0)", "UVQ;(0.5,0,0)")},
        {"a_corner_of_an_image_has_the_coordinate_of_a_face", code::stream_texture_coordinates,
         replaced(stream, "UVQ;(0,0,0)", "UVQ;(0,0,1)")},
    };
}

std::vector<damage> damage_to_references() {
    return {
        {"a_front_has_a_material_that_is_not_declared", code::stream_material_number,
         all_of({replaced(stream, "MATL;10", "MATL;99"), replaced(stream, "MAT2;10", "MAT2;99")})},
        {"a_front_has_the_material_of_edges", code::stream_material_number,
         all_of({replaced(stream, "MATL;10", "MATL;1"), replaced(stream, "MAT2;10", "MAT2;1")})},
        {"a_front_has_a_number_that_is_never_given", code::stream_material_number,
         all_of({replaced(stream, "MATL;10", "MATL;5"), replaced(stream, "MAT2;10", "MAT2;5")})},
        {"a_front_has_a_negative_number", code::stream_material_number,
         all_of({replaced(stream, "MATL;10", "MATL;-1"), replaced(stream, "MAT2;10", "MAT2;-1")})},
        {"a_back_has_another_material_than_the_front", code::stream_material_number,
         replaced(stream, "MAT2;10", "MAT2;0")},
        {"a_material_is_used_ahead_of_its_declaration", code::stream_material_number,
         all_of({replaced(stream, "MATL;10", "MATL;11"), replaced(stream, "MAT2;10", "MAT2;11")})},
        {"what_glows_has_no_material", code::stream_material_number,
         all_of({replaced(stream, "MATL;12", "MATL;0"), replaced(stream, "MAT2;12", "MAT2;0")})},
        {"the_back_of_an_image_is_not_10", code::stream_material_number, replaced(stream, "MAT2;10", "MAT2;13", 2)},
        {"the_fronts_of_edges_have_another_material", code::stream_material_number,
         replaced(stream, "MATL;1", "MATL;0")},
        {"the_backs_of_edges_have_another_material", code::stream_material_number,
         replaced(stream, "MAT2;1", "MAT2;0")},
        {"a_declared_number_is_left_out", code::stream_declaration, replaced(stream, "MATI;11", "MATI;12")},
        {"a_declared_number_stands_twice", code::stream_declaration, replaced(stream, "MATI;11", "MATI;10")},
        {"declared_numbers_begin_at_0", code::stream_declaration, replaced(stream, "MATI;10", "MATI;0")},
        {"a_name_is_declared_twice", code::stream_declaration,
         replaced(stream, "MATF;TEX%3a0001_Brick.OrnMaterial", "MATF;COL%3a0012_Wall.OrnMaterial")},
        {"a_declaration_is_missing", code::stream_declaration,
         all_of({removed(stream, "MATF;COL%3a0012_Wall.OrnMaterial"), removed(stream, "MTX2;1"),
                 removed(stream, "MATI;10")})},
        {"lamps_count_from_1", code::stream_lamp_number, replaced(stream, "LITE;0", "LITE;1")},
        {"a_lamp_number_stands_twice", code::stream_lamp_number, replaced(stream, "LITE;1", "LITE;0")},
        {"a_direct_light_has_a_number_of_its_own_count", code::stream_lamp_number,
         replaced(stream, "LGHT;2", "LGHT;0")},
        {"layers_count_from_1", code::stream_layer_number, replaced(stream, "LYIN;0", "LYIN;1"), true},
        {"a_layer_list_names_a_layer_that_is_not_there", code::stream_layer_number,
         replaced(stream, "LYRS;0,1", "LYRS;0,2"), true},
        {"a_layer_list_has_a_negative_number", code::stream_layer_number, replaced(stream, "LYRS;0,1", "LYRS;-1,1"),
         true},
    };
}

std::vector<damage> damage_to_edges() {
    return {
        {"a_block_of_edges_is_not_full", code::stream_edges, with_edges(998)},
        {"a_block_of_edges_is_overfull", code::stream_edges, with_edges(1000)},
        {"edges_lie_on_another_layer", code::stream_edges, replaced(stream, "TLAY;Layer0", "TLAY;Walls", 5)},
        {"a_corner_of_a_beam_has_another_normal", code::stream_edges, replaced(stream, "NORM;(1,0,0)", "NORM;(0,1,0)")},
        {"the_sides_of_a_beam_are_not_square", code::stream_edges,
         replaced_everywhere(stream, "NORM;(0,1,0)", "NORM;(0.6,0.8,0)")},
    };
}
