#pragma once

// The rendering options of a new model in the program.

#include "sketchup/model/values.h"

#include <string_view>

namespace sketchup {

// The usual value of the option that the C interface calls so ("DrawGround", …); null for a name that it does not have.
const typed_value* usual_option(std::string_view name);

} // namespace sketchup
