#pragma once

// What files of the program always hold beside a model, and a model in memory has no room for. The values are those of
// a new document in millimetres.

#include "sketchup/model/values.h"

#include <cstdint>
#include <span>
#include <vector>

namespace skp {

// The time of what has none: 2020-01-01, in seconds since 1970. Files of the program have no zero there, and the same
// model is to give the same bytes on every day.
inline constexpr std::uint32_t usual_time = 1577836800;

// A group of the document's settings, each named, as the program's panels show them.
struct option_provider {
    const char* name;
    std::vector<sketchup::attribute> options; // booleans, whole numbers and doubles
};

// Units, pages, slide show and named options, the last of which is empty.
const std::vector<option_provider>& usual_option_providers();

// How edges of a layer are drawn.
struct line_style {
    const char* name;
    const char* pattern; // lengths of strokes and, below zero, gaps
};

// The program's own, the solid one first.
std::span<const line_style> usual_line_styles();

} // namespace skp
