#pragma once

// What used to be one rendering option is two since 2020; the interface still shows the old one.

#include "sketchup/model/values.h"

#include <vector>

namespace skp {

// Appends "DrawHidden", true if hidden geometry or hidden objects are drawn, to options that hold either and not the
// old one itself. A value that is no boolean counts as off.
void add_draw_hidden(std::vector<sketchup::attribute>& options);

} // namespace skp
