// The calls on typed values. Nothing is converted: a value answers one getter only.

#include "sketchup/api/plain_values.h"
#include "sketchup/api/provider_state.h"
#include "sketchup/api/typed_values.h"

#include <array>
#include <cstdint>
#include <string>
#include <variant>
#include <vector>

namespace sketchup::api {
namespace {

void release_items(typed_value_object& object) {
    for (typed_value_object* item : object.items) {
        release_items(*item);
        provider().typed_values.give_back(*item);
    }
    object.items.clear();
}

// What files store in more ways than the interface has types for.
SUTypedValueType type_of(value_code code) {
    switch (code) {
    case value_code::nil:
        return SUTypedValueType_Empty;
    case value_code::byte:
        return SUTypedValueType_Byte;
    case value_code::int16:
        return SUTypedValueType_Short;
    case value_code::int32:
        return SUTypedValueType_Int32;
    case value_code::float32:
        return SUTypedValueType_Float;
    case value_code::float64:
    case value_code::length:
    case value_code::measure_13:
    case value_code::measure_14:
    case value_code::measure_15:
    case value_code::measure_16:
        return SUTypedValueType_Double;
    case value_code::boolean:
        return SUTypedValueType_Bool;
    case value_code::color:
        return SUTypedValueType_Color;
    case value_code::time:
        return SUTypedValueType_Time;
    case value_code::string:
        return SUTypedValueType_String;
    case value_code::array:
    case value_code::transformation:
        return SUTypedValueType_Array;
    case value_code::point:
    case value_code::vector:
    case value_code::unit_vector:
        return SUTypedValueType_Vector3D;
    }
    return SUTypedValueType_Empty;
}

// A transformation as the array of 16 numbers that the interface has for it.
std::vector<typed_value> numbers_of(const std::array<double, 13>& stored) {
    std::vector<typed_value> numbers;
    for (const double number : transform_from_file(stored))
        numbers.push_back({value_code::float64, number});
    return numbers;
}

// Stores convert(the value's data, held as Stored), if the value is of that type.
template<class Stored, class Out, class Convert>
SUResult give_typed(SUTypedValueRef handle, SUTypedValueType type, Out* out, Convert convert) {
    const typed_value_object* object = object_of(handle);
    if (!object)
        return SU_ERROR_INVALID_INPUT;
    if (!out)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const Stored* stored = std::get_if<Stored>(&object->value.data);
    if (type_of(object->value.code) != type || !stored)
        return SU_ERROR_NO_DATA;
    *out = convert(*stored);
    return SU_ERROR_NONE;
}

template<class Out>
SUResult give_integer(SUTypedValueRef handle, SUTypedValueType type, Out* out) {
    return give_typed<std::int64_t>(handle, type, out, [](std::int64_t stored) { return static_cast<Out>(stored); });
}

const std::vector<typed_value>* elements_of(const typed_value_object& object) {
    return std::get_if<std::vector<typed_value>>(&object.value.data);
}

void make_items(typed_value_object& array, const std::vector<typed_value>& elements) {
    array.items.reserve(elements.size());
    while (array.items.size() < elements.size()) {
        typed_value_object& item = provider().typed_values.take();
        item.is_item = true;
        array.items.push_back(&item);
        set_value(item, elements[array.items.size() - 1]);
    }
}

} // namespace

void set_value(typed_value_object& object, typed_value value) {
    release_items(object);
    if (const auto* stored = std::get_if<std::array<double, 13>>(&value.data))
        value = {value_code::array, numbers_of(*stored)};
    object.value = std::move(value);
}

} // namespace sketchup::api

using namespace sketchup::api;
using sketchup::typed_value;
using sketchup::vec3;

SUResult SUTypedValueCreate(SUTypedValueRef* value) {
    return create(value, provider().typed_values, [](typed_value_object&) {});
}

SUResult SUTypedValueRelease(SUTypedValueRef* value) {
    if (value)
        if (typed_value_object* object = object_of(*value)) {
            if (object->is_item)
                return SU_ERROR_INVALID_INPUT;
            release_items(*object);
        }
    return release(value, provider().typed_values);
}

