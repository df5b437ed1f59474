// Which layer an element counts as being on. Reads the layer table and the top parameter record.

#include "tessaline/parameters/layer_inheritance.h"

#include "tessaline/state/run_state.h"

element_layer layer_of(SUDrawingElementRef element, bool layer0_hidden) {
    element_layer found;
    SUDrawingElementGetLayer(element, &found.layer);
    found.name = layers.name_of(found.layer);
    if (found.name != default_layer_name || !current_oparms)
        return found;

    const std::string& inherited = current_oparms->inherited_layer();
    if (inherited.empty())
        return found;
    found.name = inherited;
    if (layer0_hidden)
        found.layer = layers.layer_named(inherited);
    return found;
}

bool is_visible(SULayerRef layer) {
    bool visible = false;
    SULayerGetVisibility(layer, &visible);
    return visible;
}
