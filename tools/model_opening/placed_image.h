#pragma once

// What the calls say of a placed image.

#include "image/picture.h"
#include "sketchup/SketchUpAPI.h"

#include <optional>

// Where an image lies in its own space, whose plane is z = 0; inches.
struct image_rectangle {
    SUPoint3D low;
    SUPoint3D high;
};

// Over the face that the image's definition holds, or, where none is to be had, over its pixels from the origin.
image_rectangle rectangle_of(SUImageRef image);

// Its pixels; nothing if it has none.
std::optional<image::picture> pixels_of(SUImageRef image);
