// Place, time and shadow settings by name.

#include "sketchup/api/shadow_values.h"
#include "sketchup/api/typed_values.h"

using namespace sketchup::api;

SUResult SUShadowInfoGetValue(SUShadowInfoRef info, const char* key, SUTypedValueRef* value) {
    const sketchup::shadow_info* i = object_of(info);
    if (!i)
        return SU_ERROR_INVALID_INPUT;
    return give_value(key, value, [i](std::string_view wanted) { return shadow_value(*i, wanted); });
}
