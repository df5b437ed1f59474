#pragma once

// How what is known of a new material is put down: for its text file, and for the run.

#include "tessaline/materials/material_attributes.h"
#include "tessaline/materials/material_file.h"
#include "tessaline/materials/texture_export.h"
#include "tessaline/state/material_record.h"

#include <cstdint>
#include <string>

struct new_material {
    std::int32_t material_id = 0;
    std::string working_name;
    std::string base_file_name;
    bool is_textured = false;
    double opacity = 1; // as the model gives it
    exported_texture texture;
    evaluated_material evaluated;
};

// Marbling is left out of what the text file is written from: it goes to the record alone.
cl_material_params params_of(const new_material& material);

// What is 0 or below of glow and reflection is left at its default.
cl_tsl_material record_of(const new_material& material);
