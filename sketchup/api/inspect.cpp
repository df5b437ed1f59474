#include "sketchup/api/inspect.h"

#include "sketchup/api/handles.h"

namespace sketchup {

const model* model_behind(SUModelRef handle) {
    return api::object_of(handle);
}

} // namespace sketchup
