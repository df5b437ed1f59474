// Damage to the files that a stream refers to, and to the folders in which they lie.

#include "tests/tools/damage.h"

namespace {

using batch_check::code;

const std::string stream = "batch_file.txt";
const std::string wall = "ZynBatch_Materials/COL%3a0012_Wall.qlobj";
const std::string brick = "ZynBatch_Materials/TEX%3a0001_Brick.qlobj";
const std::string brick_picture = "Batch_SketchUp_Textures/TX0001_Brick.PNG";
const std::string brick_line = "Image_Path: /batches/small/Batch_SketchUp_Textures/TX0001_Brick.PNG";
const std::string lamp = "ZynBatch_Lights/light_0.txt";
const std::string bulb = "ZynBatch_Lights/light_2.txt";
const std::string options = "option_globals.txt";

} // namespace

std::vector<damage> damage_to_materials() {
    const auto line = code::material_line;
    return {
        {"a_material_file_is_missing", code::material_missing, removed_file(wall)},
        {"a_material_file_has_another_extension", code::material_missing,
         renamed_file(wall, "ZynBatch_Materials/COL%3a0012_Wall.txt")},
        {"a_material_file_has_the_name_of_another", code::material_name,
         replaced(wall, "Matl: COL%3a0012_Wall.OrnMaterial", "Matl: COL%3a0013_Wall.OrnMaterial")},
        {"a_material_file_has_a_bare_line_feed", code::material_line_end, with_bare_line_feed(wall, "Trans: 0.25")},
        {"a_material_file_is_empty", line, overwritten(wall, "")},
        {"a_material_file_is_cut_off", line, cut_behind(wall, "Glossy: 1")},
        {"a_material_file_lacks_its_last_line", line, removed(wall, "#", 3)},
        {"a_material_file_has_a_line_too_many", line, appended(wall, "#\r\n")},
        {"a_material_file_lacks_its_first_line", line, removed(wall, "Matl: COL%3a0012_Wall.OrnMaterial")},
        {"a_material_file_lacks_its_colour", line, removed(wall, "Color: 3302600")},
        {"a_material_file_has_two_colours", line, doubled(wall, "Color: 3302600")},
        {"a_material_file_has_lines_swapped", line, swapped_with_next(wall, "Trans: 0.25")},
        {"a_key_of_a_material_file_is_in_lower_case", line, replaced(wall, "Trans: 0.25", "trans: 0.25")},
        {"a_key_of_a_material_file_has_no_blank", line, replaced(wall, "Trans: 0.25", "Trans:0.25")},
        {"a_comment_of_a_material_file_is_another", line, replaced(wall, "#", "# glow")},
        {"a_value_that_never_changes_is_another", line, replaced(wall, "Use_Entity_Color: 0", "Use_Entity_Color: 1")},
        {"an_icon_has_a_colour_of_its_own", line, replaced(wall, "IconColor: 16777215", "IconColor: 0")},
        {"a_filter_is_set", line, replaced(wall, "Filter: ", "Filter: metal")},
        {"a_material_file_is_binary", line, overwritten(wall, std::string("\x00\x01\x02\xff", 4))},
        {"a_material_is_on_no_side", code::material_unused,
         all_of({replaced(stream, "MATL;12", "MATL;11"), replaced(stream, "MAT2;12", "MAT2;11")})},
        {"two_materials_say_the_same", code::material_equal,
         replaced("ZynBatch_Materials/COL%3a0014_Panel.qlobj", "TileX: 0.5", "TileX: 0.0254")},
    };
}

