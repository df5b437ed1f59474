#include "tools/skp_glb/definition_meshes.h"

#include "tools/model_opening/su_lists.h"
#include "tools/skp_glb/mesh_parts.h"

namespace {

constexpr double metres_in_an_inch = 0.0254; // exact by definition

bool is_bare(SUFaceRef face) {
    SUMaterialRef material = SU_INVALID;
    return SUFaceGetFrontMaterial(face, &material) != SU_ERROR_NONE ||
           SUFaceGetBackMaterial(face, &material) != SU_ERROR_NONE;
}

// The upper right corner of an image in its own space, where its lower left one is the origin.
gltf::float2 size_of(SUImageRef image) {
    std::size_t wide = 0;
    std::size_t high = 0;
    if (SUImageGetPixelDimensions(image, &wide, &high) == SU_ERROR_NONE)
        return {static_cast<float>(static_cast<double>(wide) * metres_in_an_inch),
                static_cast<float>(static_cast<double>(high) * metres_in_an_inch)};
    SUComponentDefinitionRef definition = SU_INVALID;
    SUEntitiesRef inside = SU_INVALID;
    SUBoundingBox3D box{};
    SUImageGetDefinition(image, &definition);
    if (SUComponentDefinitionGetEntities(definition, &inside) != SU_ERROR_NONE ||
        SUEntitiesGetBoundingBox(inside, &box) != SU_ERROR_NONE || !(box.max_point.x < 1e9))
        return {};
    return {static_cast<float>(box.max_point.x * metres_in_an_inch),
            static_cast<float>(box.max_point.y * metres_in_an_inch)};
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
    const auto [width, height] = size_of(image);
    gltf::primitive_data quad;
    quad.positions = {{0, 0, 0}, {width, 0, 0}, {width, height, 0}, {0, height, 0}};
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
