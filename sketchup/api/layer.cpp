// The calls on layers.

#include "sketchup/api/calls.h"

using namespace sketchup::api;

namespace {

// The host shows the default layer under a name of its own since 2020; its internal name never changed.
constexpr const char* display_name_of_default_layer = "Untagged";

bool is_default(const sketchup::layer& l) {
    return &l == l.owner->layers.data();
}

} // namespace

SUResult SULayerGetName(SULayerRef layer, SUStringRef* name) {
    return give_text(layer, name, [](const sketchup::layer& l) { return l.name; });
}

SUResult SULayerGetDisplayName(SULayerRef layer, SUStringRef* name) {
    return give_text(layer, name, [](const sketchup::layer& l) {
        return is_default(l) ? std::string(display_name_of_default_layer) : l.name;
    });
}

SUResult SULayerGetMaterial(SULayerRef layer, SUMaterialRef* material) {
    return give_handle(layer, material,
                       [](const sketchup::layer& l) { return element_at(l.owner->materials, l.material); });
}

SUResult SULayerGetVisibility(SULayerRef layer, bool* visible) {
    return give(layer, visible, [](const sketchup::layer& l) { return !l.hidden; });
}
