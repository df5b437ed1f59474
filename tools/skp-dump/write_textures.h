#pragma once

#include "sketchup/SketchUpAPI.h"

#include <string>

// Writes the picture of every material of a model that has one into a folder, which is made if it is missing: as the
// model shows it, under a number and the material's name, in the picture's own format or as PNG.
// Prints a line for each. False if a picture could not be written or the folder not be made.
bool write_textures(SUModelRef model, const std::string& folder);

// The name without anything that could lead out of a folder or that a file system refuses: letters, digits, blanks,
// "-", "_", dots that do not begin it and bytes above 127 stay, everything else becomes "_". At most 100 bytes, cut at
// a whole character.
std::string safe_file_name(const std::string& name);
