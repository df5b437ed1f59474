#pragma once

// Fills the texture writer with every texture that the model holds, so that later look-ups of a face find it there.

#include "sketchup/SketchUpAPI.h"

// Loads, at the top level, then in each component definition: faces, instances, groups with all that they hold, images.
// That order decides which texture gets which id.
void preload_textures(SUModelRef model, SUTextureWriterRef writer);
