#pragma once

// The sun as files state it.

#include "sketchup/model/model.h"

namespace skp {

// The settings with what files of the program always have: a time, and a place. What has neither a name nor a position
// gets those of a new document in the program; what has one is given back as it is.
sketchup::shadow_info written_sun(const sketchup::shadow_info& sun);

} // namespace skp
