#pragma once

// The archive container (SketchUp 2021 and later).

#include "sketchup/skp/header.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace skp {

// Reads the archive of a modern file into an empty model. bytes: the whole file; pictures keep it alive and are
// unpacked when they are asked for. Throws format_error.
void read_modern(std::shared_ptr<const std::vector<std::uint8_t>> bytes, const file_header& header, sketchup::model& m);

} // namespace skp
