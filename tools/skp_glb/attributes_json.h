#pragma once

#include "sketchup/SketchUpAPI.h"
#include "tools/gltf/glb_writer.h"

// The attributes of an entity by dictionary and key, dictionaries within dictionaries under their names; null if it has
// none. Points and colours are arrays of numbers, times seconds since 1970, what is no value is null.
gltf::json attributes_json(SUEntityRef entity);
// Those of the model itself.
gltf::json attributes_json(SUModelRef model);
