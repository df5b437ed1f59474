#pragma once

// For tools that show what no call of the C interface gives: curves, guides, what is glued.

#include "sketchup/SketchUpAPI.h"

namespace sketchup {

struct model;

// The model behind a handle, null if the handle is invalid. It dies with SUModelRelease.
const model* model_behind(SUModelRef handle);

} // namespace sketchup
