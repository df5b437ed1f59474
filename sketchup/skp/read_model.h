#pragma once

// Opens a .skp file of either container.

#include "sketchup/model/model.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace skp {

// Reads, links and checks a whole model. bytes: the file as it stands on disk.
// Throws format_error for anything that is not a readable model; never another exception but std::bad_alloc.
std::unique_ptr<sketchup::model> read_model(std::vector<std::uint8_t> bytes);

} // namespace skp
