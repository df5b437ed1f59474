// Faces, loops, edges, vertices and curves in the classic container.

#include "sketchup/model/loop_corners.h"
#include "sketchup/model/vector_math.h"
#include "sketchup/skp/writer/classic_bodies.h"

#include <cmath>
#include <numbers>

namespace skp {

using sketchup::index;
using sketchup::no_index;
using sketchup::vec3;

namespace {

void mention_vertex(classic_output& c, index vertex) {
    const sketchup::vertex& v = c.model.vertices[vertex];
    c.out.object("CVertex", &v, [&] {
        write_entity(c, v);
        c.out.v3(v.position);
    });
}

void write_curve(classic_output& c, const sketchup::curve& curve) {
    object_archive& out = c.out;
    write_entity(c, curve);
    out.boolean(curve.is_polygon);
    out.u32(c.edges_of_curves[static_cast<std::size_t>(&curve - c.model.curves.data())]);
    if (!curve.is_arc)
        return;
    out.v3(curve.center);
    out.v3(curve.normal);
    out.v3(curve.x_axis);
    out.f64(curve.start_angle);
    out.f64(curve.end_angle);
    out.v3(curve.y_axis);
}

void mention_curve(classic_output& c, index curve) {
    const sketchup::curve* made = curve == no_index ? nullptr : &c.model.curves[curve];
    const bool is_arc = made != nullptr && made->is_arc;
    c.out.object(is_arc ? "CArcCurve" : "CCurve", made, [&] { write_curve(c, *made); });
}

// How far the loop turns to the left between two steps, as an angle within half a turn.
double turn(const vec3& before, const vec3& behind, const vec3& normal) {
    return std::atan2(dot(cross(before, behind), normal), dot(before, behind));
}

void mention_loop(classic_output& c, index loop_index, const vec3& normal, bool is_outer) {
    object_archive& out = c.out;
    const sketchup::loop& loop = c.model.loops[loop_index];
    const auto write_use = [&](const sketchup::edge_use& use) {
        sketchup::entity own(sketchup::entity_kind::entities); // of no kind that is given an id
        own.persistent_id = use.persistent_id;
        write_entity(c, own);
        mention_edge(c, use.edge);
        out.boolean(use.reversed);
        out.object("CLoop", &loop, [] {}); // back to the loop being written
    };
    out.object("CLoop", &loop, [&] {
        write_plain_entity(c);
        out.boolean(is_outer);
        out.boolean(is_convex(c.model, loop, normal, is_outer));
        for (index i = 0; i < loop.uses.count; ++i) {
            const sketchup::edge_use& use = c.model.edge_uses[loop.uses.first + i];
            out.object("CEdgeUse", [&] { write_use(use); });
        }
        out.null();
    });
}

} // namespace

void write_drawing_element(classic_output& c, const sketchup::drawing_element& e, bool soft, bool smooth, bool locked,
                           const sketchup::texture_mapping* mapping) {
    object_archive& out = c.out;
    write_entity(c, e, mapping);
    mention_material(c, e.material);
    out.boolean(e.hidden);
    out.boolean(e.casts_shadows);
    out.boolean(e.receives_shadows);
    out.boolean(soft);
    out.boolean(smooth);
    out.boolean(locked);
    mention_layer(c, e.layer);
}

bool is_convex(const sketchup::model& m, const sketchup::loop& loop, const vec3& normal, bool is_outer) {
    constexpr double straight = 1e-9; // radians
    const index corners = loop.uses.count;
    if (corners == 0)
        return false;
    const auto corner = [&](index i) { return sketchup::corner_position(m, loop.uses.first + i % corners); };
    double sum = 0;
    for (index i = 0; i < corners; ++i) {
        const double angle = turn(corner(i + 1) - corner(i), corner(i + 2) - corner(i + 1), normal);
        const double to_inside = is_outer ? angle : -angle; // a hole runs the other way round
        if (!(to_inside > straight))
            return false;
        sum += to_inside;
    }
    return sum < 3 * std::numbers::pi; // one round is two, and a star goes round twice
}

void mention_edge(classic_output& c, index edge) {
    const sketchup::edge& e = c.model.edges[edge];
    c.out.object("CEdge", &e, [&] {
        write_drawing_element(c, e, e.soft, e.smooth);
        mention_vertex(c, e.start);
        mention_vertex(c, e.end);
        mention_curve(c, e.curve);
    });
}

void mention_face(classic_output& c, index face) {
    object_archive& out = c.out;
    const sketchup::face& f = c.model.faces[face];
    const sketchup::texture_mapping* mapping =
        f.texture_mapping == no_index ? nullptr : &c.model.texture_mappings[f.texture_mapping];
    out.object("CFace", &f, [&] {
        write_drawing_element(c, f, false, false, false, mapping);
        for (const double number : {f.plane.a, f.plane.b, f.plane.c, f.plane.d})
            out.f64(number);
        out.u32(f.loops.count);
        for (index i = 0; i < f.loops.count; ++i)
            mention_loop(c, f.loops.first + i, f.plane.normal(), i == 0);
        mention_material(c, f.back_material);
    });
}

} // namespace skp
