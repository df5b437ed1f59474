#pragma once

// The picture of a batch, and from where it is seen.

#include "tools/gltf/vertex_data.h"
#include "tools/page/view_options.h"
#include "tools/raster/view.h"

#include <optional>
#include <string>
#include <vector>

// The view that the batch holds; metres. Nothing if it holds none, or one that looks nowhere.
// box: of what is to be seen, which tells the unit of the view (tools/batch_glb/batch_view.h).
std::optional<view> start_of_batch(const std::string& batch_folder, const gltf::float_range& box);

struct drawn_batch {
    bool is_batch = false;
    std::string failure;            // in words; empty if the picture was written
    std::vector<std::string> notes; // what of the batch could not be shown, a line each
};

// Draws the batch into the picture file of the options, from its view, or all of it from a corner.
drawn_batch draw_batch(const view_options& options);