std::vector<damage> damage_to_material_values() {
    const auto number = code::material_number;
    const auto range = code::material_range;
    return {
        {"a_colour_is_hexadecimal", number, replaced(wall, "Color: 3302600", "Color: #3264c8")},
        {"a_colour_has_decimals", number, replaced(wall, "Color: 3302600", "Color: 3302600.0")},
        {"a_transparency_is_spelt_long", number, replaced(wall, "Trans: 0.25", "Trans: 0.250")},
        {"a_transparency_has_a_decimal_comma", number, replaced(wall, "Trans: 0.25", "Trans: 0,25")},
        {"a_transparency_is_missing", number, replaced(wall, "Trans: 0.25", "Trans: ")},
        {"a_tile_is_spelt_without_exponent", number, replaced(wall, "TileY: 1e-05", "TileY: 0.00001")},
        {"a_flag_is_a_word", number, replaced(wall, "Glossy: 1", "Glossy: true")},
        {"a_transparency_is_above_1", range, replaced(wall, "Trans: 0.25", "Trans: 25")},
        {"a_reflection_is_negative", range, replaced(wall, "Refl: 0", "Refl: -1")},
        {"a_refraction_is_no_number", range, replaced(wall, "Refr: 1.5", "Refr: nan")},
        {"a_colour_is_beyond_white", range,
         all_of({replaced(wall, "Color: 3302600", "Color: 16777216"),
                 replaced(wall, "#;Color: RGB(200,100,50)", "#;Color: RGB(0,0,0)")})},
        {"a_flag_is_2", range, replaced(wall, "Glossy: 1", "Glossy: 2")},
        {"a_glow_is_negative", range,
         all_of(
             {replaced(wall, "Glow: 0.25", "Glow: -0.25"), replaced(wall, "Glow_Lumens: 425", "Glow_Lumens: -425")})},
        {"a_colour_in_words_is_another", code::material_disagrees,
         replaced(wall, "#;Color: RGB(200,100,50)", "#;Color: RGB(50,100,200)")},
        {"a_colour_in_words_is_spelt_with_blanks", code::material_disagrees,
         replaced(wall, "#;Color: RGB(200,100,50)", "#;Color: RGB(200, 100, 50)")},
        {"lumens_are_not_1700_times_the_glow", code::material_disagrees,
         replaced(wall, "Glow_Lumens: 425", "Glow_Lumens: 426")},
        {"the_two_names_of_a_material_differ", code::material_disagrees, replaced(wall, "Orig: Wall", "Orig: Door")},
    };
}

std::vector<damage> damage_to_pictures() {
    return {
        {"a_textured_material_names_no_picture", code::material_without_picture,
         all_of({replaced(brick, brick_line, "Image_Path: "), removed_file(brick_picture)})},
        {"a_picture_is_missing", code::picture_missing, removed_file(brick_picture)},
        {"a_picture_has_another_name", code::picture_missing,
         renamed_file(brick_picture, "Batch_SketchUp_Textures/TX0001_brick.png")},
        {"a_picture_lies_in_another_folder", code::picture_missing,
         replaced(brick, brick_line, "Image_Path: /batches/small/Pictures/TX0001_Brick.PNG")},
        {"a_picture_is_named_without_folder", code::picture_missing,
         replaced(brick, brick_line, "Image_Path: TX0001_Brick.PNG")},
        {"a_picture_is_empty", code::picture_damaged, overwritten(brick_picture, "")},
        {"a_picture_is_cut_off", code::picture_damaged, cut_to(brick_picture, 60)},
        {"a_picture_has_a_flipped_byte", code::picture_damaged, with_flipped_byte(brick_picture, 45)},
        {"a_picture_is_text", code::picture_damaged, overwritten(brick_picture, "404 Not Found\r\n")},
        {"a_picture_is_of_another_format", code::picture_format,
         all_of({renamed_file(brick_picture, "Batch_SketchUp_Textures/TX0001_Brick.JPG"),
                 replaced(brick, brick_line, "Image_Path: /batches/small/Batch_SketchUp_Textures/TX0001_Brick.JPG")})},
        // The header of a BMP of 10,000 by 10,000 pixels of 24 bits, and no pixels.
        {"a_picture_is_too_large_for_memory", code::picture_large,
         all_of(
             {removed_file(brick_picture),
              added_file("Batch_SketchUp_Textures/TX0001_Brick.BMP",
                         std::string("BM\0\0\0\0\0\0\0\0\x36\0\0\0\x28\0\0\0\x10\x27\0\0\x10\x27\0\0\x01\0\x18\0", 30) +
                             std::string(24, '\0')),
              replaced(brick, brick_line, "Image_Path: /batches/small/Batch_SketchUp_Textures/TX0001_Brick.BMP")})},
        // A PNG that announces 10,000 by 10,000 pixels and holds 100 bytes of them.
        {"a_picture_too_large_for_memory_is_cut_off", code::picture_damaged,
         overwritten(brick_picture,
                     std::string("\x89\x50\x4e\x47\x0d\x0a\x1a\x0a\x00\x00\x00\x0d\x49\x48\x44\x52\x00\x00\x27\x10"
                                 "\x00\x00\x27\x10\x08\x02\x00\x00\x00\x35\x2c\xf5\x70\x00\x00\x00\x08\x49\x44\x41"
                                 "\x54\x78\x9c\x63\x60\xa0\x3d\x00\x00\xcf\x1f\xae\x95",
                                 53))},
        // The same with 20,000 by 20,000 pixels, of which not even the first is looked at.
        {"a_picture_is_too_large_to_be_decoded_row_by_row", code::picture_large,
         overwritten(brick_picture,
                     std::string("\x89\x50\x4e\x47\x0d\x0a\x1a\x0a\x00\x00\x00\x0d\x49\x48\x44\x52\x00\x00\x4e\x20"
                                 "\x00\x00\x4e\x20\x08\x02\x00\x00\x00\x6c\x12\xd1\x6e\x00\x00\x00\x08\x49\x44\x41"
                                 "\x54\x78\x9c\x63\x60\xa0\x3d\x00\x00\xcf\x1f\xae\x95",
                                 53))},
        {"two_pictures_have_the_same_bytes", code::picture_equal,
         [](files_by_name& files) {
             files[brick_picture] = files["ZynBatch_Images/Tree_88.png"];
             return true;
         }},
        {"a_picture_s_name_leads_to_another_batch", code::other_folder,
         replaced(brick, brick_line, "Image_Path: /batches/old/Batch_SketchUp_Textures/TX0001_Brick.PNG")},
    };
}

