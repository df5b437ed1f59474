#pragma once

// Colours that a file states about its pictures.

#include "sketchup/model/model.h"

namespace skp {

// The average colour of a texture: its own, unless that is all zero, else that of its picture, opaque. Grey for a
// texture without a picture, or with one that cannot be decoded.
sketchup::rgba written_average(const sketchup::model& m, const sketchup::texture& t);

// The average of a texture's picture as it is shown: the same, but where the material recolours the picture and the
// texture has none of its own, the colour that it is to get. of: has a texture.
sketchup::rgba written_shown_average(const sketchup::model& m, const sketchup::material& of);

} // namespace skp
