#pragma once

// What every drawn thing is asked. One that cannot be asked is shown and casts no shadow.

#include "sketchup/SketchUpAPI.h"

inline bool is_hidden(SUDrawingElementRef element) {
    bool hidden = false;
    SUDrawingElementGetHidden(element, &hidden);
    return hidden;
}

inline bool casts_shadows(SUDrawingElementRef element) {
    bool casts = false;
    SUDrawingElementGetCastsShadows(element, &casts);
    return casts;
}
