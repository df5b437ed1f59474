#pragma once

// Writes a model as a .skp file of the object-graph container.

#include "sketchup/model/model.h"
#include "sketchup/skp/writer/classic_version_map.h"

#include <cstdint>
#include <vector>

namespace skp {

// The bytes of a whole file. m: need not be linked; its own version number is not used but in so far as the file is
// stamped with a version of the kind asked for (6.0.1, 8.0.1, 17.0.1, 20.0.1). What the version has no room for (the
// names of instances before 6, persistent ids before 17, layer folders before 20 …) is left out.
std::vector<std::uint8_t> write_classic(const sketchup::model& m, classic_version version);

} // namespace skp
