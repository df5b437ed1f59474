#include "tools/skp-dump/prints.h"

#include "sketchup/api/inspect.h"
#include "tools/model_opening/su_lists.h"
#include "tools/skp-dump/model_counts.h"
#include "tools/skp-dump/placed_content.h"

#include <cstdio>

namespace {

void line(const char* what, std::size_t count) {
    std::printf("  %-28s %zu\n", what, count);
}

void box_line(const char* what, const placed_box& box) {
    if (!box.is_empty())
        std::printf("  %-28s (%.6g, %.6g, %.6g) to (%.6g, %.6g, %.6g) inches\n", what, box.low[0], box.low[1],
                    box.low[2], box.high[0], box.high[1], box.high[2]);
}

void print_counts(const model_counts& n) {
    line("component definitions", n.component_definitions);
    line("group definitions", n.group_definitions);
    line("image definitions", n.image_definitions);
    line("instances", n.instances);
    line("groups", n.groups);
    line("images", n.images);
    line("faces", n.faces);
    line("edges", n.edges);
    line("vertices", n.vertices);
    line("curves", n.curves);
    line("section planes", n.section_planes);
    line("guides", n.guides);
    line("texts", n.texts);
    line("dimensions", n.dimensions);
    line("attribute dictionaries", n.dictionaries);
}

void print_layers(SUModelRef model) {
    for (const SULayerRef layer : su_list(model, SUModelGetNumLayers, SUModelGetLayers)) {
        bool visible = true;
        SULayerGetVisibility(layer, &visible);
        std::printf("  layer %s%s\n", su_text(layer, SULayerGetName).c_str(), visible ? "" : " (off)");
    }
}

// The size of a texture's picture and of its tile.
std::string texture_text(SUTextureRef texture) {
    std::size_t width = 0;
    std::size_t height = 0;
    double s = 1;
    double t = 1;
    const std::string name = su_text(texture, SUTextureGetFileName);
    if (SUTextureGetDimensions(texture, &width, &height, &s, &t) != SU_ERROR_NONE)
        return "texture " + name + " without a readable picture";
    char sizes[160];
    std::snprintf(sizes, sizeof sizes, " %zu x %zu pixels, tile %.6g x %.6g inches", width, height, 1 / s, 1 / t);
    return "texture " + name + sizes;
}

void print_materials(SUModelRef model) {
    for (const SUMaterialRef material : su_list(model, SUModelGetNumMaterials, SUModelGetMaterials)) {
        SUColor color = {};
        SUMaterialGetColor(material, &color);
        double opacity = 1;
        SUMaterialGetOpacity(material, &opacity);
        SUTextureRef texture = SU_INVALID;
        const bool textured = SUMaterialGetTexture(material, &texture) == SU_ERROR_NONE;
        SUMaterialType type = SUMaterialType_Colored;
        SUMaterialGetType(material, &type);
        std::printf("  material %s: #%02x%02x%02x, opacity %.6g%s%s%s\n", su_text(material, SUMaterialGetName).c_str(),
                    color.red, color.green, color.blue, opacity, textured ? ", " : "",
                    textured ? texture_text(texture).c_str() : "",
                    type == SUMaterialType_ColorizedTexture ? ", recoloured" : "");
    }
}

} // namespace

void print_summary(const std::string& file_name, SUModelRef model) {
    const sketchup::model& inside = *sketchup::model_behind(model);
    int major = 0;
    int minor = 0;
    int build = 0;
    SUModelGetVersion(model, &major, &minor, &build);
    std::printf("%s: SketchUp %d.%d.%d, %s container\n", file_name.c_str(), major, minor, build,
                inside.is_modern ? "modern" : "classic");
    print_counts(count_model(inside));
    const placed_content placed = place_content(model, {});
    const placed_content written = place_content(model, {.leave_out_hidden = true, .turn_to_camera = true});
    line("faces once placed", placed.faces);
    line("of these visible", written.faces);
    std::printf("  %-28s %d\n", "depth of nesting", placed.depth);
    box_line("box of all", placed.box);
    box_line("box of the visible", written.box);
    print_layers(model);
    print_materials(model);
    print_parts(model);
}
