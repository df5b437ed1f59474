#include "sketchup/skp/classic/layout_numbers.h"

#include <algorithm>
#include <limits>

namespace skp {
namespace {

struct numbered_class {
    std::string_view name;
    int layout_numbers::*number;
};

constexpr numbered_class numbered_classes[] = {
    {"CAttributeNamed", &layout_numbers::attribute_named},
    {"CCamera", &layout_numbers::camera},
    {"CComponentBehavior", &layout_numbers::component_behavior},
    {"CComponentInstance", &layout_numbers::component_instance},
    {"CConstructionLine", &layout_numbers::construction_line},
    {"CCurve", &layout_numbers::curve},
    {"CCustomLineStyle", &layout_numbers::custom_line_style},
    {"CDib", &layout_numbers::dib},
    {"CDimension", &layout_numbers::dimension},
    {"CDimensionLinear", &layout_numbers::dimension_linear},
    {"CDrawingElement", &layout_numbers::drawing_element},
    {"CEdge", &layout_numbers::edge},
    {"CEntity", &layout_numbers::entity},
    {"CFace", &layout_numbers::face},
    {"CFaceTextureCoords", &layout_numbers::face_texture_coords},
    {"CLayer", &layout_numbers::layer},
    {"CLayerGroup", &layout_numbers::layer_group},
    {"CLayerManager", &layout_numbers::layer_manager},
    {"CMaterialManager", &layout_numbers::material_manager},
    {"CRenderingOptions", &layout_numbers::rendering_options},
    {"CSectionPlane", &layout_numbers::section_plane},
    {"CSkFont", &layout_numbers::font},
    {"CSketchUpModel", &layout_numbers::model},
    {"CTextStyle", &layout_numbers::text_style},
    {"CTexture", &layout_numbers::texture},
    {"CThumbnail", &layout_numbers::thumbnail},
    {"CViewPage", &layout_numbers::view_page},
};

} // namespace

void layout_numbers::note(std::string_view class_name, std::uint32_t number) {
    constexpr std::uint32_t largest = std::numeric_limits<int>::max();
    for (const numbered_class& c : numbered_classes)
        if (c.name == class_name)
            this->*c.number = static_cast<int>(std::min(number, largest));
}

} // namespace skp
