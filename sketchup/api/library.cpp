// Beginning and end of the library's use.

#include "sketchup/api/provider_state.h"
#include "sketchup/SketchUpAPI.h"

void SUInitialize() {}

void SUTerminate() {
    sketchup::api::provider().empty();
}

void SUGetAPIVersion(size_t* major, size_t* minor) {
    if (major)
        *major = 13;
    if (minor)
        *minor = 0;
}
