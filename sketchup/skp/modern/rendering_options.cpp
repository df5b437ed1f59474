// The rendering options: one record for each, by the names that the C interface gives them.

#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"

#include <algorithm>
#include <utility>

namespace skp::modern {
namespace {

using sketchup::value_code;

struct option_field {
    std::uint16_t tag;
    const char* name;
    value_code type;
};

// Numbers that are missing here belong to options that the interface does not show.
constexpr option_field option_fields[] = {
    {29501, "RenderMode", value_code::int32},
    {29502, "ModelTransparency", value_code::boolean},
    {29503, "MaterialTransparency", value_code::boolean},
    {29504, "Texture", value_code::boolean},
    {29505, "EdgeDisplayMode", value_code::int32},
    {29506, "EdgeType", value_code::int32},
    {29507, "DisplaySketchAxes", value_code::boolean},
    {29508, "DisplayText", value_code::boolean},
    {29509, "DisplayDims", value_code::boolean},
    {29510, "HideConstructionGeometry", value_code::boolean},
    {29511, "DisplayColorByLayer", value_code::boolean},
    {29512, "EdgeColorMode", value_code::int32},
    {29514, "DrawHidden", value_code::boolean},
    {29568, "DrawHiddenGeometry", value_code::boolean},
    {29569, "DrawHiddenObjects", value_code::boolean},
    {29517, "DrawSilhouettes", value_code::boolean},
    {29518, "SilhouetteWidth", value_code::int32},
    {29519, "ExtendLines", value_code::boolean},
    {29520, "LineExtension", value_code::int32},
    {29521, "DrawDepthQue", value_code::boolean},
    {29522, "DepthQueWidth", value_code::int32},
    {29523, "DrawLineEnds", value_code::boolean},
    {29524, "LineEndWidth", value_code::int32},
    {29525, "JitterEdges", value_code::boolean},
    {29527, "BackgroundColor", value_code::color},
    {29528, "ForegroundColor", value_code::color},
    {29529, "HighlightColor", value_code::color},
    {29530, "LockedColor", value_code::color},
    {29531, "ConstructionColor", value_code::color},
    {29532, "FaceFrontColor", value_code::color},
    {29533, "FaceBackColor", value_code::color},
    {29534, "DisplayWatermarks", value_code::boolean},
    {29535, "DisplayFog", value_code::boolean},
    {29536, "FogColor", value_code::color},
    {29537, "FogUseBkColor", value_code::boolean},
    {29538, "FogStartDist", value_code::float64},
    {29539, "FogEndDist", value_code::float64},
    {29541, "SkyColor", value_code::color},
    {29542, "HorizonColor", value_code::color},
    {29543, "GroundColor", value_code::color},
    {29544, "DrawHorizon", value_code::boolean},
    {29545, "DrawGround", value_code::boolean},
    {29546, "DrawUnderground", value_code::boolean},
    {29547, "GroundTransparency", value_code::int32},
    {29548, "InactiveFade", value_code::float64},
    {29549, "InstanceFade", value_code::float64},
    {29550, "InactiveHidden", value_code::boolean},
    {29551, "InstanceHidden", value_code::boolean},
    {29552, "SectionActiveColor", value_code::color},
    {29553, "SectionInactiveColor", value_code::color},
    {29554, "SectionDefaultCutColor", value_code::color},
    {29555, "SectionDefaultFillColor", value_code::color},
    {29556, "SectionCutWidth", value_code::int32},
    {29558, "SectionCutFilled", value_code::boolean},
    {29559, "TransparencySort", value_code::int32},
};

// Two flags in one number.
constexpr std::uint16_t section_display = 29557;
constexpr std::int32_t section_planes_bit = 1;
constexpr std::int32_t section_cuts_bit = 2;

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

const sketchup::attribute* named(const std::vector<sketchup::attribute>& values, const char* name) {
    const auto found = std::ranges::find(values, name, &sketchup::attribute::key);
    return found == values.end() ? nullptr : &*found;
}

// What used to be one option is two since 2020; the interface still shows the old one.
void add_draw_hidden(std::vector<sketchup::attribute>& values) {
    const sketchup::attribute* geometry = named(values, "DrawHiddenGeometry");
    const sketchup::attribute* objects = named(values, "DrawHiddenObjects");
    if (named(values, "DrawHidden") != nullptr || (geometry == nullptr && objects == nullptr))
        return;
    const auto is_on = [](const sketchup::attribute* a) { return a != nullptr && std::get<bool>(a->value.data); };
    const bool any = is_on(geometry) || is_on(objects);
    values.push_back({"DrawHidden", boolean_value(any)});
}

} // namespace

// 29500
sketchup::rendering_options model_data_reader::read_rendering_options(byte_cursor in) {
    in.set_where("rendering options");
    sketchup::rendering_options options;
    options.id = m_.give_id();
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        const auto* field = std::ranges::find(option_fields, r.tag, &option_field::tag);
        if (field != std::end(option_fields)) {
            options.values.push_back({field->name, read_option(value, field->type)});
        } else if (r.tag == section_display) {
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
