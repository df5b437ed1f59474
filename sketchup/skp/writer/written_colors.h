#pragma once

// Colours that a file states about its pictures.

#include "sketchup/model/model.h"

namespace skp {

// The average colour of a texture: its own, unless that is all zero, else that of its picture, opaque. Grey for a
// texture without a picture, or with one that cannot be decoded.
sketchup::rgba written_average(const sketchup::model& m, const sketchup::texture& t);

} // namespace skp
