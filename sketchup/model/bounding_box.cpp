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

box_cache::kept_box& box_cache::kept_of(const entity_list& list) {
    return &list == &model_.root ? root_ : definitions_[number_of(model_.definitions, &list)];
}

// The content of what a placement places; null without a definition.
const entity_list* box_cache::placed_list(const placement& p) const {
    return p.definition < model_.definitions.size() ? &model_.definitions[p.definition].entities : nullptr;
}

template<typename Visit>
void box_cache::for_each_placement(const entity_list& list, const Visit& visit) const {
    for (const std::vector<index>* kind : {&list.groups, &list.instances, &list.images}) {
        for (const index p : *kind) {
            visit(model_.placements[p]);
        }
    }
}

// Definitions nest thousands deep in a file made for it, hence a list of what is to be done and no recursion: a list
// waits on top of the pile until those that it places are known.
box box_cache::of_list(const entity_list& list) {
    std::vector<const entity_list*> waiting = {&list};
    while (!waiting.empty()) {
        const entity_list& top = *waiting.back();
        const std::size_t before = waiting.size();
        if (!kept_of(top).known) {
            for_each_placement(top, [&](const placement& p) {
                const entity_list* inner = placed_list(p);
                if (inner != nullptr && !kept_of(*inner).known) {
                    waiting.push_back(inner);
                }
            });
        }
        if (waiting.size() == before) {
            waiting.pop_back();
            if (!kept_of(top).known) {
                kept_of(top) = {box_of_content(top), true};
            }
        }
    }
    return kept_of(list).value;
}

box box_cache::box_of_content(const entity_list& list) {
    box found;
    include_geometry(model_, list, as_it_is, found);
    for_each_placement(list, [&](const placement& p) { include_placement(p, found); });
    return found;
}

box box_cache::of_placement(const placement& p) {
    kept_box& kept = placements_[number_of(model_.placements, &p)];
    if (!kept.known) {
        const entity_list* content = placed_list(p);
        if (content != nullptr) {
            of_list(*content);
            include_placement(p, kept.value);
        }
        kept.known = true;
    }
    return kept.value;
}

// The boxes of all that the placement holds must be known.
void box_cache::include_placement(const placement& placed, box& found) {
    pending_.clear();
    const auto add = [this](const placement& p, const transform& outer) {
        const entity_list* list = placed_list(p);
        if (list != nullptr) {
            pending_.push_back({list, compose(outer, p.transform)});
        }
    };
    add(placed, identity_transform);
    while (!pending_.empty()) {
        const placed_content content = pending_.back();
        pending_.pop_back();
        const transform& t = content.placed;
        const entity_list& list = *content.list;
        const box around = transformed_box(t, kept_of(list).value);
        if (around.is_empty() || holds(found, around)) {
            continue;
        }
        if (maps_axes_to_axes(t) || !spend(1 + 2 * list.edges.size() + 4 * list.faces.size())) {
            include(found, around);
            continue;
        }
        include_geometry(
            model_, list, [&t](const vec3& point) { return transform_point(t, point); }, found);
        for_each_placement(list, [&](const placement& p) { add(p, t); });
    }
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
