#pragma once

// Views as files state them.

#include "sketchup/model/model.h"

namespace skp {

// The camera with what files of the program always have: a height above zero, and an up vector of length 1 at right
// angles to the view. What has both already is given back as it is; up turns as little as need be.
sketchup::camera written_camera(const sketchup::camera& camera);

// The view of a thumbnail that was never drawn.
sketchup::camera thumbnail_camera();

} // namespace skp
