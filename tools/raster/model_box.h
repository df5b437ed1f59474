#pragma once

#include "sketchup/SketchUpAPI.h"
#include "tools/raster/view.h"

#include <utility>

// The lowest and the highest corner of all that the model holds; inches. A cube about the origin if it holds nothing.
std::pair<vec, vec> box_of(SUModelRef model);
