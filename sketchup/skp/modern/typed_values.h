#pragma once

// Typed attribute values as model.dat stores them.

#include "sketchup/model/values.h"
#include "sketchup/skp/byte_cursor.h"

namespace skp::modern {

// payload: of a typed_value record: empty for nil, else one record that tells the type. Nil for an unknown type.
// Throws format_error if arrays nest deeper than deepest_containers.
sketchup::typed_value read_typed_value(byte_cursor payload);

} // namespace skp::modern
