#pragma once

// What is known of a material beyond its names and its picture: the text file tells it, and the run keeps it.

#include <cstdint>
#include <string>

// Colours are 0x00BBGGRR; what has no unit runs from 0 to 1.
struct material_values {
    double reflection = 0;
    bool metallic = false;
    double sharpness = 0;
    double refraction = 1.0;
    double opacity = 1.0;
    double translucency = 0;
    double glow = 0; // 1 is 100 watts
    double glow_lumens = 0;
    double self_glow = 0;
    bool blurry = false;
    bool glossy = false;
    bool auto_bump = false;
    bool thick = false;
    std::int32_t light_channel = 0;
    bool marbled = false;
    bool rubble = false;
    bool wrinkled = false;
    bool sandpaper = false;
    bool pyramid = false;
    double marble_strength = 0;
    double marble_scale = 0;
    double bump_color_strength = 0;
    double bump_intensity = 0;
    double xml_initial_opacity = 1.0;
    double xml_scale_x = 1.0;
    double xml_scale_y = 1.0;
    std::int32_t type_number = 0; // not 0: the material names its type, and no kind is guessed
    std::string material_type{};
    std::string base_material{};
    std::string xml_file_name{};
    std::string marevo_xml_file{};
    std::string sorn_library{};
    std::string sorn_material_name{};
    std::string
        edited_file{}; // full name of the restored file of a material that names its type; empty if there is none
    std::uint32_t color = 0xffffff; // worked out in the end, as is transparency
    double transparency = 0;
};
