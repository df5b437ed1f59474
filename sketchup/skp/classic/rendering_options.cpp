// The rendering options: one record whose fields came and went with the versions.

#include "sketchup/skp/classic/model_reader.h"
#include "sketchup/skp/classic/option_fields.h"
#include "sketchup/skp/draw_hidden.h"

namespace skp {
namespace {

sketchup::typed_value boolean_value(bool b) {
    return {sketchup::value_code::boolean, b};
}

sketchup::typed_value read_option(archive& in, option_type type) {
    switch (type) {
    case option_type::integer:
        return {sketchup::value_code::int32, static_cast<std::int64_t>(in.i32())};
    case option_type::color:
        return {sketchup::value_code::color, in.rgba()};
    case option_type::real:
        return {sketchup::value_code::float64, in.f64()};
    default:
        return boolean_value(in.boolean());
    }
}

} // namespace

// CRenderingOptions
sketchup::rendering_options model_reader::read_rendering_options(bool& display_shadows) {
    const reading here(in_, "CRenderingOptions");
    sketchup::rendering_options options;
    options.id = m_.give_id();
    read_entity(options);
    for (const option_field& field : option_fields()) {
        if (!field.is_in(layout_.rendering_options))
            continue;
        if (field.type == option_type::section_display) {
            const std::uint32_t bits = in_.u32();
            options.values.push_back({"DisplaySectionPlanes", boolean_value((bits & section_planes_bit) != 0)});
            options.values.push_back({"DisplaySectionCuts", boolean_value((bits & section_cuts_bit) != 0)});
            continue;
        }
        sketchup::typed_value value = read_option(in_, field.type);
        if (field.type == option_type::shadows)
            display_shadows = std::get<bool>(value.data);
        if (field.name != nullptr)
            options.values.push_back({field.name, std::move(value)});
    }
    add_draw_hidden(options.values);
    return options;
}

} // namespace skp
