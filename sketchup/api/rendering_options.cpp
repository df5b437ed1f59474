// Rendering options by name.

#include "sketchup/api/typed_values.h"
#include "sketchup/model/usual_options.h"

#include <algorithm>

using namespace sketchup::api;

namespace {

// What the host shows for an option that came after the file or that the file does not store; null for a name that it
// does not know (any more).
const sketchup::typed_value* value_of_newer_option(std::string_view name) {
    constexpr std::string_view gone_since_2019 = "FaceColorMode";
    return name == gone_since_2019 ? nullptr : sketchup::usual_option(name);
}

} // namespace

SUResult SURenderingOptionsGetValue(SURenderingOptionsRef options, const char* key, SUTypedValueRef* value) {
    const sketchup::rendering_options* o = object_of(options);
    if (!o)
        return SU_ERROR_INVALID_INPUT;
    return give_value(key, value, [o](std::string_view wanted) -> const sketchup::typed_value* {
        const auto found = std::find_if(o->values.begin(), o->values.end(),
                                        [wanted](const sketchup::attribute& a) { return a.key == wanted; });
        return found == o->values.end() ? value_of_newer_option(wanted) : &found->value;
    });
}
