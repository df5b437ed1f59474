#pragma once

// Placements as SketchUp gives them: normalising, composing, turning to the camera.

#include "qlw/qlw_matrix.h"

#include <array>

// 16 numbers, column-major: element (row i, column j) stands at index 4 j + i, the translation in 12 to 14 in inches.
using transform16 = std::array<double, 16>;

inline constexpr transform16 identity16{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

// Divides all elements by element 15 unless that is exactly 1. An element 15 of 0 gives what the division gives.
void normalise(transform16& transform);

// The product outer times inner: where the inner placement ends up inside the outer one. All 16 elements are computed.
transform16 composed(const transform16& outer, const transform16& inner);

// Turns a placement's plan direction to the camera. The first axis becomes (dy, -dx, 0) and the second (dx, dy, 0),
// each at the length that it had; dx and dy are the unit direction from eye to target, seen from above. The third axis
// and the translation stay. A camera that looks straight up or down gives both axes as zero.
void face_camera(transform16& transform, const fpt& eye, const fpt& target);

// Image of a vector under the placement, without its translation.
fpt vector_image(const transform16& transform, const fpt& vector);

// Image of the origin: the translation.
fpt origin_image(const transform16& transform);

// Images of the three unit vectors.
std::array<fpt, 3> axis_images(const transform16& transform);

// The same placement in the form that takes its scale apart; its inverse is not filled.
cl_matrix matrix_from(const transform16& transform);

// Whether the product of the three signed scale factors is negative.
bool is_mirrored(const transform16& transform);
