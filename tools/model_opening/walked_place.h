#pragma once

// What something in a model inherits from where it is placed, and whether it is hidden there.

#include "sketchup/SketchUpAPI.h"

// What the placements around a list hand down to it.
struct walked_place {
    SUMaterialRef material = SU_INVALID; // of bare faces
    SULayerRef layer = SU_INVALID;       // of what stands on the default layer; invalid where that is its own
};

class walk_rules {
public:
    walk_rules(SUModelRef model, bool keeps_hidden);

    // The layer that counts for an element: its own, or, if that is the default one, the inherited one.
    SULayerRef layer_of(SUDrawingElementRef element, const walked_place& at) const;

    // Its own flag, or its layer is off. What stands on the default layer follows that layer's own switch, unless that
    // is off: then the layer that it inherits.
    bool is_hidden(SUDrawingElementRef element, const walked_place& at) const;
    bool is_left_out(SUDrawingElementRef element, const walked_place& at) const {
        return !keep_hidden && is_hidden(element, at);
    }

    // What a placement hands down to what is inside.
    walked_place inside(SUDrawingElementRef placement, const walked_place& at) const;

    SULayerRef default_layer() const { return default_one; }
    // Colours go by layer, not by material.
    bool colors_by_layer() const { return by_layer; }
    // Whether the layer that is inherited decides about anything within a list.
    bool inherited_layer_counts() const { return by_layer || default_is_off; }

private:
    SULayerRef default_one = SU_INVALID;
    bool default_is_off = false;
    bool by_layer = false;
    bool keep_hidden = false;
};
