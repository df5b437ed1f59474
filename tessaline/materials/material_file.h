#pragma once

// The text file that tells the renderer what one material is.

#include <cstdint>
#include <string>

// What the file says, and what else is known of a material when it is written. Colours are 0x00BBGGRR.
struct cl_material_params {
    std::string material_type;
    std::string base_material;
    std::string xml_file_name;
    double xml_scale_x = 0;
    double xml_scale_y = 0;
    std::string marevo_xml_file;
    double iray_initial_opacity = 1.0;
    std::string display_name;
    std::string file_name; // without the prefix that tells materials of one name apart
    std::string short_name;
    std::string orig_name;
    std::string image_path; // full name of the picture; empty if there is none
    std::string render_image_path;
    std::uint32_t use_entity_color = 0;
    std::uint32_t icon_color = 0xffffff;
    std::uint32_t base_color = 0xffffff;
    std::uint32_t topiary_orientation = 0;
    double tile_x = 0; // factors of the picture's texture coordinates
    double tile_y = 0;
    std::uint32_t image_width = 0;
    bool is_textured = false;
    bool metallic = false;
    float refraction = 0;
    bool thick = false;
    std::int32_t light_channel = 0;
    double glow = 0; // 1 is 100 watts
    std::uint32_t color = 0xffffff;
    double transparency = 0; // 0 to 1
    double reflection = 0;
    double translucency = 0;
    bool auto_bump = false;
    bool blurry = false;
    bool glossy = false;
    double color_strength = 1.0;
    double bump_strength = 5.0;
    bool marbled = false;
    bool rubble = false;
    bool wrinkled = false;
    bool sandpaper = false;
    bool pyramid = false;
    double marble_strength = 0;
    double marble_scale = 0;
    double glow_percent = 0;
    double glow_lumens = 0; // not what the file says: that is derived from `glow`
    double self_glow = 0;
    double sharpness = 1.0;
    std::string filter;
    std::string category;
};

// Writes the 38 lines of the file, in place of an old file of that name.
// matl_line: the name by which the stream refers to the material; ends in ".OrnMaterial". path: full name of the file.
// A file that cannot be opened is left out without a word, and so is one whose path is empty.
void write_material_file(const cl_material_params& params, const std::string& matl_line, const std::string& path);
