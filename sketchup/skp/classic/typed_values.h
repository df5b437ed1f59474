#pragma once

// Attribute values of a classic file.

#include "sketchup/model/values.h"
#include "sketchup/skp/classic/archive.h"

namespace skp {

// Arrays in arrays beyond this are no work of a modeller; the bound keeps the recursion off the end of the stack.
inline constexpr int deepest_array_nesting = 64;

// Reads a code and its payload. Fails on an unknown code: nothing tells the size of its payload.
sketchup::typed_value read_typed_value(archive& in);

} // namespace skp
