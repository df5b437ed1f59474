#include "tools/skp_glb/model_nodes.h"

#include "tools/gltf/numbers.h"
#include "tools/model_opening/su_lists.h"
#include "tools/skp_glb/attributes_json.h"

#include <cmath>

namespace {

constexpr double metres_in_an_inch = 0.0254; // exact by definition

} // namespace

gltf::frame frame_of(const SUTransformation& transform) {
    const double* m = transform.values;
    const double weight = m[15] != 0 ? m[15] : 1;
    gltf::frame result;
    for (std::size_t axis = 0; axis < 3; ++axis)
        for (std::size_t i = 0; i < 3; ++i)
            result.axes[axis][i] = m[4 * axis + i] / weight;
    for (std::size_t i = 0; i < 3; ++i)
        result.origin[i] = m[12 + i] / weight * metres_in_an_inch;
    return result;
}

std::string section_plane_name(std::size_t number) {
    return "section plane " + std::to_string(number);
}

const model_nodes::definition_facts& model_nodes::facts_of(SUComponentDefinitionRef definition) {
    const auto [entry, is_new] = definitions.try_emplace(definition.ptr);
    if (is_new) {
        entry->second.name = su_text(definition, SUComponentDefinitionGetName);
        SUComponentDefinitionGetEntities(definition, &entry->second.inside);
        if (attributes) {
            const gltf::json found = attributes_json(SUComponentDefinitionToEntity(definition));
            if (!found.is_null())
                entry->second.extras["attributes"] = found;
        }
    }
    return entry->second;
}

const std::string& model_nodes::layer_name(SULayerRef layer) {
    const auto [entry, is_new] = layers.try_emplace(layer.ptr);
    if (is_new)
        entry->second = su_text(layer, SULayerGetName);
    return entry->second;
}

gltf::json model_nodes::node_for(SUDrawingElementRef element, const std::string& name, const walked_place& at) {
    SULayerRef layer = SU_INVALID;
    SUDrawingElementGetLayer(element, &layer);
    gltf::json node = {{"name", name}, {"extras", {{"layer", layer_name(layer)}}}};
    if (rules.is_hidden(element, at))
        node["extras"]["hidden"] = true;
    if (attributes) {
        const gltf::json found = attributes_json(SUDrawingElementToEntity(element));
        if (!found.is_null())
            node["extras"]["attributes"] = found;
    }
    return node;
}

std::size_t model_nodes::add_placed(gltf::json node, const gltf::frame& where, const model_mesh& mesh,
                                    const std::vector<std::size_t>& children) {
    const gltf::node_placement placement = gltf::placement_of(where);
    gltf::json inner;
    gltf::json& holder = placement.is_sheared ? inner : node;
    if (mesh.number)
        holder["mesh"] = *mesh.number;
    if (!children.empty())
        holder["children"] = children;
    gltf::place(node, placement);
    if (placement.is_sheared) {
        inner["rotation"] = gltf::rotation_json(placement.inner_rotation);
        node["children"] = {writer.add(gltf::list::nodes, inner)};
    }
    count(mesh);
    return writer.add(gltf::list::nodes, node);
}

void model_nodes::add_instance(SUComponentInstanceRef instance, const walked_place& at, std::vector<std::size_t>& to) {
    const SUDrawingElementRef element = SUComponentInstanceToDrawingElement(instance);
    if (rules.is_left_out(element, at))
        return;
    SUComponentDefinitionRef definition = SU_INVALID;
    SUTransformation transform{};
    SUComponentInstanceGetDefinition(instance, &definition);
    SUComponentInstanceGetTransform(instance, &transform);
    const definition_facts& facts = facts_of(definition);
    const walked_place inner = rules.inside(element, at);
    const std::vector<std::size_t> children = add_content(facts.inside, inner);
    const std::string own = su_text(instance, SUComponentInstanceGetName);
    ++counts.placements;
    to.push_back(add_placed(node_for(element, own.empty() ? facts.name : own, at), frame_of(transform),
                            meshes.mesh_of(facts.inside, inner, facts.name, facts.extras), children));
}

void model_nodes::add_image(SUImageRef image, const walked_place& at, std::vector<std::size_t>& to) {
    const SUDrawingElementRef element = SUImageToDrawingElement(image);
    if (rules.is_left_out(element, at))
        return;
    SUTransformation transform{};
    SUImageGetTransform(image, &transform);
    ++counts.images;
    to.push_back(add_placed(node_for(element, su_text(image, SUImageGetFileName), at), frame_of(transform),
                            meshes.mesh_of(image), {}));
}

// The node lies in the plane, its z axis along the normal.
void model_nodes::add_plane(SUSectionPlaneRef plane, std::size_t number, std::vector<std::size_t>& to) {
    SUPlane3D p{};
    bool active = false;
    SUSectionPlaneGetPlane(plane, &p);
    SUSectionPlaneIsActive(plane, &active);
    const std::string name = section_plane_name(number);
    gltf::json node = {{"name", name}, {"extras", {{"section_plane", true}, {"name", name}, {"active", active}}}};
    gltf::node_placement where;
    for (std::size_t i = 0; i < 3; ++i)
        where.translation[i] = gltf::short_number(-p.d * (i == 0 ? p.a : i == 1 ? p.b : p.c) * metres_in_an_inch);
    where.rotation = gltf::rotation_looking({-p.a, -p.b, -p.c}, {0, 0, 1});
    gltf::place(node, where);
    to.push_back(writer.add(gltf::list::nodes, node));
}

std::vector<std::size_t> model_nodes::add_content(SUEntitiesRef list, const walked_place& at) {
    std::vector<std::size_t> nodes;
    for (const SUGroupRef group : su_list(list, SUEntitiesGetNumGroups, SUEntitiesGetGroups)) {
        if (writer.has_failed())
            return nodes;
        add_instance(SUGroupToComponentInstance(group), at, nodes);
    }
    for (const SUComponentInstanceRef instance : su_list(list, SUEntitiesGetNumInstances, SUEntitiesGetInstances)) {
        if (writer.has_failed())
            return nodes;
        add_instance(instance, at, nodes);
    }
    for (const SUImageRef image : su_list(list, SUEntitiesGetNumImages, SUEntitiesGetImages))
        add_image(image, at, nodes);
    std::size_t number = 0;
    for (const SUSectionPlaneRef plane : su_list(list, SUEntitiesGetNumSectionPlanes, SUEntitiesGetSectionPlanes))
        if (++number; !rules.is_left_out(SUSectionPlaneToDrawingElement(plane), at))
            add_plane(plane, number, nodes);
    return nodes;
}
