#pragma once

// What a renderer needs to know of a material beyond its colour, opacity and picture: from suffix words of its name,
// from its attributes, and from what the kind that these suggest implies.

#include "sketchup/SketchUpAPI.h"
#include "tessaline/state/material_values.h"

#include <string>
#include <string_view>

// The values that the last word of a name stands for: "_ref", "_trluc", "_trans" or "_glow" with a number above 0
// behind it, in per cent. The word begins at the last "_"; any other word, and any number not above 0, changes nothing.
void apply_suffix_word(material_values& values, std::string_view working_name);

// Completes the values of a material from its working name, the attribute list of the run, which must hold its
// attributes, and its colour. A material that does not name its type gets what the kind that it seems to be implies.
// Restores an edited file that the attributes carry, under that name in the folder (edited_material.h, whose
// std::invalid_argument passes through). May raise the setting that holds the next free light channel.
// start: what is known before: reflection and metallic of the object, opacity.
material_values evaluate_material(const material_values& start, std::string_view working_name, SUMaterialRef material,
                                  const std::string& folder, const std::string& file_name);
