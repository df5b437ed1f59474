#pragma once

// Writes a model as a .skp file of the object-graph container.

#include "sketchup/model/model.h"
#include "sketchup/skp/writer/classic_version_map.h"

#include <cstdint>
#include <vector>

namespace skp {

// The bytes of a whole file. m: need not be linked; a name or text that is no UTF-8 gets U+FFFD for each wrong byte.
// The file is stamped 6.0.1, 8.0.1, 17.0.1 or 20.0.1, whatever m's own version is. What the version has no room for
// (persistent ids before 17, layer folders before 20 …) is left out, and so are attributes with an empty key.
// Where annotations lie is not known, so they are written at the origin.
// Definitions are listed children first, in the model's order otherwise. What every file of the program has and m has
// none of (guids, times, persistent ids, a style, units, previews …) gets values that are the same on every run.
// Throws std::invalid_argument if definitions contain one another, format_error if a picture cannot be loaded.
std::vector<std::uint8_t> write_classic(const sketchup::model& m, classic_version version);

} // namespace skp
