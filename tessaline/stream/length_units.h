#pragma once

// The model measures in inches, the stream in metres.

#include "qlw/qlw_math.h"

inline constexpr double metres_per_inch = 0.0254; // exact, by the definition of the inch

inline double metres_from_inches(double inches) {
    return inches * metres_per_inch;
}
inline fpt metres_from_inches(const fpt& point_inches) {
    return point_inches * metres_per_inch;
}
