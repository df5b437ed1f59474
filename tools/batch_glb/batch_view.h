#pragma once

// The view and the sun of a batch.

#include "tools/gltf/node_placement.h"
#include "tools/gltf/vertex_data.h"

#include <optional>
#include <string>

// From where a batch is looked at; lengths in metres, z up.
struct batch_view {
    gltf::double3 eye{};
    gltf::double3 target{};
    bool is_parallel = false;
    double field_of_view = 0; // radians, from the lower to the upper border of the picture
    double height = 0;        // of what a parallel view shows
    double aspect = 1;        // width to height
};

// What "zyn_view.txt" says. Nothing if the batch has no view, or one that looks nowhere.
// box: of what is to be seen, metres, z up. A view says no unit: it counts as metres, unless the middle of the box
// would not be in the picture so and is in it with inches; its field of view counts as radians up to pi, else as
// degrees.
std::optional<batch_view> view_of_batch(const std::string& batch_folder, const gltf::float_range& box);

// Adds the camera of that view and its node, called "view". Nothing if there is none.
std::optional<std::size_t> add_view(gltf::glb_writer& to, const std::string& batch_folder,
                                    const gltf::float_range& box);

// Adds a directional light from where "option_globals.txt" puts the sun, and its node, called "sun". Nothing if the sun
// is off, below the ground, or not told.
std::optional<std::size_t> add_sun(gltf::glb_writer& to, const std::string& batch_folder);
