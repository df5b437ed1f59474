#pragma once

// Whether a material file holds its 38 lines, each in its form.

#include "tools/batch_check/batch_files.h"
#include "tools/batch_check/findings.h"

#include <cstdint>
#include <optional>
#include <string>

namespace batch_check {

struct material_facts {
    std::string image_path;     // empty if it names no picture
    std::size_t image_line = 0; // that names it
    std::string content;        // equal for files that say the same but for the names
};

// file: as "ZynBatch_Materials/Wall.qlobj". declared_name: by which the stream knows the material. Nothing if the file
// cannot be read; the caller knows whether it should be there.
std::optional<material_facts> check_material(const batch_files& files, const std::string& file,
                                             const std::string& declared_name, findings& found);

} // namespace batch_check
