#pragma once

// Where the picture lies that the texture writer makes for a distorted side: it covers the face's extent once, straight
// in the axes of the face's plane, with its lower left corner at the least u and v.

#include "sketchup/model/model.h"
#include "sketchup/model/texture_coordinates.h"

namespace sketchup {

// The extent of a face in the axes of its plane, in inches; all zero for a face without corners.
struct plane_extent {
    double u = 0; // least
    double v = 0;
    double width = 0;
    double height = 0;
};
plane_extent extent_in_plane(const model& m, const face& f);

// The coordinates on that picture: 0 to 1 over the extent, q = 1. A side without width or height counts as 1 inch.
side_coordinates straightened_coordinates(const model& m, const face& f);

} // namespace sketchup
