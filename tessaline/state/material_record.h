#pragma once

// What the run knows of one distinct material. A record is complete when it is added and never changes afterwards.

#include "tessaline/state/material_values.h"

#include <cstdint>
#include <string>

struct cl_tsl_material {
    std::int32_t material_id = 0; // SketchUp's entity id; -1 for the material of an image entity
    std::string name{};           // working name; for an image its file name
    std::string image_path{};     // full name of the exported picture; empty if there is none
    double tile_x = 1.0; // factors of texture coordinates that were inherited; 0 if the texture was not looked at
    double tile_y = 1.0;
    bool has_glow = false;
    material_values values{}; // glow and reflection 0 if they are below; opacity as the model gives it
};
