#pragma once

// How values of attributes and options reach a caller's typed value.

#include "sketchup/api/calls.h"

#include <string_view>
#include <utility>

namespace sketchup::api {

// Replaces what a caller's value holds; items handed out for an array before are void.
void set_value(typed_value_object& object, typed_value value);

// Fills a created value with what find(key) points to, a value or something that holds one like std::optional; NO_DATA
// if there is none. The caller has checked the handle that is asked.
template<class Find>
SUResult give_value(const char* key, SUTypedValueRef* out, Find find) {
    if (!key)
        return SU_ERROR_NULL_POINTER_INPUT;
    if (!out)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    typed_value_object* object = object_of(*out);
    if (!object)
        return SU_ERROR_INVALID_OUTPUT;
    return guarded([&] {
        auto found = find(std::string_view(key));
        if (!found)
            return SU_ERROR_NO_DATA;
        set_value(*object, *found);
        return SU_ERROR_NONE;
    });
}

} // namespace sketchup::api
