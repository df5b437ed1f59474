#pragma once

// Which layer an element counts as being on: one that stands on "Layer0" is on the layer of the nearest enclosing group
// or instance that has a real one; a layer without a name is none.

#include "sketchup/SketchUpAPI.h"

#include <string_view>

struct element_layer {
    SULayerRef layer = SU_INVALID; // whose visibility decides
    std::string_view name;         // what the stream names; valid while the enclosing levels are on the stack
};

// The layer of an element under the levels that are on the parameter stack now.
// layer0_hidden: the model's "Layer0" is switched off. The inherited layer then decides the visibility too; otherwise
// that stays with "Layer0" itself.
element_layer layer_of(SUDrawingElementRef element, bool layer0_hidden);

// Whether the layer is switched on in the model; a layer that cannot be asked is not.
bool is_visible(SULayerRef layer);
