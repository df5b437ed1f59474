#pragma once

// Whether a picture can be decoded, and has the format of its name.

#include "tools/batch_check/batch_files.h"
#include "tools/batch_check/findings.h"

#include <cstdint>
#include <optional>
#include <string>

namespace batch_check {

struct picture_facts {
    std::uint64_t bytes = 0;
    std::string content; // equal for files of the same bytes; empty if they were not read
};

// file: as "Batch_SketchUp_Textures/TX0001_Wall.png". Nothing if the file cannot be read. A picture is decoded whole in
// memory up to image::most_pixels; above that PNG and JPEG row by row up to image::most_pixels_by_rows, where the rows
// come one by one; of all others nothing but the header is looked at. A file of more than 512 MiB is not opened.
std::optional<picture_facts> check_picture(const batch_files& files, const std::string& file, findings& found);

} // namespace batch_check
