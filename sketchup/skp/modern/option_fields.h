#pragma once

// The fields of the archive container's record of rendering options.

#include "sketchup/model/values.h"

#include <cstdint>
#include <span>

namespace skp::modern {

struct option_field {
    std::uint16_t tag;
    const char* name; // of the C interface; none for a field that it does not show
    sketchup::value_code type;
    double usual = 0;               // of a field without a name
    std::uint16_t first_format = 0; // the layouts of files that have the field
    std::uint16_t last_format = 0xFFFF;
};

// "DisplaySectionPlanes" and "DisplaySectionCuts" in one number.
inline constexpr std::uint16_t section_display_tag = 29557;
inline constexpr std::int32_t section_planes_bit = 1;
inline constexpr std::int32_t section_cuts_bit = 2;

// In the order of the file, the number of the section display among them without a name.
std::span<const option_field> option_fields();

} // namespace skp::modern
