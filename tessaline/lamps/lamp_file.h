#pragma once

// The text file of a lamp, field by field.

#include "tessaline/state/slp_oparms.h"

#include <string>

// What is known of a lamp only when it is placed.
struct placed_lamp {
    fpt location;  // world, metres
    fpt direction; // unit
    int channel = 0;
};

// Writes the file, emptied before. A name that cannot be opened writes nothing and says nothing. Texts go out as they
// are, nothing escaped; numbers that are not set as -1.
void write_lamp_file(const std::string& path, const cl_slp_light& light, const placed_lamp& placed);
