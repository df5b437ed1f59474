// The rendering options: one record for each, by the names that the C interface gives them.

#include "sketchup/skp/draw_hidden.h"
#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/option_fields.h"
#include "sketchup/skp/modern/tags.h"

#include <algorithm>
#include <utility>

namespace skp::modern {
namespace {

using sketchup::value_code;

sketchup::typed_value boolean_value(bool b) {
    return {value_code::boolean, b};
}

sketchup::typed_value read_option(byte_cursor in, value_code type) {
    switch (type) {
    case value_code::int32:
        return {type, static_cast<std::int64_t>(in.i32())};
    case value_code::color:
        return {type, in.rgba()};
    case value_code::float64:
        return {type, in.f64()};
    default:
        return boolean_value(in.boolean());
    }
}

} // namespace

// 29500
sketchup::rendering_options model_data_reader::read_rendering_options(byte_cursor in) {
    in.set_where("rendering options");
    sketchup::rendering_options options;
    options.id = m_.give_id();
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        const auto field = std::ranges::find(option_fields(), r.tag, &option_field::tag);
        if (field != option_fields().end() && field->name != nullptr) {
            options.values.push_back({field->name, read_option(value, field->type)});
        } else if (r.tag == section_display_tag) {
            const std::int32_t bits = value.i32();
            options.values.push_back({"DisplaySectionPlanes", boolean_value((bits & section_planes_bit) != 0)});
            options.values.push_back({"DisplaySectionCuts", boolean_value((bits & section_cuts_bit) != 0)});
        } else if (r.tag == tag::entity) {
            read_entity(value, options);
        }
    }
    add_draw_hidden(options.values);
    return options;
}

} // namespace skp::modern
