#pragma once

// The attributes of materials by their keys.

#include "tessaline/materials/material_attributes.h"

#include <string_view>

// Sets the value that a key of the dictionary "Vellane_material" stands for. A text that is no number counts as 0, one
// that is neither "true" nor "1" as no. False if the key stands for none; those of an edited file (edited_material.h)
// do not.
bool set_material_value(material_values& values, std::string_view key, const std::string& text);
