#include "tools/skp_glb/model_nodes.h"

#include "tools/gltf/numbers.h"
#include "tools/model_opening/su_lists.h"
#include "tools/skp_glb/attributes_json.h"

#include <array>
#include <cmath>
#include <optional>

namespace {

using gltf::metres_in_an_inch;

gltf::double3 turned(const gltf::frame& by, const gltf::double3& v) {
    gltf::double3 result{};
    for (std::size_t i = 0; i < 3; ++i)
        result[i] = by.axes[0][i] * v[0] + by.axes[1][i] * v[1] + by.axes[2][i] * v[2];
    return result;
}

gltf::double3 moved(const gltf::frame& by, const gltf::double3& p) {
    const gltf::double3 t = turned(by, p);
    return {t[0] + by.origin[0], t[1] + by.origin[1], t[2] + by.origin[2]};
}

gltf::frame within(const gltf::frame& outer, const gltf::frame& inner) {
    gltf::frame result;
    for (std::size_t axis = 0; axis < 3; ++axis)
        result.axes[axis] = turned(outer, inner.axes[axis]);
    result.origin = moved(outer, inner.origin);
    return result;
}

gltf::double3 cross(const gltf::double3& a, const gltf::double3& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

double dot(const gltf::double3& a, const gltf::double3& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

// A plane in another space, a, b, c, d with a unit normal. Normals go by the cross products of the axes, turned round
// where the map mirrors. Nothing if the map leaves no plane.
std::optional<std::array<double, 4>> placed_plane(const gltf::frame& by, const gltf::double3& normal,
                                                  const gltf::double3& point) {
    const auto& [x, y, z] = by.axes;
    const gltf::frame normals{{cross(y, z), cross(z, x), cross(x, y)}, {}};
    const gltf::double3 n = turned(normals, normal);
    const double length = std::sqrt(dot(n, n)) * (dot(x, cross(y, z)) < 0 ? -1 : 1);
    if (length == 0 || !std::isfinite(length))
        return std::nullopt;
    const gltf::double3 unit = {n[0] / length, n[1] / length, n[2] / length};
    return std::array<double, 4>{unit[0], unit[1], unit[2], -dot(unit, moved(by, point))};
}

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

void model_nodes::add_instance(SUComponentInstanceRef instance, const walked_place& at, const gltf::frame& world,
                               std::vector<std::size_t>& to) {
    const SUDrawingElementRef element = SUComponentInstanceToDrawingElement(instance);
    if (rules.is_left_out(element, at))
        return;
    SUComponentDefinitionRef definition = SU_INVALID;
    SUTransformation transform{};
    SUComponentInstanceGetDefinition(instance, &definition);
    SUComponentInstanceGetTransform(instance, &transform);
    const definition_facts& facts = facts_of(definition);
    const walked_place inner = rules.inside(element, at);
    const gltf::frame own_place = frame_of(transform);
    const std::vector<std::size_t> children = add_content(facts.inside, inner, within(world, own_place));
    const std::string own = su_text(instance, SUComponentInstanceGetName);
    ++counts.placements;
    to.push_back(add_placed(node_for(element, own.empty() ? facts.name : own, at), own_place,
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

// The node lies in the plane, its z axis along the normal. The host's calls have no word for what a plane is called.
void model_nodes::add_plane(SUSectionPlaneRef plane, const gltf::frame& world, std::vector<std::size_t>& to) {
    SUPlane3D p{};
    bool active = false;
    SUSectionPlaneGetPlane(plane, &p);
    SUSectionPlaneIsActive(plane, &active);
    const gltf::double3 normal = {p.a, p.b, p.c};
    gltf::double3 point{};
    for (std::size_t i = 0; i < 3; ++i)
        point[i] = -p.d * normal[i] * metres_in_an_inch;
    const auto placed = placed_plane(world, normal, point);
    if (!placed)
        return;
    const std::string name = "section plane " + std::to_string(planes.size() + 1);
    gltf::json numbers = gltf::json::array();
    for (const double each : *placed)
        numbers.push_back(gltf::short_number(each));
    planes.push_back({{"name", name}, {"plane", numbers}});
    gltf::json node = {{"name", name}, {"extras", {{"section_plane", true}, {"name", name}, {"active", active}}}};
    gltf::node_placement where;
    for (std::size_t i = 0; i < 3; ++i)
        where.translation[i] = gltf::short_number(point[i]);
    where.rotation = gltf::rotation_looking({-p.a, -p.b, -p.c}, {0, 0, 1});
    gltf::place(node, where);
    to.push_back(writer.add(gltf::list::nodes, node));
}

std::vector<std::size_t> model_nodes::add_content(SUEntitiesRef list, const walked_place& at,
                                                  const gltf::frame& world) {
    std::vector<std::size_t> nodes;
    for (const SUSectionPlaneRef plane : su_list(list, SUEntitiesGetNumSectionPlanes, SUEntitiesGetSectionPlanes))
        if (!rules.is_left_out(SUSectionPlaneToDrawingElement(plane), at))
            add_plane(plane, world, nodes);
    for (const SUGroupRef group : su_list(list, SUEntitiesGetNumGroups, SUEntitiesGetGroups)) {
        if (writer.has_failed())
            return nodes;
        add_instance(SUGroupToComponentInstance(group), at, world, nodes);
    }
    for (const SUComponentInstanceRef instance : su_list(list, SUEntitiesGetNumInstances, SUEntitiesGetInstances)) {
        if (writer.has_failed())
            return nodes;
        add_instance(instance, at, world, nodes);
    }
    for (const SUImageRef image : su_list(list, SUEntitiesGetNumImages, SUEntitiesGetImages))
        add_image(image, at, nodes);
    return nodes;
}
