#pragma once

// The object-graph container (SketchUp 3 to 2020).

#include "sketchup/skp/header.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace skp {

// Reads the whole body of a classic file, to its last byte, into an empty model. bytes: the whole file; pictures keep
// it alive instead of copying their part. Throws format_error.
void read_classic(std::shared_ptr<const std::vector<std::uint8_t>> bytes, const file_header& header,
                  sketchup::model& m);

} // namespace skp
