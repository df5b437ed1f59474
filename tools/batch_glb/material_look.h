#pragma once

// How a material of a batch looks in a GLB.

#include "tools/batch_reading/material_reader.h"
#include "tools/gltf/glb_writer.h"

#include <optional>
#include <string>
#include <string_view>

// What a material file says of the looks of a surface.
struct material_look {
    read_material basics;
    std::string display_name;
    std::string type;      // "OrnMaterial Type"; empty in most files
    double reflection = 0; // 0 to 1
    double refraction = 1; // index of refraction; 0 is none
    double glow = 0;       // 1 is 100 watts
    double self_glow = 0;
    bool blurry = false;
    bool glossy = false;
};

// text: the bytes of a material file. What is no number, or not finite, counts as not said. Nothing if the first line
// names no material.
std::optional<material_look> read_material_look(std::string_view text);

// The material of a GLB without its picture: what shows through is glass if it breaks the light, else see-through; what
// reflects is polished, and metal unless it is glass; what glows gives off its colour.
// uses: is told the names of extensions that the material needs.
gltf::json material_json(const material_look& look, gltf::glb_writer& uses);
