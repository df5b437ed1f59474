// Vertices, edges, curves, faces and section planes in the archive container.

#include "sketchup/model/vector_math.h"
#include "sketchup/skp/writer/modern_bodies.h"
#include "sketchup/skp/writer/modern_tags.h"

#include <array>

namespace skp {

namespace tag = modern::tag;

using sketchup::index;
using sketchup::no_index;

namespace {

// The bits of a drawing element's flags.
constexpr unsigned flag_hidden = 0x01;
constexpr unsigned flag_casts_shadows = 0x02;
constexpr unsigned flag_receives_shadows = 0x04;
constexpr unsigned flag_soft = 0x08;
constexpr unsigned flag_smooth = 0x10;
constexpr unsigned flag_locked = 0x20;

void write_loop(modern_output& o, const sketchup::loop& loop) {
    record_sink& out = o.out;
    out.record(tag::loop, [&] {
        out.record(tag::loop_uses, [&] {
            for (index i = 0; i < loop.uses.count; ++i) {
                const sketchup::edge_use& use = o.model.edge_uses[loop.uses.first + i];
                out.record(tag::edge_use, [&] {
                    out.id(tag::edge_use_edge, o.ids.of(&o.model.edges[use.edge]));
                    out.boolean(tag::edge_use_reversed, use.reversed);
                });
            }
        });
    });
}

void write_plane(record_sink& out, std::uint16_t number, const sketchup::plane& plane) {
    out.doubles(number, std::array{plane.a, plane.b, plane.c, plane.d});
}

void write_curve_base(modern_output& o, const sketchup::curve& c, const std::vector<index>& edges) {
    record_sink& out = o.out;
    out.record(tag::curve, [&] {
        write_entity(o, c, o.ids.of(&c));
        out.i32(tag::curve_edge_count, static_cast<std::int32_t>(edges.size()));
        out.boolean(tag::curve_polygon, c.is_polygon);
        out.id(tag::curve_first_edge, o.ids.of(&o.model.edges[edges.front()]));
        out.id(tag::curve_last_edge, o.ids.of(&o.model.edges[edges.back()]));
    });
}

} // namespace

void write_drawing_element(modern_output& o, const sketchup::drawing_element& e, std::uint64_t id, drawing_flags flags,
                           const sketchup::texture_mapping* mapping) {
    record_sink& out = o.out;
    const auto bit = [](unsigned mask, bool is_set) { return is_set ? mask : 0U; };
    const unsigned bits = bit(flag_hidden, e.hidden) | bit(flag_casts_shadows, e.casts_shadows) |
                          bit(flag_receives_shadows, e.receives_shadows) | bit(flag_soft, flags.soft) |
                          bit(flag_smooth, flags.smooth) | bit(flag_locked, flags.locked);
    out.record(tag::drawing_element, [&] {
        write_entity(o, e, id, mapping);
        if (e.material != no_index)
            out.id(tag::drawing_material, o.ids.of(&o.model.materials[e.material]));
        if (e.layer != 0) // the default layer is not named
            out.id(tag::drawing_layer, o.ids.of(&o.model.layers[e.layer]));
        out.u8(tag::drawing_flags, static_cast<std::uint8_t>(bits));
    });
}

void write_vertex(modern_output& o, const sketchup::vertex& v) {
    o.out.record(tag::vertex, [&] {
        write_entity(o, v, o.ids.of(&v));
        o.out.v3(tag::vertex_position, v.position);
    });
}

void write_edge(modern_output& o, const sketchup::edge& e) {
    record_sink& out = o.out;
    out.record(tag::edge, [&] {
        write_drawing_element(o, e, o.ids.of(&e), {e.soft, e.smooth, false});
        out.id(tag::edge_start, o.ids.of(&o.model.vertices[e.start]));
        out.id(tag::edge_end, o.ids.of(&o.model.vertices[e.end]));
        if (e.curve != no_index)
            out.id(tag::edge_curve, o.ids.of(&o.model.curves[e.curve]));
    });
}

void write_face(modern_output& o, const sketchup::face& f) {
    record_sink& out = o.out;
    const sketchup::texture_mapping* mapping =
        f.texture_mapping == no_index ? nullptr : &o.model.texture_mappings[f.texture_mapping];
    out.record(tag::face, [&] {
        write_drawing_element(o, f, o.ids.of(&f), {}, mapping);
        if (f.back_material != no_index)
            out.id(tag::face_back_material, o.ids.of(&o.model.materials[f.back_material]));
        write_plane(out, tag::face_plane, f.plane);
        out.record(tag::face_loops, [&] {
            for (index i = 0; i < f.loops.count; ++i)
                write_loop(o, o.model.loops[f.loops.first + i]);
        });
    });
}

void write_section_plane(modern_output& o, const sketchup::section_plane& s) {
    record_sink& out = o.out;
    out.record(tag::section_plane, [&] {
        write_drawing_element(o, s, o.ids.of(&s));
        write_plane(out, tag::section_plane_plane, s.plane);
        out.text(tag::section_plane_name, s.name);
        out.text(tag::section_plane_symbol, s.symbol);
    });
}

void write_curve(modern_output& o, const sketchup::curve& c, const std::vector<index>& edges) {
    if (!c.is_arc) {
        write_curve_base(o, c, edges);
        return;
    }
    const double offset = -sketchup::dot(c.normal, c.center); // of the plane of the arc
    o.out.record(tag::arc, [&] {
        write_curve_base(o, c, edges);
        o.out.doubles(tag::arc_figures,
                      std::array{c.center.x, c.center.y, c.center.z, c.normal.x, c.normal.y, c.normal.z, offset,
                                 c.x_axis.x, c.x_axis.y, c.x_axis.z, c.y_axis.x, c.y_axis.y, c.y_axis.z,
                                 sketchup::length(c.x_axis), c.start_angle, c.end_angle});
    });
}

} // namespace skp
