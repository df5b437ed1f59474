#pragma once

// The text file that tells the renderer what one material is.

#include "tessaline/state/material_values.h"

#include <cstdint>
#include <string>

// What the file says. What is not evaluated of a material has a line all the same, since the consumer expects it.
struct cl_material_params {
    std::string display_name{};
    std::string orig_name{};
    std::string image_path{}; // full name of the picture; empty if there is none
    double tile_x = 0;        // factors of the picture's texture coordinates
    double tile_y = 0;
    material_values values{.refraction = 0, .bump_color_strength = 1.0, .bump_intensity = 5.0};
    // Nothing fills these. Marbling that the model asks for goes to the record of the run alone.
    double marble_strength = 0;
    double marble_scale = 0;
    std::uint32_t use_entity_color = 0;
    std::uint32_t icon_color = 0xffffff; // 0x00BBGGRR
    std::uint32_t topiary_orientation = 0;
    std::uint32_t image_width = 0;
    std::string filter{};
    std::string category{};
};

// Writes the 38 lines of the file, in place of an old file of that name.
// matl_line: the name by which the stream refers to the material; ends in ".OrnMaterial". path: full name of the file.
// A file that cannot be opened is left out without a word, and so is one whose path is empty.
void write_material_file(const cl_material_params& params, const std::string& matl_line, const std::string& path);
