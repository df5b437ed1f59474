#include "shapes.h"

#include "sketchup/model/vector_math.h"

namespace sketchup::test {

index shapes::vertex(const vec3& position) {
    for (index i = 0; i < model.vertices.size(); ++i) {
        if (model.vertices[i].position == position) {
            return i;
        }
    }
    model.vertices.emplace_back().position = position;
    return static_cast<index>(model.vertices.size() - 1);
}

index shapes::edge(const vec3& from, const vec3& to) {
    const index start = vertex(from);
    const index end = vertex(to);
    for (index i = 0; i < model.edges.size(); ++i) {
        const sketchup::edge& e = model.edges[i];
        if ((e.start == start && e.end == end) || (e.start == end && e.end == start)) {
            return i;
        }
    }
    sketchup::edge& e = model.edges.emplace_back();
    e.start = start;
    e.end = end;
    return static_cast<index>(model.edges.size() - 1);
}

sketchup::face& shapes::face(const std::vector<points>& loops, const vec3& normal) {
    sketchup::face f;
    f.plane = {normal.x, normal.y, normal.z, -dot(normal, loops.front().front())};
    f.loops = {static_cast<index>(model.loops.size()), static_cast<index>(loops.size())};
    for (const points& corners : loops) {
        model.loops.push_back({{static_cast<index>(model.edge_uses.size()), static_cast<index>(corners.size())}});
        for (std::size_t i = 0; i < corners.size(); ++i) {
            const index e = edge(corners[i], corners[(i + 1) % corners.size()]);
            model.edge_uses.push_back({e, model.edges[e].start != vertex(corners[i]), 0});
        }
    }
    model.root.faces.push_back(static_cast<index>(model.faces.size()));
    model.faces.push_back(f);
    return model.faces.back();
}

index shapes::definition() {
    model.definitions.emplace_back();
    return static_cast<index>(model.definitions.size() - 1);
}

index shapes::place(entity_list& list, index definition, const transform& t) {
    placement& p = model.placements.emplace_back(entity_kind::component_instance);
    p.definition = definition;
    p.transform = t;
    list.instances.push_back(static_cast<index>(model.placements.size() - 1));
    return list.instances.back();
}

points in_plane_of(const vec3& normal, const points& flat) {
    const vec3 aside = std::abs(normal.z) < 0.9 ? vec3{0, 0, 1} : vec3{1, 0, 0};
    const vec3 x = normalized_or(cross(aside, normal), {});
    const vec3 y = cross(normal, x);
    points placed;
    for (const vec3& p : flat) {
        placed.push_back(x * p.x + y * p.y + normal * p.z);
    }
    return placed;
}

} // namespace sketchup::test
