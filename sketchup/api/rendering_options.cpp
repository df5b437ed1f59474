// Rendering options by name.

#include "sketchup/api/typed_values.h"

#include <algorithm>

using namespace sketchup::api;

SUResult SURenderingOptionsGetValue(SURenderingOptionsRef options, const char* key, SUTypedValueRef* value) {
    const sketchup::rendering_options* o = object_of(options);
    if (!o)
        return SU_ERROR_INVALID_INPUT;
    return give_value(key, value, [o](std::string_view wanted) -> const sketchup::typed_value* {
        const auto found = std::find_if(o->values.begin(), o->values.end(),
                                        [wanted](const sketchup::attribute& a) { return a.key == wanted; });
        return found == o->values.end() ? nullptr : &found->value;
    });
}
