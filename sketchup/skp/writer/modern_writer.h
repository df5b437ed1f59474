#pragma once

// Writes a model as a .skp file of the archive container.

#include "sketchup/model/model.h"

#include <cstdint>
#include <vector>

namespace skp {

// The versions that write_modern can write: 2021.0 and 2025.
enum class modern_version { v21, v25 };

// The bytes of a whole file; the same for the same model. m: need not be linked. The file is stamped 21.0.1 or 25.0.1,
// whatever m's own version is.
// Ids are the references of this container: what has no persistent id, or one that another element has too, gets a
// fresh one above all others. Left out is what the container has no room for: the alpha of materials, attributes of
// materials that are no scalars, the attributes and ids of textures, the ids of dictionaries and edge uses, insertion
// points. So are radial dimensions and polylines, whose layout is not known. What files of the program always hold and
// a model does not is added: guids, times, a display style, line styles, settings, previews (plain ones), boxes, the
// average colours of textures, upright views. Annotations as in write_classic.
// Throws format_error if a picture cannot be loaded, std::runtime_error if the archive cannot be made.
std::vector<std::uint8_t> write_modern(const sketchup::model& m, modern_version version);

// The document of the archive that holds the model itself, as write_modern packs it.
std::vector<std::uint8_t> modern_model_data(const sketchup::model& m, modern_version version);

} // namespace skp
