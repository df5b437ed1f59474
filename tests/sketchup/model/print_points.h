#pragma once

// Lets messages of failed tests show points as numbers and not as bytes.

#include "sketchup/model/plane_outlines.h"
#include "sketchup/model/values.h"

#include <ostream>

namespace sketchup {

inline void PrintTo(const vec3& p, std::ostream* out) {
    *out << "(" << p.x << ", " << p.y << ", " << p.z << ")";
}

inline void PrintTo(const point2& p, std::ostream* out) {
    *out << "(" << p.x << ", " << p.y << ")";
}

} // namespace sketchup
