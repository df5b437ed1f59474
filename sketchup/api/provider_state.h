#pragma once

// All that the provider keeps from call to call.

#include "image/picture_pyramid.h"
#include "sketchup/api/key_lookup.h"
#include "sketchup/api/object_pool.h"
#include "sketchup/api/provider_objects.h"
#include "sketchup/model/bounding_box.h"
#include "sketchup/model/face_cuts.h"
#include "sketchup/model/face_openings.h"
#include "sketchup/model/model.h"
#include "sketchup/model/triangulate.h"
#include "sketchup/model/vertex_normals.h"

#include <deque>
#include <memory>
#include <optional>
#include <unordered_map>
#include <vector>

namespace sketchup::api {

// A model and what was worked out about it so far.
struct open_model {
    std::unique_ptr<sketchup::model> model;
    std::optional<vertex_normals> normals; // for the first mesh
    std::optional<face_openings> openings; // for the first face that something may cut
    std::optional<face_cuts> cuts;         // for the first mesh or area of such a face
    std::optional<box_cache> boxes;        // for the first box
    std::unordered_map<const attribute_dictionary*, key_lookup> key_lookups;                  // of large dictionaries
    std::unordered_map<const entity*, std::deque<attribute_dictionary>> made_by_asking;       // not in the file
    std::unordered_map<const picture*, std::optional<image::picture_extent>> picture_extents; // none: damaged
    // The picture that was straightened last, as shown: the distorted sides of a material often follow one another.
    const texture* kept_texture = nullptr;
    image::picture_pyramid kept_pixels;
};

// One object, because the C interface has no handle for a library; emptied by SUTerminate.
struct provider_state {
    std::vector<std::unique_ptr<open_model>> models;
    std::vector<std::unique_ptr<loose_texture>> loose_textures;
    object_pool<string_object> strings;
    object_pool<typed_value_object> typed_values;
    object_pool<uv_helper> uv_helpers;
    object_pool<mesh_helper> mesh_helpers;
    object_pool<opening_object> openings;
    object_pool<texture_writer> texture_writers;
    sketchup::tessellator tessellator;

    void empty();
};

provider_state& provider();

// The open model that a struct of a model belongs to; null if that was closed or never opened.
open_model* open_model_of(const model* m);

// The openings of a face of an open model; the reference holds until the model is closed.
const std::vector<opening>& openings_of(const face& f);

// What they leave of it; null if nothing can cut it, which costs no more than a look at the face. Holds as long.
const face_cut* cut_of(const face& f);

} // namespace sketchup::api