std::vector<damage> damage_to_lamps() {
    const auto line = code::lamp_line;
    const auto number = code::lamp_number;
    const auto range = code::lamp_range;
    return {
        {"a_lamp_file_is_missing", code::lamp_missing, removed_file(lamp)},
        {"a_lamp_file_has_another_number", code::lamp_missing, renamed_file(bulb, "ZynBatch_Lights/light_02.txt")},
        {"a_lamp_file_has_a_bare_line_feed", code::lamp_line_end, with_bare_line_feed(lamp, "hide;0")},
        {"a_lamp_file_is_empty", line, overwritten(lamp, "")},
        {"a_lamp_file_is_cut_off", line, cut_behind(lamp, "size;-1.000000")},
        {"a_lamp_file_lacks_a_line", line, removed(lamp, "hide;0")},
        {"a_lamp_file_has_a_line_twice", line, doubled(lamp, "hide;0")},
        {"a_lamp_file_has_lines_swapped", line, swapped_with_next(lamp, "beam_angle;30.000000")},
        {"a_lamp_file_has_a_line_too_many", line, appended(lamp, "ies_pattern;-1\r\n")},
        {"a_lamp_file_has_blanks_behind_semicolons", line, replaced(lamp, "unit;Watts", "unit; Watts")},
        {"a_lamp_has_another_unit", line, replaced(lamp, "unit;Watts", "unit;Lumens")},
        {"a_lamp_has_another_x_axis", line,
         replaced(lamp, "xaxis;(1.000000,0.000000,0.000000)", "xaxis;(0.000000,1.000000,0.000000)")},
        {"a_location_has_nine_digits", number,
         replaced(bulb, "location;(2.286000,1.752600,1.676400)", "location;(2.286,1.7526,1.6764)")},
        {"a_location_has_two_numbers", number,
         replaced(bulb, "location;(2.286000,1.752600,1.676400)", "location;(2.286000,1.752600)")},
        {"an_intensity_has_no_decimals", number, replaced(lamp, "intensity;75.000000", "intensity;75")},
        {"an_intensity_is_infinite", number, replaced(lamp, "intensity;75.000000", "intensity;inf")},
        {"an_intensity_is_missing", number, replaced(lamp, "intensity;75.000000", "intensity;")},
        {"an_angle_has_an_exponent", number, replaced(lamp, "beam_angle;30.000000", "beam_angle;3e+01")},
        {"a_lamp_s_colour_is_decimal", number, replaced(lamp, "color;#fff1d6", "color;16773590")},
        {"a_lamp_s_colour_is_in_capitals", number, replaced(lamp, "color;#fff1d6", "color;#FFF1D6")},
        {"a_lamp_s_colour_has_five_digits", number, replaced(lamp, "color;#fff1d6", "color;#fff1d")},
        {"a_channel_has_decimals", number, replaced(lamp, "channel;2", "channel;2.0")},
        {"a_pattern_is_missing", number, replaced(lamp, "ies_pattern;-1", "ies_pattern;")},
        {"a_lamp_is_hidden_twice", range, replaced(lamp, "hide;0", "hide;2")},
        {"a_direction_is_long", range,
         replaced(lamp, "direction;(0.000000,0.000000,-1.000000)", "direction;(0.000000,0.000000,-2.000000)")},
        {"a_beam_is_wider_than_its_field", range, replaced(lamp, "beam_angle;30.000000", "beam_angle;70.000000")},
        {"a_lamp_that_glows_has_a_location", code::lamp_place,
         replaced(lamp, "location;(0.000000,0.000000,0.000000)", "location;(1.000000,0.000000,0.000000)")},
        {"a_direct_light_glows", code::lamp_place,
         all_of({replaced(bulb, "type;bulb", "type;rect_glow"),
                 replaced(bulb, "location;(2.286000,1.752600,1.676400)", "location;(0.000000,0.000000,0.000000)")})},
        {"a_lamp_gives_no_light", code::lamp_no_power,
         all_of({replaced(lamp, "intensity;75.000000", "intensity;-1.000000"),
                 replaced(lamp, "intensity_lumens;1275.000000", "intensity_lumens;-1.000000")})},
    };
}

