#pragma once

// What a material is called, and under which names its files go.

#include "sketchup/SketchUpAPI.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

// The name of a material: its first 512 UTF-16 units, with what is escaped in it unescaped. Empty if it has none.
std::string get_material_name(SUMaterialRef material);

// The name with every "*" replaced by "Material": older models call a material "*1".
std::string working_name_of(std::string_view name);

// What tells materials of one name apart.
struct material_key {
    std::string_view working_name;
    std::int32_t material_id = 0;
    std::int32_t texture_id = -1; // -1: none
    bool is_face = true;          // a face asks
    bool is_textured = false;
    bool is_scattered = false; // within scattered components, whose textures have no ids
    bool by_layer = false;     // colours go by layer
    // Per cent, of the object; sets materials apart if colours go by layer.
    std::optional<std::int32_t> layer_reflection{};
};

struct material_file_names {
    std::string encoded_name; // the working name as it may stand in a file name
    std::string base;         // without prefix and number
    std::string file;         // "TEX%3a0007_Brick.OrnMaterial": how the stream refers to the material
    std::string object_file;  // the same with ".qlobj"
    std::int32_t number = 0;  // of the texture, or of the material if that decides
};

material_file_names file_names_of(const material_key& key);

// The name of the text file that belongs to a material file: every ".OrnMaterial" in it becomes ".qlobj".
std::string object_file_name(std::string material_file_name);
