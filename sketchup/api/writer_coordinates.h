#pragma once

#include "sketchup/api/provider_objects.h"

namespace sketchup::api {

// The coordinates of one side of a face for a caller that uses the pictures of `writer` (null: the model's own): those
// on the straightened picture if the side was loaded as a distorted one, else the true ones.
side_coordinates coordinates_for_writer(const face& f, face_side side, const texture_writer* writer);

} // namespace sketchup::api
