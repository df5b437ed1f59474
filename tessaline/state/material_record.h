#pragma once

// What the run knows of one distinct material. A record is complete when it is added and never changes afterwards.

#include <cstdint>
#include <string>

struct cl_tsl_material {
    std::int32_t material_id = 0; // SketchUp's entity id; -1 for the material of an image entity
    std::string name;             // working name; for an image its file name
    std::string material_type;
    std::string base_material;
    std::string xml_file_name;
    double xml_scale_x = 1.0;
    double xml_scale_y = 1.0;
    double xml_initial_opacity = 1.0;
    std::string marevo_xml_file;
    std::string image_path;  // full name of the exported picture; empty if there is none
    std::string edited_file; // full name of the restored edited copy; empty if there is none
    bool has_glow = false;
    double glow = 0;
    std::uint32_t color = 0xffffff; // 0x00BBGGRR
    double opacity = 1.0;           // 0 to 1, as the model gives it
    double refraction = 0;
    double translucency = 0;
    double reflection = 0;
    double sharpness = 1.0;
    double tile_x = 1.0; // factors of texture coordinates that were inherited; 0 if the texture was not looked at
    double tile_y = 1.0;
    bool metallic = false;
    bool marbled = false;
    double marble_strength = 0;
    double marble_scale = 0;
    bool rubble = false;
    bool wrinkled = false;
    bool sandpaper = false;
    bool pyramid = false;
};
