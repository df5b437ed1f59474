#pragma once

// A batch folder as one GLB file: what the renderer will get.

#include "tools/batch_glb/batch_scene.h"
#include "tools/gltf/byte_spool.h"

#include <string>
#include <vector>

enum class batch_glb_outcome {
    done,
    no_batch,    // there is no stream that can be read
    not_written, // the disk is full, or the file would be larger than the format allows
};

struct batch_glb_result {
    batch_glb_outcome outcome = batch_glb_outcome::done;
    std::string failure;            // in words; empty if all was done
    std::vector<std::string> notes; // what of the batch could not be shown, a line each
    batch_counts counts;
    gltf::float_range box; // of what is in the file; metres, z up
};

// Writes the file; an old one is replaced when the new one is whole. What the batch lacks or what no number can be read
// from is left out and told in the notes. memory: bytes of vertices kept before they go to a file beside the new one.
batch_glb_result write_batch_glb(const std::string& batch_folder, const std::string& glb_file,
                                 std::size_t memory = gltf::byte_spool::usual_memory);
