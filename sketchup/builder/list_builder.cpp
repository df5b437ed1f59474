// How geometry and placements enter an entity list that is being built.

#include "sketchup/builder/model_builder.h"
#include "sketchup/model/area_vector.h"
#include "sketchup/model/vector_math.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace sketchup {

namespace {

plane plane_of(std::span<const vec3> outline) {
    const vec3 normal = normalized_or(area_vector(outline), {0, 0, 1});
    return {normal.x, normal.y, normal.z, -dot(normal, outline[0])};
}

index size_of(const auto& array) {
    return static_cast<index>(array.size());
}

} // namespace

entity_list& list_builder::entities() const {
    return builder_->list_of(definition_);
}

index list_builder::vertex_at(const vec3& point) const {
    const auto key = [](double value) { return std::llround(value * 1e9); };
    const auto [found, is_new] =
        builder_->vertices_.try_emplace({definition_, key(point.x), key(point.y), key(point.z)}, no_index);
    if (is_new) {
        vertex v;
        v.position = point;
        found->second = builder_->add(builder_->model_->vertices, v);
    }
    return found->second;
}

edge_use list_builder::use_between(index from, index to) const {
    const auto [found, is_new] = builder_->edges_.try_emplace({std::min(from, to), std::max(from, to)}, no_index);
    if (is_new) {
        sketchup::edge e;
        e.start = from;
        e.end = to;
        found->second = builder_->add(builder_->model_->edges, e);
        entities().edges.push_back(found->second);
    }
    edge_use use;
    use.edge = found->second;
    use.reversed = builder_->model_->edges[use.edge].start != from;
    return use;
}

index list_builder::add_loop(std::span<const vec3> points) const {
    std::vector<index> corners;
    for (const vec3& point : points)
        corners.push_back(vertex_at(point));
    std::vector<edge_use> uses;
    for (std::size_t i = 0; i < corners.size(); ++i)
        uses.push_back(use_between(corners[i], corners[(i + 1) % corners.size()]));
    sketchup::model& m = *builder_->model_;
    m.loops.push_back({{size_of(m.edge_uses), size_of(uses)}});
    m.edge_uses.insert(m.edge_uses.end(), uses.begin(), uses.end());
    return size_of(m.loops) - 1;
}

entity_place list_builder::face(std::span<const vec3> outline, std::span<const std::vector<vec3>> holes) {
    sketchup::face f;
    f.plane = plane_of(outline);
    f.loops.first = add_loop(outline);
    f.loops.count = 1 + size_of(holes);
    for (std::vector<vec3> hole : holes) {
        if (dot(area_vector(hole), f.plane.normal()) > 0)
            std::reverse(hole.begin(), hole.end());
        add_loop(hole);
    }
    const index at = builder_->add(builder_->model_->faces, f);
    entities().faces.push_back(at);
    return {entity_kind::face, at};
}

entity_place list_builder::face(std::initializer_list<vec3> outline) {
    return face(std::span<const vec3>(outline.begin(), outline.size()));
}

entity_place list_builder::square(double side) {
    return face({{0, 0, 0}, {side, 0, 0}, {side, side, 0}, {0, side, 0}});
}

std::vector<entity_place> list_builder::box(const vec3& low, const vec3& high) {
    const auto corner = [&](int x, int y, int z) {
        return vec3{x != 0 ? high.x : low.x, y != 0 ? high.y : low.y, z != 0 ? high.z : low.z};
    };
    const vec3 a = corner(0, 0, 0), b = corner(1, 0, 0), c = corner(1, 1, 0), d = corner(0, 1, 0);
    const vec3 e = corner(0, 0, 1), f = corner(1, 0, 1), g = corner(1, 1, 1), h = corner(0, 1, 1);
    return {face({a, d, c, b}), face({e, f, g, h}), face({a, b, f, e}),
            face({b, c, g, f}), face({c, d, h, g}), face({d, a, e, h})};
}

entity_place list_builder::edge(const vec3& from, const vec3& to) {
    return {entity_kind::edge, use_between(vertex_at(from), vertex_at(to)).edge};
}

std::vector<entity_place> list_builder::edges_of_curve(curve made, std::span<const vec3> points) {
    const index at = builder_->add(builder_->model_->curves, made);
    std::vector<entity_place> edges;
    for (std::size_t i = 1; i < points.size(); ++i) {
        edges.push_back(edge(points[i - 1], points[i]));
        builder_->edge(edges.back()).curve = at;
    }
    return edges;
}

std::vector<entity_place> list_builder::polyline_curve(std::span<const vec3> points) {
    return edges_of_curve({}, points);
}

std::vector<entity_place> list_builder::arc(const vec3& center, const vec3& x_axis, const vec3& y_axis,
                                            double start_angle, double end_angle, int chords) {
    curve made;
    made.is_arc = true;
    made.center = center;
    made.x_axis = x_axis;
    made.y_axis = y_axis;
    made.normal = normalized_or(cross(x_axis, y_axis), {0, 0, 1});
    made.start_angle = start_angle;
    made.end_angle = end_angle;
    std::vector<vec3> points;
    for (int i = 0; i <= chords; ++i) {
        const double angle = start_angle + (end_angle - start_angle) * i / chords;
        points.push_back(center + x_axis * std::cos(angle) + y_axis * std::sin(angle));
    }
    return edges_of_curve(made, points);
}

entity_place list_builder::section_plane(const plane& where, bool active, std::string_view name) {
    sketchup::section_plane p;
    p.plane = where;
    p.name = name;
    const index at = builder_->add(builder_->model_->section_planes, std::move(p));
    entities().section_planes.push_back(at);
    if (active)
        entities().active_section_plane = at;
    return {entity_kind::section_plane, at};
}

entity_place list_builder::annotation(annotation_kind what) {
    sketchup::annotation a;
    a.what = what;
    const index at = builder_->add(builder_->model_->annotations, a);
    entities().annotations.push_back(at);
    return {entity_kind::annotation, at};
}

entity_place list_builder::place(entity_kind kind, index definition, const transform& where,
                                 std::string_view name) const {
    sketchup::placement p(kind);
    p.definition = definition;
    p.transform = where;
    p.name = name;
    return {kind, builder_->add(builder_->model_->placements, std::move(p))};
}

void list_builder::glue(entity_place placement, entity_place to) {
    entities().glue.push_back({{to.kind, to.at}, {placement.kind, placement.at}});
}

list_builder list_builder::group(std::string_view name, const transform& where) {
    const index made = builder_->add_definition("Group#" + std::to_string(builder_->model_->definitions.size() + 1),
                                                definition_kind::group);
    const entity_place placed = place(entity_kind::group, made, where, name);
    entities().groups.push_back(placed.at);
    return {*builder_, made, placed};
}

entity_place list_builder::copy_of_group(const list_builder& other, const transform& where) {
    const entity_place placed = place(entity_kind::group, other.definition_, where, {});
    entities().groups.push_back(placed.at);
    return placed;
}

entity_place list_builder::instance(const list_builder& component, const transform& where, std::string_view name) {
    const entity_place placed = place(entity_kind::component_instance, component.definition_, where, name);
    entities().instances.push_back(placed.at);
    return placed;
}

entity_place list_builder::image(index image_definition, const transform& where) {
    const entity_place placed = place(entity_kind::image, image_definition, where, {});
    builder_->placement(placed).casts_shadows = false;
    entities().images.push_back(placed.at);
    return placed;
}

} // namespace sketchup
