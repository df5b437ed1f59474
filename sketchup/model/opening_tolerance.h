#pragma once

namespace sketchup {

// Lines and points of faces and openings that are closer than this count as one; inches.
inline constexpr double opening_tolerance = 1e-3;

} // namespace sketchup