std::vector<damage> damage_to_options() {
    const auto line = code::option_line;
    const auto value = code::option_value;
    return {
        {"the_option_file_has_a_bare_line_feed", code::option_line_end, with_bare_line_feed(options, "ivl_resy; 600")},
        {"the_option_file_has_more_than_a_million_lines", line, overwritten(options, std::string(1000001, '\n'))},
        {"the_option_file_has_a_comment", line, put_ahead(options, "ivl_resy; 600", "# height")},
        {"the_option_file_has_an_empty_line", line, put_ahead(options, "ivl_resy; 600", "")},
        {"an_option_has_no_blank", line, replaced(options, "ivl_resy; 600", "ivl_resy;600")},
        {"an_option_has_no_name", line, replaced(options, "ivl_resy; 600", "; 600")},
        {"an_option_has_no_type", line, replaced(options, "ivl_resy; 600", "xvl_resy; 600")},
        {"a_truth_is_a_word", value, replaced(options, "bvl_show_bulbs; 0", "bvl_show_bulbs; false")},
        {"a_whole_number_has_decimals", value, replaced(options, "ivl_resy; 600", "ivl_resy; 600.0")},
        {"a_whole_number_does_not_fit_32_bits", value, replaced(options, "ivl_resy; 600", "ivl_resy; 6000000000")},
        {"a_real_number_is_spelt_long", value,
         replaced(options, "rvl_edge_line_width; 1.5", "rvl_edge_line_width; 1.50")},
        {"a_colour_of_an_option_is_hexadecimal", value,
         replaced(options, "cvl_layer_color; 255", "cvl_layer_color; #ff0000")},
        {"a_point_has_no_brackets", value, replaced(options, "pcomm_origin; (1, 2.5, -3)", "pcomm_origin; 1, 2.5, -3")},
        {"a_point_has_two_numbers", value, replaced(options, "pcomm_origin; (1, 2.5, -3)", "pcomm_origin; (1, 2.5)")},
        {"a_text_has_a_single_backslash", value,
         replaced(options, "scomm_note; C:\\\\rooms; attic", "scomm_note; C:\\rooms; attic")},
        {"a_text_ends_in_a_backslash", value,
         replaced(options, "scomm_note; C:\\\\rooms; attic", "scomm_note; C:\\\\\\")},
        {"an_option_stands_twice", code::option_order, doubled(options, "ivl_resy; 600")},
        {"options_are_not_sorted", code::option_order, swapped_with_next(options, "ivl_resy; 600")},
    };
}

std::vector<damage> damage_to_folders() {
    return {
        {"the_stream_is_missing", code::not_a_batch, removed_file(stream)},
        {"the_stream_has_another_name", code::not_a_batch, renamed_file(stream, "stream.txt")},
        {"the_mark_of_a_run_lies_there", code::batch_unfinished, added_file("tessaline-run.json.part", "")},
        {"a_material_file_is_left_over", code::orphan, added_file("ZynBatch_Materials/COL%3a0099_Old.qlobj", "")},
        {"a_picture_is_left_over", code::orphan, added_file("Batch_SketchUp_Textures/TX0099_Old.png", "")},
        {"a_lamp_is_left_over", code::orphan, added_file("ZynBatch_Lights/light_3.txt", "")},
        {"a_file_lies_where_none_is_made", code::orphan, added_file("Batch_OrnTexture_Files/Old.png", "")},
        {"an_edited_material_is_left_over", code::orphan,
         added_file("ZynBatch_Materials/COL%3a0099_Old.OrnMaterial", "")},
        {"a_text_lies_among_the_materials", code::extra_file, added_file("ZynBatch_Materials/notes.txt", "")},
        {"a_plant_is_left_over", code::extra_file, added_file("Plants/Beech", "")},
        {"a_file_of_somebody_lies_there", code::extra_file, added_file("notes.txt", "")},
        {"a_plant_s_file_is_missing", code::plant_missing, removed_file("Plants/Oak")},
        {"a_plant_s_file_is_named_elsewhere", code::plant_missing,
         replaced(stream, "PLNM;/batches/small/Plants/Oak", "PLNM;/batches/small/Trees/Oak")},
        {"a_ground_cover_s_file_is_missing", code::ground_cover_missing, removed_file("Plants/Meadow.cover")},
        {"a_ground_cover_is_named_elsewhere", code::ground_cover_elsewhere,
         replaced(stream, "GNDC;/batches/small/Plants/Meadow.cover", "GNDC;Meadow.cover")},
    };
}
