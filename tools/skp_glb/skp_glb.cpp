#include "tools/skp_glb/skp_glb.h"

#include "tools/gltf/numbers.h"
#include "tools/model_opening/su_lists.h"
#include "tools/skp_glb/attributes_json.h"
#include "tools/skp_glb/model_cameras.h"
#include "tools/skp_glb/model_nodes.h"

#include <cmath>

namespace {

using gltf::metres_in_an_inch;

using gltf::json;

class model_conversion {
public:
    model_conversion(SUModelRef converted, const std::string& glb_file, const skp_glb_options& options)
        : model(converted), asked(options), writer(glb_file, options.memory), rules(converted, options.keep_hidden),
          materials(writer, glb_file + ".picture"), meshes(writer, rules, materials),
          nodes(writer, rules, meshes, options.with_attributes) {}

    skp_glb_result run(const std::string& name) {
        skp_glb_result result;
        result.failure = writer.finish(document(name));
        if (result.failure.empty()) // a disk that is full takes no picture either, which is no fault of the picture
            result.notes = materials.notes();
        for (const model_mesh& mesh : meshes.made())
            result.triangles += mesh.triangles;
        result.placements = nodes.placed().placements;
        return result;
    }

private:
    // Around all that is in the model, hidden or not, in metres; null if there is nothing.
    json box_json(SUEntitiesRef root, double& reach) const {
        SUBoundingBox3D box{};
        SUEntitiesGetBoundingBox(root, &box);
        const double low[3] = {box.min_point.x, box.min_point.y, box.min_point.z};
        const double high[3] = {box.max_point.x, box.max_point.y, box.max_point.z};
        json corners = {json::array(), json::array()};
        for (std::size_t i = 0; i < 3; ++i) {
            if (!(low[i] <= high[i]))
                return nullptr;
            corners[0].push_back(gltf::short_number(low[i] * metres_in_an_inch));
            corners[1].push_back(gltf::short_number(high[i] * metres_in_an_inch));
            reach += (high[i] - low[i]) * metres_in_an_inch;
        }
        return corners;
    }

    json layers_json() const {
        json layers = json::array();
        for (const SULayerRef layer : su_list(model, SUModelGetNumLayers, SUModelGetLayers)) {
            bool visible = true;
            SULayerGetVisibility(layer, &visible);
            layers.push_back({{"name", su_text(layer, SULayerGetName)}, {"visible", visible}});
        }
        return layers;
    }

    // The camera of the model, and of each scene that keeps one. Gives their names.
    json add_cameras(std::vector<std::size_t>& to, double reach) {
        json names = json::array();
        const auto add = [&](SUCameraRef camera, const std::string& name) {
            if (const auto node = add_camera(writer, camera, name, reach)) {
                to.push_back(*node);
                names.push_back(name);
            }
        };
        SUCameraRef camera = SU_INVALID;
        SUModelGetCamera(model, &camera);
        add(camera, "view of the model");
        for (const SUSceneRef scene : su_list(model, SUModelGetNumScenes, SUModelGetScenes)) {
            SUCameraRef kept = SU_INVALID;
            if (SUSceneGetCamera(scene, &kept) == SU_ERROR_NONE)
                add(kept, su_text(scene, SUSceneGetName));
        }
        return names;
    }

    json counts_json() const {
        std::uint64_t triangles = 0;
        std::uint64_t lines = 0;
        for (const model_mesh& mesh : meshes.made()) {
            triangles += mesh.triangles;
            lines += mesh.lines;
        }
        return {{"triangles", triangles},
                {"triangles_placed", nodes.placed().triangles},
                {"lines", lines},
                {"meshes", meshes.made().size()},
                {"placements", nodes.placed().placements},
                {"images", nodes.placed().images},
                {"materials", writer.count(gltf::list::materials)},
                {"pictures", materials.pictures()}};
    }

    json document(const std::string& name) {
        SUEntitiesRef root = SU_INVALID;
        SUModelGetEntities(model, &root);
        double reach = 0;
        const json box = box_json(root, reach);
        std::vector<std::size_t> children = nodes.add_content(root, {});
        const model_mesh& loose = meshes.mesh_of(root, {}, name);
        nodes.count(loose);
        const json views = add_cameras(children, reach);
        json node = {{"name", name}, {"rotation", gltf::rotation_json(gltf::from_z_up)}};
        if (loose.number)
            node["mesh"] = *loose.number;
        if (!children.empty())
            node["children"] = children;
        json extras = {{"program", "tessaline"},
                       {"kind", "model"},
                       {"counts", counts_json()},
                       {"box_metres", box},
                       {"layers", layers_json()},
                       {"views", views},
                       {"section_planes", nodes.section_planes()}};
        if (asked.with_attributes) {
            const json found = attributes_json(model);
            if (!found.is_null())
                extras["attributes"] = found;
        }
        json result = {
            {"scene", 0},
            {"scenes", {{{"name", name}, {"nodes", {writer.add(gltf::list::nodes, node)}}, {"extras", extras}}}}};
        if (writer.count(gltf::list::textures) > 0)
            result["samplers"] = repeating_samplers();
        return result;
    }

    SUModelRef model;
    skp_glb_options asked;
    gltf::glb_writer writer;
    walk_rules rules;
    model_materials materials;
    definition_meshes meshes;
    model_nodes nodes;
};

} // namespace

skp_glb_result write_skp_glb(SUModelRef model, const std::string& name, const std::string& glb_file,
                             const skp_glb_options& options) {
    return model_conversion(model, glb_file, options).run(name);
}
