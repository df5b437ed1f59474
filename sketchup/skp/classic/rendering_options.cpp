// The rendering options: one record whose fields came and went with the versions.

#include "sketchup/skp/classic/model_reader.h"

#include <limits>

namespace skp {
namespace {

enum option_type : std::uint8_t {
    integer,
    boolean,
    color,
    real,
    shadows,         // a flag that belongs to the shadow settings
    section_display, // two flags in one number: planes, cuts
};

struct option_field {
    const char* name; // of the C interface; none for a field that it does not show
    option_type type;
    int from = 0; // the layouts that have the field
    int until = std::numeric_limits<int>::max();
};

// In the order of the file.
constexpr option_field option_fields[] = {
    {"RenderMode", integer},
    {"ModelTransparency", boolean},
    {"MaterialTransparency", boolean},
    {"JitterEdges", boolean},
    {nullptr, boolean, 38}, // line-style edges
    {"EdgeDisplayMode", integer},
    {"BackgroundColor", color},
    {"ForegroundColor", color},
    {"HighlightColor", color},
    {"ConstructionColor", color},
    {nullptr, shadows}, // "DisplayShadows" of the shadow settings
    {"DisplayInstanceAxes", boolean},
    {"DisplayColorByLayer", boolean},
    {"Texture", boolean},
    {"EdgeColorMode", integer},
    {"ExtendLines", boolean},
    {"LineExtension", integer},
    {"DrawSilhouettes", boolean},
    {"SilhouetteWidth", integer},
    {"DrawDepthQue", boolean, 26},
    {"DepthQueWidth", integer, 26},
    {"DrawLineEnds", boolean, 26},
    {"LineEndWidth", integer, 26},
    {"DrawProfilesOnly", boolean, 28},
    {"DrawHidden", boolean, 0, 38},
    {"DrawHiddenGeometry", boolean, 39},
    {"DrawHiddenObjects", boolean, 39},
    {"FaceColorMode", integer},
    {"FaceFrontColor", color},
    {"FaceBackColor", color},
    {"InactiveFade", real},
    {"InstanceFade", real},
    {"InactiveHidden", boolean},
    {"InstanceHidden", boolean},
    {"DisplayFog", boolean, 29},
    {"FogColor", color, 29},
    {"FogUseBkColor", boolean, 29},
    {"FogStartDist", real, 29},
    {"FogEndDist", real, 29},
    {nullptr, integer, 30}, // fog hint
    {"EdgeType", integer, 31},
    {"DisplaySketchAxes", boolean, 31},
    {"DisplayText", boolean, 31},
    {"DisplayDims", boolean, 31},
    {"HideConstructionGeometry", boolean, 31},
    {"SkyColor", color},
    {"HorizonColor", color, 24},
    {"GroundColor", color},
    {"DrawHorizon", boolean},
    {"DrawGround", boolean},
    {"DrawUnderground", boolean},
    {"GroundTransparency", integer},
    {"SectionActiveColor", color},
    {"SectionInactiveColor", color},
    {"SectionDefaultCutColor", color},
    {"SectionCutWidth", integer},
    {nullptr, section_display},
    {"SectionDefaultFillColor", color, 37},
    {"SectionCutFilled", boolean, 37},
    {"TransparencySort", integer},
    {nullptr, boolean},         // draws soft edges
    {nullptr, real},            // soft limit, radians
    {nullptr, boolean},         // draws smooth edges
    {nullptr, boolean, 23, 24}, // mipmapping
    {nullptr, boolean, 33, 33},
    {"LockedColor", color, 27},
    {"DisplayWatermarks", boolean, 32},
    {nullptr, real, 35}, // X-ray opacity
    {"DrawBackEdges", boolean, 36},
    {nullptr, boolean, 36}, // photo background shown
    {nullptr, real, 36},    // its opacity
    {nullptr, boolean, 36}, // photo overlay shown
    {nullptr, real, 36},    // its opacity
};

constexpr std::uint32_t section_planes_bit = 1;
constexpr std::uint32_t section_cuts_bit = 2;

sketchup::typed_value boolean_value(bool b) {
    return {sketchup::value_code::boolean, b};
}

sketchup::typed_value read_option(archive& in, option_type type) {
    switch (type) {
    case integer:
        return {sketchup::value_code::int32, static_cast<std::int64_t>(in.i32())};
    case color:
        return {sketchup::value_code::color, in.rgba()};
    case real:
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
    for (const option_field& field : option_fields) {
        if (layout_.rendering_options < field.from || layout_.rendering_options > field.until)
            continue;
        if (field.type == section_display) {
            const std::uint32_t bits = in_.u32();
            options.values.push_back({"DisplaySectionPlanes", boolean_value((bits & section_planes_bit) != 0)});
            options.values.push_back({"DisplaySectionCuts", boolean_value((bits & section_cuts_bit) != 0)});
            continue;
        }
        sketchup::typed_value value = read_option(in_, field.type);
        if (field.type == shadows)
            display_shadows = std::get<bool>(value.data);
        if (field.name != nullptr)
            options.values.push_back({field.name, std::move(value)});
    }
    return options;
}

} // namespace skp
