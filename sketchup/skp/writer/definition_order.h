#pragma once

// The order in which definitions are written.

#include "sketchup/model/model.h"

#include <vector>

namespace skp {

// All definitions, each behind those that it places, as the program stores them; apart from that in the model's order.
// A definition that contains itself, which no reader accepts, stands behind those that it places otherwise.
std::vector<sketchup::index> definitions_children_first(const sketchup::model& m);

} // namespace skp
