#pragma once

// What a renderer needs to know of a material beyond its colour, opacity and picture: from suffix words of its name,
// from its attributes, and from what the kind that these suggest implies.

#include "sketchup/SketchUpAPI.h"

#include <cstdint>
#include <string>
#include <string_view>

// The working set. Colours are 0x00BBGGRR; what has no unit runs from 0 to 1.
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
    std::string material_type;
    std::string base_material;
    std::string xml_file_name;
    std::string marevo_xml_file;
    std::string sorn_library;
    std::string sorn_material_name;
    std::uint32_t color = 0xffffff; // worked out in the end, as is transparency
    double transparency = 0;
};

// The values that the last word of a name stands for: "_ref", "_trluc", "_trans" or "_glow" with a number above 0
// behind it, in per cent. The word begins at the last "_"; any other word, and any number not above 0, changes nothing.
void apply_suffix_word(material_values& values, std::string_view working_name);

struct evaluated_material {
    material_values values;
    std::string edited_file; // full name of the restored file of a material that names its type; empty if there is none
};

// Completes the values of a material from its working name, the attribute list of the run, which must hold its
// attributes, and its colour. A material that does not name its type gets what the kind that it seems to be implies.
// Restores an edited file that the attributes carry, under that name in the folder (edited_material.h, whose
// std::invalid_argument passes through). May raise the setting that holds the next free light channel.
// start: what is known before: reflection and metallic of the object, opacity.
evaluated_material evaluate_material(const material_values& start, std::string_view working_name,
                                     SUMaterialRef material, const std::string& folder, const std::string& file_name);
