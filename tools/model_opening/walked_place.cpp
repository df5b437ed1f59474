#include "tools/model_opening/walked_place.h"

walk_rules::walk_rules(SUModelRef model, bool keeps_hidden) : keep_hidden(keeps_hidden) {
    bool visible = true;
    SUModelGetDefaultLayer(model, &default_one);
    SULayerGetVisibility(default_one, &visible);
    default_is_off = !visible;
    SURenderingOptionsRef options = SU_INVALID;
    SUTypedValueRef value = SU_INVALID;
    SUModelGetRenderingOptions(model, &options);
    SUTypedValueCreate(&value);
    if (SURenderingOptionsGetValue(options, "DisplayColorByLayer", &value) == SU_ERROR_NONE)
        SUTypedValueGetBool(value, &by_layer);
    SUTypedValueRelease(&value);
}

SULayerRef walk_rules::layer_of(SUDrawingElementRef element, const walked_place& at) const {
    SULayerRef layer = SU_INVALID;
    SUDrawingElementGetLayer(element, &layer);
    return SUAreEqual(layer, default_one) && SUIsValid(at.layer) ? at.layer : layer;
}

bool walk_rules::is_hidden(SUDrawingElementRef element, const walked_place& at) const {
    bool hidden = false;
    SUDrawingElementGetHidden(element, &hidden);
    SULayerRef layer = SU_INVALID;
    SUDrawingElementGetLayer(element, &layer);
    if (default_is_off)
        layer = layer_of(element, at);
    bool visible = true;
    SULayerGetVisibility(layer, &visible);
    return hidden || !visible;
}

walked_place walk_rules::inside(SUDrawingElementRef placement, const walked_place& at) const {
    walked_place inner = at;
    SUDrawingElementGetMaterial(placement, &inner.material);
    const SULayerRef layer = layer_of(placement, at);
    if (!SUAreEqual(layer, default_one))
        inner.layer = layer;
    return inner;
}
