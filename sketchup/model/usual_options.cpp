#include "sketchup/model/usual_options.h"

#include <algorithm>
#include <vector>

namespace sketchup {

namespace {

attribute number(const char* name, std::int64_t value) {
    return {name, {value_code::int32, value}};
}
attribute real(const char* name, double value) {
    return {name, {value_code::float64, value}};
}
attribute flag(const char* name, bool value) {
    return {name, {value_code::boolean, value}};
}
attribute color(const char* name, std::uint8_t red, std::uint8_t green, std::uint8_t blue) {
    return {name, {value_code::color, rgba{red, green, blue, 255}}};
}

const std::vector<attribute> usual = {
    number("RenderMode", 2), // shaded, with textures
    flag("ModelTransparency", false),
    flag("MaterialTransparency", true),
    flag("Texture", true),
    number("EdgeDisplayMode", 1),
    number("EdgeType", 0),
    number("EdgeColorMode", 1),
    flag("JitterEdges", false),
    flag("ExtendLines", true),
    number("LineExtension", 2),
    flag("DrawSilhouettes", false),
    number("SilhouetteWidth", 3),
    flag("DrawDepthQue", false),
    number("DepthQueWidth", 4),
    flag("DrawLineEnds", false),
    number("LineEndWidth", 9),
    flag("DrawProfilesOnly", false),
    flag("DrawBackEdges", false),
    flag("DrawHidden", false),
    flag("DrawHiddenGeometry", false),
    flag("DrawHiddenObjects", false),
    flag("DisplayInstanceAxes", false),
    flag("DisplaySketchAxes", true),
    flag("DisplayColorByLayer", false),
    flag("DisplayText", true),
    flag("DisplayDims", true),
    flag("DisplayWatermarks", true),
    flag("HideConstructionGeometry", false),
    number("FaceColorMode", 0),
    color("FaceFrontColor", 255, 255, 255),
    color("FaceBackColor", 164, 178, 187),
    color("BackgroundColor", 255, 255, 255),
    color("ForegroundColor", 0, 0, 0),
    color("HighlightColor", 0, 1, 255),
    color("LockedColor", 255, 0, 0),
    color("ConstructionColor", 0, 0, 0),
    real("InactiveFade", 0.25),
    real("InstanceFade", 0.5),
    flag("InactiveHidden", false),
    flag("InstanceHidden", false),
    flag("DisplayFog", false),
    color("FogColor", 0, 0, 0),
    flag("FogUseBkColor", true),
    real("FogStartDist", -1), // as far as the model reaches
    real("FogEndDist", -1),
    color("SkyColor", 163, 204, 235),
    color("HorizonColor", 0, 0, 0),
    color("GroundColor", 210, 208, 185),
    flag("DrawHorizon", false),
    flag("DrawGround", false),
    flag("DrawUnderground", true),
    number("GroundTransparency", 50),
    color("SectionActiveColor", 255, 135, 0),
    color("SectionInactiveColor", 112, 105, 97),
    color("SectionDefaultCutColor", 0, 0, 0),
    color("SectionDefaultFillColor", 0, 0, 0),
    number("SectionCutWidth", 3),
    flag("SectionCutFilled", true),
    flag("DisplaySectionPlanes", true),
    flag("DisplaySectionCuts", true),
    number("TransparencySort", 0),
    // No file is known to store these three.
    color("BandColor", 0, 0, 0),
    flag("ShowViewName", true),
    flag("SectionCutDrawEdges", true),
};

// Soft: below 20 degrees between two faces an edge counts as soft.
const std::vector<attribute> settings = {
    flag("line style edges", true), number("fog hint", 1),
    flag("soft edges", true),       real("soft limit", 0.34906585039886595),
    flag("smooth edges", true),     real("X-ray opacity", 0.65),
    flag("photo background", true), real("photo background opacity", 1),
    flag("photo overlay", true),    real("photo overlay opacity", 0.8),
};

const typed_value* value_named(const std::vector<attribute>& values, std::string_view name) {
    const auto found = std::ranges::find(values, name, &attribute::key);
    return found == values.end() ? nullptr : &found->value;
}

} // namespace

const typed_value* usual_option(std::string_view name) {
    return value_named(usual, name);
}

const typed_value* usual_setting(std::string_view name) {
    return value_named(settings, name);
}

} // namespace sketchup
