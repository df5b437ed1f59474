#pragma once

#include "sketchup/model/model.h"

namespace sketchup::api {

// The texture that holds the picture of a placed image: the one on the rectangle in its hidden definition. Null if the
// file lacks it.
const texture* image_texture(const placement& image);

} // namespace sketchup::api
