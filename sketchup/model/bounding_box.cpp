#include "sketchup/model/bounding_box.h"

#include "sketchup/model/loop_corners.h"
#include "sketchup/model/vector_math.h"

#include <algorithm>

namespace sketchup {

namespace {

template<typename Place>
void include_face(const model& m, const face& f, const Place& place, box& found) {
    for (index l = 0; l < f.loops.count; ++l) {
        const index_range uses = m.loops[f.loops.first + l].uses;
        for (index corner = uses.first; corner < uses.first + uses.count; ++corner) {
            include(found, place(corner_position(m, corner)));
        }
    }
}

template<typename Place>
void include_edge(const model& m, const edge& e, const Place& place, box& found) {
    include(found, place(vertex_position(m, e.start)));
    include(found, place(vertex_position(m, e.end)));
}

template<typename Place>
void include_geometry(const model& m, const entity_list& list, const Place& place, box& found) {
    for (const index e : list.edges) {
        include_edge(m, m.edges[e], place, found);
    }
    for (const index f : list.faces) {
        include_face(m, m.faces[f], place, found);
    }
}

constexpr auto as_it_is = [](const vec3& p) { return p; };

// Whether every coordinate of a placed point hangs on one coordinate of the point, so that a box stays exact.
bool maps_axes_to_axes(const transform& t) {
    for (std::size_t row = 0; row < 3; ++row) {
        if ((t[row] != 0) + (t[4 + row] != 0) + (t[8 + row] != 0) > 1) {
            return false;
        }
    }
    return true;
}

box transformed_box(const transform& t, const box& b) {
    box result;
    if (b.is_empty()) {
        return result;
    }
    for (const double x : {b.minimum.x, b.maximum.x}) {
        for (const double y : {b.minimum.y, b.maximum.y}) {
            for (const double z : {b.minimum.z, b.maximum.z}) {
                include(result, transform_point(t, {x, y, z}));
            }
        }
    }
    return result;
}

bool holds(const box& outer, const box& inner) {
    return outer.minimum.x <= inner.minimum.x && outer.minimum.y <= inner.minimum.y &&
           outer.minimum.z <= inner.minimum.z && inner.maximum.x <= outer.maximum.x &&
           inner.maximum.y <= outer.maximum.y && inner.maximum.z <= outer.maximum.z;
}

// Where a plane meets the lines along one axis through the edges of a box. Of a plane across the axis the other
// coordinates drop out of the sum, so that the crossing is exactly -d / n.
void include_crossings(const plane& p, const box& around, double vec3::*along, box& found) {
    for (const double x : {around.minimum.x, around.maximum.x}) {
        for (const double y : {around.minimum.y, around.maximum.y}) {
            for (const double z : {around.minimum.z, around.maximum.z}) {
                vec3 point{x, y, z};
                point.*along = 0;
                const double normal = p.normal().*along;
                point.*along = -(dot(p.normal(), point) + p.d) / normal;
                if (point.*along >= around.minimum.*along && point.*along <= around.maximum.*along) {
                    include(found, point);
                }
            }
        }
    }
}

// The number of an element of an array of structs from the address of one of its members.
template<typename Element>
std::size_t number_of(const std::vector<Element>& array, const void* inside) {
    const auto* const begin = reinterpret_cast<const char*>(array.data());
    return static_cast<std::size_t>(static_cast<const char*>(inside) - begin) / sizeof(Element);
}

} // namespace

box face_box(const model& m, const face& f) {
    box result;
    include_face(m, f, as_it_is, result);
    return result;
}

box edge_box(const model& m, const edge& e) {
    box result;
    include_edge(m, e, as_it_is, result);
    return result;
}

box plane_box(const plane& p, const box& around) {
    box result;
    if (!around.is_empty()) {
        for (double vec3::*along : {&vec3::x, &vec3::y, &vec3::z}) {
            if (p.normal().*along != 0) {
                include_crossings(p, around, along, result);
            }
        }
    }
    if (result.is_empty()) {
        const double square = dot(p.normal(), p.normal());
        const vec3 nearest = p.normal() * (-p.d / square);
        include(result, is_finite(nearest) ? nearest : vec3{});
    }
    return result;
}

box_cache::box_cache(const model& m, std::size_t exact_visits)
    : model_(m), visits_left_(exact_visits), definitions_(m.definitions.size()), placements_(m.placements.size()) {}

bool box_cache::spend(std::size_t visits) {
    const bool enough = visits <= visits_left_;
    visits_left_ = enough ? visits_left_ - visits : 0;
    return enough;
}

box box_cache::of_list(const entity_list& list) {
    kept_box& kept = &list == &model_.root ? root_ : definitions_[number_of(model_.definitions, &list)];
    if (!kept.known) {
        kept = {box_of_content(list), true};
    }
    return kept.value;
}

box box_cache::of_definition(index definition) {
    return of_list(model_.definitions[definition].entities);
}

box box_cache::box_of_content(const entity_list& list) {
    box found;
    include_geometry(model_, list, as_it_is, found);
    include_placements(list, identity_transform, found);
    return found;
}

box box_cache::of_placement(const placement& p) {
    kept_box& kept = placements_[number_of(model_.placements, &p)];
    if (!kept.known) {
        box found;
        include_placement(p, identity_transform, found);
        kept = {found, true};
    }
    return kept.value;
}

void box_cache::include_placements(const entity_list& list, const transform& outer, box& found) {
    for (const std::vector<index>* kind : {&list.groups, &list.instances, &list.images}) {
        for (const index p : *kind) {
            include_placement(model_.placements[p], outer, found);
        }
    }
}

void box_cache::include_placement(const placement& p, const transform& outer, box& found) {
    if (p.definition >= model_.definitions.size()) {
        return;
    }
    const transform t = compose(outer, p.transform);
    const entity_list& list = model_.definitions[p.definition].entities;
    const box around = transformed_box(t, of_list(list));
    if (around.is_empty() || holds(found, around)) {
        return;
    }
    if (maps_axes_to_axes(t) || !spend(1 + 2 * list.edges.size() + 4 * list.faces.size())) {
        include(found, around);
        return;
    }
    include_geometry(
        model_, list, [&t](const vec3& point) { return transform_point(t, point); }, found);
    include_placements(list, t, found);
}

box box_cache::of_section_plane(const section_plane& s) {
    const entity_list* list = list_of_section_plane(number_of(model_.section_planes, &s));
    return plane_box(s.plane, list == nullptr ? box{} : of_list(*list));
}

const entity_list* box_cache::list_of_section_plane(std::size_t section_plane) {
    if (lists_of_section_planes_.empty()) {
        lists_of_section_planes_.resize(model_.section_planes.size());
        const auto note = [this](const entity_list& list) {
            for (const index s : list.section_planes) {
                lists_of_section_planes_[s] = &list;
            }
        };
        note(model_.root);
        for (const component_definition& d : model_.definitions) {
            note(d.entities);
        }
    }
    return lists_of_section_planes_[section_plane];
}

} // namespace sketchup
