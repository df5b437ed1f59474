#pragma once

// The entries of the archive that belong to display styles: a folder for each.

#include "sketchup/skp/writer/material_files.h"

#include <cstdint>
#include <vector>

namespace skp {

// The folders of the one style that a file has and of its working copy, whose changes are not saved in it yet.
inline constexpr const char* style_folder = "Model style";
inline constexpr const char* working_style_folder = "Model style_1";

// The documents of both: the model's rendering options. format: one of skp/modern/formats.h.
std::vector<archive_entry> style_files(const sketchup::model& m, std::uint16_t format);

} // namespace skp
