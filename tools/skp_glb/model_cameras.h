#pragma once

#include "sketchup/SketchUpAPI.h"
#include "tools/gltf/glb_writer.h"

#include <optional>
#include <string>

// Adds a camera and its node, in metres, z up. reach: metres across all that is to be seen. Nothing for a camera that
// looks nowhere.
std::optional<std::size_t> add_camera(gltf::glb_writer& to, SUCameraRef camera, const std::string& name, double reach);
