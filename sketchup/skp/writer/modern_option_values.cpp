#include "sketchup/skp/writer/modern_option_values.h"

#include "sketchup/skp/writer/written_lists.h"

#include <cstdint>

namespace skp {

using sketchup::typed_value;
using sketchup::value_code;

namespace {

// What the value holds if it is of that type, else zero.
template<class T>
T held(const typed_value* value) {
    const T* data = value == nullptr ? nullptr : std::get_if<T>(&value->data);
    return data == nullptr ? T() : *data;
}

std::int64_t section_display(const sketchup::rendering_options& options) {
    return (held<bool>(written_option(options, "DisplaySectionPlanes")) ? modern::section_planes_bit : 0) |
           (held<bool>(written_option(options, "DisplaySectionCuts")) ? modern::section_cuts_bit : 0);
}

typed_value usual_value(const modern::option_field& field) {
    switch (field.type) {
    case value_code::int32:
        return {field.type, static_cast<std::int64_t>(field.usual)};
    case value_code::boolean:
        return {field.type, field.usual != 0};
    default:
        return {field.type, field.usual};
    }
}

} // namespace

typed_value written_field(const modern::option_field& field, const sketchup::rendering_options& options) {
    if (field.tag == modern::section_display_tag)
        return {field.type, section_display(options)};
    if (field.name == nullptr)
        return usual_value(field);
    const typed_value* value = written_option(options, field.name);
    switch (field.type) {
    case value_code::int32:
        return {field.type, held<std::int64_t>(value)};
    case value_code::color:
        return {field.type, held<sketchup::rgba>(value)};
    case value_code::boolean:
        return {field.type, held<bool>(value)};
    default:
        return {field.type, held<double>(value)};
    }
}

} // namespace skp
