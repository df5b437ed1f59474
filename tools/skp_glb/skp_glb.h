#pragma once

// A model as one GLB file, with its own structure: nodes for what is placed, meshes for what is drawn once.

#include "sketchup/SketchUpAPI.h"
#include "tools/gltf/byte_spool.h"

#include <cstdint>
#include <string>
#include <vector>

struct skp_glb_options {
    bool keep_hidden = false;     // what is hidden, or on a layer that is off, is there and says so
    bool with_attributes = false; // attributes of model, definitions and placements
    std::size_t memory = gltf::byte_spool::usual_memory;
};

struct skp_glb_result {
    std::string failure;            // why the file could not be written, in words; empty if it was
    std::vector<std::string> notes; // what of the model could not be shown, a line each
    std::uint64_t triangles = 0;    // in the file; of a definition that is placed often they count once
    std::uint64_t placements = 0;
};

// Writes the file; an old one is replaced when the new one is whole. name: what the model is called in it. The model
// is asked through the calls of the C interface alone.
skp_glb_result write_skp_glb(SUModelRef model, const std::string& name, const std::string& glb_file,
                             const skp_glb_options& options = {});
