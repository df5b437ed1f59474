#pragma once

// How the user of a model looked at it when it was saved.

#include "sketchup/SketchUpAPI.h"
#include "tools/raster/rasterizer.h"

// The model's own camera; lengths are inches times `unit`.
view camera_of(SUModelRef model, double unit);
