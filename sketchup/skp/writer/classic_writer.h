#pragma once

// Writes a model as a .skp file of the object-graph container.

#include "sketchup/model/model.h"
#include "sketchup/skp/writer/classic_version_map.h"

#include <cstdint>
#include <vector>

namespace skp {

// How deep definitions may be introduced within one another: a definition that is listed before the one that it places
// holds its body in the file. One listed behind it only refers to it, at any depth.
inline constexpr int deepest_open_definitions = 1200;

// The bytes of a whole file. m: need not be linked; a name or text that is no UTF-8 gets U+FFFD for each wrong byte.
// The file is stamped 6.0.1, 8.0.1, 17.0.1 or 20.0.1, whatever m's own version is. What the version has no room for
// (persistent ids before 17, layer folders before 20 …) is left out, and so are attributes with an empty key.
// Where annotations lie is not known, so they are written at the origin.
// Throws std::length_error beyond deepest_open_definitions, format_error if a picture cannot be loaded.
std::vector<std::uint8_t> write_classic(const sketchup::model& m, classic_version version);

} // namespace skp
