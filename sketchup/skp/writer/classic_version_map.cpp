#include "sketchup/skp/writer/classic_version_map.h"

#include <cstddef>

namespace skp {

namespace {

constexpr class_layout layouts[] = {
    // class, numbers in versions 6, 8, 2017, 2020
    {"CArcCurve", {1, 1, 3, 3}},
    {"CAttribute", {0, 0, 0, 0}},
    {"CAttributeContainer", {0, 0, 0, 0}},
    {"CAttributeNamed", {0, 1, 1, 1}},
    {"CBackgroundImage", {1, 10, 10, 10}},
    {"CCamera", {5, 5, 5, 5}},
    {"CComponent", {11, 11, 11, 11}},
    {"CComponentBehavior", {4, 5, 5, 5}},
    {"CComponentDefinition", {10, 10, 10, 11}},
    {"CComponentInstance", {4, 4, 5, 6}},
    {"CConstructionGeometry", {0, 0, 0, 0}},
    {"CConstructionLine", {1, 1, 1, 1}},
    {"CConstructionPoint", {0, 0, 0, 0}},
    {"CCurve", {4, 4, 4, 4}},
    {"CCustomLineStyle", {-1, -1, -1, 3}},
    {"CDefinitionList", {0, 0, 0, 0}},
    {"CDib", {3, 3, 3, 3}},
    {"CDimension", {1, 1, 1, 1}},
    {"CDimensionLinear", {6, 6, 6, 6}},
    {"CDimensionRadial", {2, 2, 2, 2}},
    {"CDimensionStyle", {4, 4, 4, 4}},
    {"CDrawingElement", {9, 9, 9, 9}},
    {"CEdge", {2, 2, 2, 2}},
    {"CEdgeUse", {1, 1, 1, 1}},
    {"CEntity", {3, 3, 5, 5}},
    {"CFace", {3, 3, 3, 3}},
    {"CFaceTextureCoords", {4, 4, 4, 4}},
    {"CFontManager", {0, 0, 0, 0}},
    {"CGroup", {1, 1, 1, 1}},
    {"CImage", {1, 1, 1, 1}},
    {"CLayer", {2, 2, 2, 3}},
    {"CLayerGroup", {-1, -1, -1, 2}},
    {"CLayerManager", {4, 4, 4, 7}},
    {"CLineStyleManager", {-1, -1, -1, 1}},
    {"CLoop", {1, 1, 1, 1}},
    {"CMaterial", {12, 12, 12, 12}},
    {"CMaterialManager", {4, 4, 4, 4}},
    {"CPageList", {1, 1, 1, 1}},
    {"CPolyline3d", {0, 0, 0, 0}},
    {"CRelationship", {0, 0, 0, 0}},
    {"CRelationshipMap", {0, 0, 0, 0}},
    {"CRenderingOptions", {32, 36, 36, 39}},
    {"CSchemaFile", {-1, -1, 1, 1}},
    {"CSchemaFilterFile", {-1, -1, 0, 0}},
    {"CSchemaZipFile", {-1, -1, 1, 1}},
    {"CSectionPlane", {2, 2, 2, 3}},
    {"CShadowInfo", {7, 7, 7, 7}},
    {"CSkFont", {1, 1, 1, 1}},
    {"CSketchCS", {0, 0, 0, 0}},
    {"CSketchUpModel", {18, 22, 26, 29}},
    {"CSketchUpPage", {1, 1, 1, 1}},
    {"CSkpStyle", {1, 1, 1, 2}},
    {"CSkpStyleManager", {2, 2, 2, 2}},
    {"CText", {9, 9, 9, 9}},
    {"CTextStyle", {5, 5, 5, 5}},
    {"CTexture", {6, 6, 6, 6}},
    {"CThumbnail", {1, 1, 1, 1}},
    {"CVertex", {0, 0, 0, 0}},
    {"CViewPage", {11, 12, 12, 13}},
    {"CWatermark", {1, 1, 1, 1}},
    {"CWatermarkManager", {2, 2, 2, 2}},
};

} // namespace

std::span<const class_layout> class_layouts() {
    return layouts;
}

int layout_number(std::string_view class_name, classic_version version) {
    for (const class_layout& one : layouts)
        if (one.name == class_name)
            return one.numbers[static_cast<std::size_t>(version)];
    return -1;
}

} // namespace skp
