// The calls on whatever can be drawn.

#include "sketchup/api/boxes.h"
#include "sketchup/api/calls.h"
#include "sketchup/api/plain_values.h"

using namespace sketchup::api;
using sketchup::drawing_element;

SUResult SUDrawingElementGetBoundingBox(SUDrawingElementRef element, SUBoundingBox3D* box) {
    return give(element, box, [](const drawing_element& e) { return to_box(box_of(e)); });
}

SUResult SUDrawingElementGetMaterial(SUDrawingElementRef element, SUMaterialRef* material) {
    return give_handle(element, material,
                       [](const drawing_element& e) { return element_at(e.owner->materials, e.material); });
}

SUResult SUDrawingElementGetLayer(SUDrawingElementRef element, SULayerRef* layer) {
    return give_handle(element, layer, [](const drawing_element& e) { return element_at(e.owner->layers, e.layer); });
}

SUResult SUDrawingElementGetHidden(SUDrawingElementRef element, bool* hidden) {
    return give(element, hidden, [](const drawing_element& e) { return e.hidden; });
}

SUResult SUDrawingElementGetCastsShadows(SUDrawingElementRef element, bool* casts) {
    return give(element, casts, [](const drawing_element& e) { return e.casts_shadows; });
}

SUResult SUDrawingElementGetReceivesShadows(SUDrawingElementRef element, bool* receives) {
    return give(element, receives, [](const drawing_element& e) { return e.receives_shadows; });
}
