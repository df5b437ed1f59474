#pragma once

// Brings outlines that nearly touch to touch exactly.

#include "sketchup/model/outline_contacts.h"

namespace sketchup {

// Moves the points of openings that are in contact with the face or with an earlier opening onto the nearest point or
// line of it, and gives the two outlines the same points wherever they run together, so that no sliver is left between
// them. Points of the face stay; its lines get points where an opening's point was moved onto them. Loops lose points
// that fall together, and may be left with fewer than three. No point moves by more than the tolerance.
void snap(outlines& shape, const std::vector<outline_contact>& contacts, double tolerance);

} // namespace sketchup
