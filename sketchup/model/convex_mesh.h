#pragma once

// The short cut for triangles and convex quadrilaterals.

#include "sketchup/model/triangulate.h"

#include <span>

namespace sketchup {

// Fills `out` as the sweep would, if `points` is a triangle or a convex quadrilateral that runs counter-clockwise
// against `normal` and none of whose corners is straight or nearly so; else gives false and leaves `out` alone. points:
// finite; normal: finite, not zero. The numbers in out.corners are positions in `points`.
bool convex_mesh(std::span<const vec3> points, const vec3& normal, face_mesh& out);

} // namespace sketchup
