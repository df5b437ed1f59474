#include "tools/skp_glb/definition_meshes.h"

#include "tools/gltf/numbers.h"
#include "tools/model_opening/placed_image.h"
#include "tools/model_opening/su_lists.h"
#include "tools/skp_glb/mesh_parts.h"

namespace {

using gltf::metres_in_an_inch;

bool is_bare(SUFaceRef face) {
    SUMaterialRef material = SU_INVALID;
    return SUFaceGetFrontMaterial(face, &material) != SU_ERROR_NONE ||
           SUFaceGetBackMaterial(face, &material) != SU_ERROR_NONE;
}

float in_metres(double inches) {
    return static_cast<float>(inches * metres_in_an_inch);
}

} // namespace

definition_meshes::list_needs definition_meshes::needs_of(SUEntitiesRef list) {
    const auto [entry, is_new] = needs.try_emplace(list.ptr);
    if (is_new)
        for (const SUFaceRef face : su_list(list, SUEntitiesGetNumFaces, SUEntitiesGetFaces))
            entry->second.material = entry->second.material || is_bare(face);
    return entry->second;
}

const model_mesh& definition_meshes::mesh_of(SUEntitiesRef list, const walked_place& at, const std::string& name,
                                             const gltf::json& extras) {
    const bool material_counts = !rules.colors_by_layer() && needs_of(list).material;
    const auto [entry, is_new] = meshes.try_emplace({list.ptr, material_counts ? at.material.ptr : nullptr,
                                                     rules.inherited_layer_counts() ? at.layer.ptr : nullptr});
    model_mesh& result = entry->second;
    if (!is_new)
        return result;
    mesh_parts parts(rules, materials, at);
    for (const SUFaceRef face : su_list(list, SUEntitiesGetNumFaces, SUEntitiesGetFaces))
        parts.add_face(face);
    for (const SUEdgeRef edge : su_edges(list))
        parts.add_edge(edge);
    const gltf::json primitives = parts.put(writer);
    if (primitives.empty())
        return result;
    gltf::json mesh = {{"name", name}, {"primitives", primitives}};
    if (!extras.is_null())
        mesh["extras"] = extras;
    result.number = writer.add(gltf::list::meshes, mesh);
    result.triangles = parts.triangles;
    result.lines = parts.lines;
    result.box = parts.box;
    all.push_back(result);
    return result;
}

const model_mesh& definition_meshes::mesh_of(SUImageRef image) {
    SUComponentDefinitionRef definition = SU_INVALID;
    SUImageGetDefinition(image, &definition);
    const auto [entry, is_new] = images.try_emplace(definition.ptr);
    model_mesh& result = entry->second;
    if (!is_new)
        return result;
    const auto [low, high] = rectangle_of(image);
    const float left = in_metres(low.x);
    const float right = in_metres(high.x);
    const float bottom = in_metres(low.y);
    const float top = in_metres(high.y);
    gltf::primitive_data quad;
    quad.positions = {{left, bottom, 0}, {right, bottom, 0}, {right, top, 0}, {left, top, 0}};
    quad.normals.assign(4, {0, 0, 1});
    quad.coordinates = {{0, 1}, {1, 1}, {1, 0}, {0, 0}};
    quad.indices = {0, 1, 2, 0, 2, 3};
    gltf::json primitive = gltf::add_primitive(writer, quad, gltf::primitive_mode::triangles);
    primitive["material"] = materials.material_of(image);
    result.number =
        writer.add(gltf::list::meshes, {{"name", su_text(image, SUImageGetFileName)}, {"primitives", {primitive}}});
    result.triangles = 2;
    for (const gltf::float3& corner : quad.positions)
        result.box.include(corner);
    all.push_back(result);
    return result;
}
