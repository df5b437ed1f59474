// The figures of a model as one JSON object on one line.

#include "tools/skp-dump/prints.h"

#include "platform/platform.h"
#include "sketchup/api/inspect.h"
#include "tools/model_opening/su_lists.h"
#include "tools/skp-dump/model_counts.h"
#include "tools/skp-dump/placed_content.h"

#include <cmath>
#include <cstdio>
#include <nlohmann/json.hpp>

namespace {

using json = nlohmann::ordered_json;

double rounded(double value) {
    return std::round(value * 1e6) / 1e6;
}

json box_of(const placed_box& box) {
    if (box.is_empty())
        return nullptr;
    const auto corner = [](const std::array<double, 3>& p) {
        return json::array({rounded(p[0]), rounded(p[1]), rounded(p[2])});
    };
    return json::array({corner(box.low), corner(box.high)});
}

json content_of(const placed_content& content) {
    return {{"faces", content.faces},
            {"area", rounded(content.area)},
            {"images", content.images},
            {"image_area", rounded(content.image_area)},
            {"box", box_of(content.box)}};
}

json placed_of(SUModelRef model) {
    const placed_content content = place_content(model, {});
    json result = content_of(content);
    result["box_with_edges"] = box_of(content.box_with_edges);
    json placements = json::object();
    for (const auto& [kind, count] : {std::pair("group", content.groups), std::pair("image", content.images),
                                      std::pair("instance", content.instances)})
        if (count > 0)
            placements[kind] = count;
    result["placements"] = placements;
    result["depth"] = content.depth;
    return result;
}

json texture_of(SUMaterialRef material, json described) {
    SUTextureRef texture = SU_INVALID;
    if (SUMaterialGetTexture(material, &texture) != SU_ERROR_NONE)
        return described;
    std::size_t width = 0;
    std::size_t height = 0;
    double s_scale = 0;
    double t_scale = 0;
    SUTextureGetDimensions(texture, &width, &height, &s_scale, &t_scale);
    if (s_scale > 0 && t_scale > 0)
        described["tile"] = json::array({rounded(1 / s_scale), rounded(1 / t_scale)});
    described["pixels"] = width > 0 ? json::array({width, height}) : json(nullptr);
    return described;
}

json materials_of(SUModelRef model) {
    json result = json::array();
    for (const SUMaterialRef material : su_list(model, SUModelGetNumMaterials, SUModelGetMaterials)) {
        enum SUMaterialType type = SUMaterialType_Colored;
        SUMaterialGetType(material, &type);
        double opacity = 1;
        SUMaterialGetOpacity(material, &opacity);
        result.push_back(texture_of(material, {{"name", su_text(material, SUMaterialGetName)},
                                               {"type", static_cast<int>(type)},
                                               {"opacity", rounded(opacity)}}));
    }
    return result;
}

json layers_of(SUModelRef model) {
    json result = json::array();
    for (const SULayerRef layer : su_list(model, SUModelGetNumLayers, SUModelGetLayers)) {
        bool visible = true;
        SULayerGetVisibility(layer, &visible);
        result.push_back(json::array({su_text(layer, SULayerGetName), visible}));
    }
    return result;
}

json scenes_of(SUModelRef model) {
    json result = json::array();
    for (const SUSceneRef scene : su_list(model, SUModelGetNumScenes, SUModelGetScenes))
        result.push_back(su_text(scene, SUSceneGetName));
    return result;
}

void add_counts(json& result, const model_counts& n) {
    result["definitions"] = {
        {"component", n.component_definitions}, {"group", n.group_definitions}, {"image", n.image_definitions}};
    result["instances"] = n.instances;
    result["groups"] = n.groups;
    result["images"] = n.images;
    result["hidden"] = {{"instances", n.hidden_instances},
                        {"groups", n.hidden_groups},
                        {"images", n.hidden_images},
                        {"faces", n.hidden_faces}};
    result["faces"] = n.faces;
    result["faces_with_holes"] = n.faces_with_holes;
    result["faces_with_texture_mapping"] = n.faces_with_texture_mapping;
    result["loops"] = n.loops;
    result["edges"] = {
        {"all", n.edges}, {"soft", n.soft_edges}, {"smooth", n.smooth_edges}, {"hidden", n.hidden_edges}};
    result["vertices"] = n.vertices;
    result["curves"] = n.curves;
    result["section_planes"] = n.section_planes;
    result["section_planes_active"] = n.active_section_planes;
    result["glued"] = n.glued;
    result["openings"] = {{"all", n.openings}, {"faces", n.faces_with_openings}};
    result["guides"] = n.guides;
    result["texts"] = n.texts;
    result["dimensions"] = n.dimensions;
}

} // namespace

void print_json(const std::string& file_name, SUModelRef model) {
    const sketchup::model& inside = *sketchup::model_behind(model);
    const model_counts counts = count_model(inside);
    int major = 0;
    int minor = 0;
    int build = 0;
    SUModelGetVersion(model, &major, &minor, &build);
    json result = {{"opens", true},
                   {"bytes", platform::file_size(file_name).value_or(0)},
                   {"container", inside.is_modern ? "modern" : "classic"},
                   {"version", std::to_string(major) + "." + std::to_string(minor) + "." + std::to_string(build)}};
    add_counts(result, counts);
    result["layers"] = layers_of(model);
    result["materials"] = materials_of(model);
    result["materials_private"] = counts.private_materials;
    result["dictionaries"] = {{"total", counts.dictionaries},
                              {"by_owner", counts.dictionaries_by_owner},
                              {"by_name", counts.dictionaries_by_name}};
    result["scenes"] = scenes_of(model);
    result["camera_facing_definitions"] = counts.camera_facing_definitions;
    result["placed"] = placed_of(model);
    const placed_content written = place_content(model, {.leave_out_hidden = true, .turn_to_camera = false});
    result["written"] = content_of(written);
    if (written.camera_facing > 0) {
        result["written"]["camera_facing"] = written.camera_facing;
        result["written_turned"] = content_of(place_content(model, {.leave_out_hidden = true, .turn_to_camera = true}));
    }
    std::puts(result.dump(-1, ' ', false, json::error_handler_t::replace).c_str());
}

void print_json_failure(const std::string& reason) {
    std::puts(json({{"opens", false}, {"why", reason}}).dump(-1, ' ', false, json::error_handler_t::replace).c_str());
}