SUResult SUTypedValueGetType(SUTypedValueRef value, SUTypedValueType* type) {
    return give(value, type, [](const typed_value_object& object) { return type_of(object.value.code); });
}

SUResult SUTypedValueGetByte(SUTypedValueRef value, char* byte_value) {
    return give_integer(value, SUTypedValueType_Byte, byte_value);
}

SUResult SUTypedValueGetInt16(SUTypedValueRef value, int16_t* int16_value) {
    return give_integer(value, SUTypedValueType_Short, int16_value);
}

SUResult SUTypedValueGetInt32(SUTypedValueRef value, int32_t* int32_value) {
    return give_integer(value, SUTypedValueType_Int32, int32_value);
}

SUResult SUTypedValueGetFloat(SUTypedValueRef value, float* float_value) {
    return give_typed<double>(value, SUTypedValueType_Float, float_value,
                              [](double stored) { return static_cast<float>(stored); });
}

SUResult SUTypedValueGetDouble(SUTypedValueRef value, double* double_value) {
    return give_typed<double>(value, SUTypedValueType_Double, double_value, [](double stored) { return stored; });
}

SUResult SUTypedValueGetBool(SUTypedValueRef value, bool* bool_value) {
    return give_typed<bool>(value, SUTypedValueType_Bool, bool_value, [](bool stored) { return stored; });
}

SUResult SUTypedValueGetColor(SUTypedValueRef value, SUColor* color) {
    return give_typed<sketchup::rgba>(value, SUTypedValueType_Color, color, to_color);
}

SUResult SUTypedValueGetTime(SUTypedValueRef value, int64_t* seconds) {
    return give_integer(value, SUTypedValueType_Time, seconds);
}

SUResult SUTypedValueGetString(SUTypedValueRef value, SUStringRef* string) {
    const typed_value_object* object = object_of(value);
    if (!object)
        return SU_ERROR_INVALID_INPUT;
    if (!string)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    string_object* filled = object_of(*string);
    if (!filled)
        return SU_ERROR_INVALID_OUTPUT;
    const std::string* stored = std::get_if<std::string>(&object->value.data);
    if (!stored)
        return SU_ERROR_NO_DATA;
    return guarded([&] {
        filled->text = *stored;
        return SU_ERROR_NONE;
    });
}

SUResult SUTypedValueGetVector3d(SUTypedValueRef value, double vector[3]) {
    vec3 found;
    const SUResult result = give_typed<vec3>(value, SUTypedValueType_Vector3D, vector ? &found : nullptr,
                                             [](const vec3& stored) { return stored; });
    if (result == SU_ERROR_NONE) {
        vector[0] = found.x;
        vector[1] = found.y;
        vector[2] = found.z;
    }
    return result;
}

SUResult SUTypedValueGetNumArrayItems(SUTypedValueRef value, size_t* count) {
    const typed_value_object* object = object_of(value);
    if (!object)
        return SU_ERROR_INVALID_INPUT;
    if (!count)
        return SU_ERROR_NULL_POINTER_OUTPUT;
    const std::vector<typed_value>* elements = elements_of(*object);
    if (!elements)
        return SU_ERROR_NO_DATA;
    *count = elements->size();
    return SU_ERROR_NONE;
}

SUResult SUTypedValueGetArrayItems(SUTypedValueRef value, size_t len, SUTypedValueRef items[], size_t* count) {
    typed_value_object* object = object_of(value);
    if (!object)
        return SU_ERROR_INVALID_INPUT;
    const std::vector<typed_value>* elements = elements_of(*object);
    if (!elements)
        return items && count ? SU_ERROR_NO_DATA : SU_ERROR_NULL_POINTER_OUTPUT;
    return guarded([&] {
        make_items(*object, *elements);
        return fill_list(elements->size(), len, items, count,
                         [object](size_t i) { return handle_of<SUTypedValueRef>(*object->items[i]); });
    });
}
