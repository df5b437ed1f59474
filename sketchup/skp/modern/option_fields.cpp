#include "sketchup/skp/modern/option_fields.h"

#include "sketchup/skp/modern/formats.h"

#include <numbers>

namespace skp::modern {
namespace {

using enum sketchup::value_code;

constexpr option_field fields[] = {
    {29501, "RenderMode", int32},
    {29502, "ModelTransparency", boolean},
    {29503, "MaterialTransparency", boolean},
    {29504, "Texture", boolean},
    {29505, "EdgeDisplayMode", int32},
    {29506, "EdgeType", int32},
    {29507, "DisplaySketchAxes", boolean},
    {29508, "DisplayText", boolean},
    {29509, "DisplayDims", boolean},
    {29510, "HideConstructionGeometry", boolean},
    {29511, "DisplayColorByLayer", boolean},
    {29512, "EdgeColorMode", int32},
    {29513, nullptr, boolean},
    {29514, "DrawHidden", boolean, 0, 1, 0}, // of no known layout: the two that follow took its place
    {29568, "DrawHiddenGeometry", boolean},
    {29569, "DrawHiddenObjects", boolean},
    {29515, nullptr, boolean},
    {29516, nullptr, boolean, 1}, // dashed edges shown
    {29517, "DrawSilhouettes", boolean},
    {29518, "SilhouetteWidth", int32},
    {29519, "ExtendLines", boolean},
    {29520, "LineExtension", int32},
    {29521, "DrawDepthQue", boolean},
    {29522, "DepthQueWidth", int32},
    {29523, "DrawLineEnds", boolean},
    {29524, "LineEndWidth", int32},
    {29525, "JitterEdges", boolean},
    {29526, nullptr, boolean},
    {29527, "BackgroundColor", color},
    {29528, "ForegroundColor", color},
    {29529, "HighlightColor", color},
    {29530, "LockedColor", color},
    {29531, "ConstructionColor", color},
    {29532, "FaceFrontColor", color},
    {29533, "FaceBackColor", color},
    {29534, "DisplayWatermarks", boolean},
    {29535, "DisplayFog", boolean},
    {29536, "FogColor", color},
    {29537, "FogUseBkColor", boolean},
    {29538, "FogStartDist", float64},
    {29539, "FogEndDist", float64},
    {29540, nullptr, int32, 1}, // kind of fog
    {29541, "SkyColor", color},
    {29542, "HorizonColor", color},
    {29543, "GroundColor", color},
    {29544, "DrawHorizon", boolean},
    {29545, "DrawGround", boolean},
    {29546, "DrawUnderground", boolean},
    {29547, "GroundTransparency", int32},
    {29548, "InactiveFade", float64},
    {29549, "InstanceFade", float64},
    {29550, "InactiveHidden", boolean},
    {29551, "InstanceHidden", boolean},
    {29552, "SectionActiveColor", color},
    {29553, "SectionInactiveColor", color},
    {29554, "SectionDefaultCutColor", color},
    {29555, "SectionDefaultFillColor", color},
    {29556, "SectionCutWidth", int32},
    {section_display_tag, nullptr, int32},
    {29558, "SectionCutFilled", boolean},
    {29559, "TransparencySort", int32},
    {29560, nullptr, float64, 0.65},                        // X-ray opacity
    {29561, nullptr, boolean, 1},                           // soft edges drawn
    {29562, nullptr, float64, 20 * std::numbers::pi / 180}, // soft limit, radians
    {29563, nullptr, boolean, 1},                           // smooth edges drawn
    {29564, nullptr, boolean, 1},                           // foreground of a matched photo shown
    {29565, nullptr, float64, 1},                           // its opacity
    {29566, nullptr, boolean, 1},                           // background of a matched photo shown
    {29567, nullptr, float64, 0.8},                         // its opacity
    {29570, nullptr, boolean, 0, format_2021_1},
    {29571, nullptr, boolean, 0, format_2024},  // ambient occlusion
    {29573, nullptr, float32, 10, format_2024}, // its distance
    {29574, nullptr, float32, 0, format_2024},  // its intensity
};

} // namespace

std::span<const option_field> option_fields() {
    return fields;
}

} // namespace skp::modern
