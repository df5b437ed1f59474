#pragma once

// The entries of the archive that tell about the file: a summary and two previews.

#include "sketchup/skp/writer/material_files.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace skp {

// What a file says of its writer.
struct modern_stamp {
    std::string_view version; // without its braces
    std::uint16_t major;
    std::uint16_t minor; // as the summary counts
    std::uint16_t format;
};

inline constexpr std::uint16_t lowest_reader = 1; // nothing that is written would be misread by older programs

inline constexpr const char* summary_entry = "meta/meta.dat";

// In the order of the archive. The previews show the background alone: nothing here can draw.
std::vector<archive_entry> summary_files(const sketchup::model& m, const modern_stamp& s);

} // namespace skp
