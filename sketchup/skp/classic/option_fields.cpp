#include "sketchup/skp/classic/option_fields.h"

namespace skp {
namespace {

using enum option_type;

constexpr int always = std::numeric_limits<int>::max(); // in every layout since

constexpr option_field fields[] = {
    {"RenderMode", integer},
    {"ModelTransparency", boolean},
    {"MaterialTransparency", boolean},
    {"JitterEdges", boolean},
    {nullptr, boolean, 38, always, "line style edges"},
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
    {nullptr, integer, 30, always, "fog hint"},
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
    {nullptr, boolean, 0, always, "soft edges"},
    {nullptr, real, 0, always, "soft limit"},
    {nullptr, boolean, 0, always, "smooth edges"},
    {nullptr, boolean, 23, 24}, // mipmapping
    {nullptr, boolean, 33, 33},
    {"LockedColor", color, 27},
    {"DisplayWatermarks", boolean, 32},
    {nullptr, real, 35, always, "X-ray opacity"},
    {"DrawBackEdges", boolean, 36},
    {nullptr, boolean, 36, always, "photo background"},
    {nullptr, real, 36, always, "photo background opacity"},
    {nullptr, boolean, 36, always, "photo overlay"},
    {nullptr, real, 36, always, "photo overlay opacity"},
};

} // namespace

std::span<const option_field> option_fields() {
    return fields;
}

} // namespace skp
