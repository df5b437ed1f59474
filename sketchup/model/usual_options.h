#pragma once

// The rendering options of a new model in the program.

#include "sketchup/model/values.h"

#include <string_view>

namespace sketchup {

// The usual value of the option that the C interface calls so ("DrawGround", …); null for a name that it does not have.
const typed_value* usual_option(std::string_view name);

// The usual value of a setting that files keep among the rendering options and the interface does not show: "line style
// edges", "fog hint", "soft edges", "soft limit" (radians), "smooth edges", "X-ray opacity", "photo background", "photo
// background opacity", "photo overlay", "photo overlay opacity". Null for any other name.
const typed_value* usual_setting(std::string_view name);

} // namespace sketchup
