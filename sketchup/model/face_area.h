#pragma once

#include "sketchup/model/model.h"

namespace sketchup {

// The area of a face, outline less holes, in square inches of the space of the list that holds it; never below zero.
// Each loop counts by the length of half the sum of cross products of neighbouring corners, exact for planar loops that
// don't cross themselves, whichever way they run. 0 if a corner is missing or not finite.
double face_area(const model& m, const face& f);

// The same after the corners went through a placement.
double face_area(const model& m, const face& f, const transform& placed);

} // namespace sketchup
