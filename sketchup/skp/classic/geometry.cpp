// Vertices, edges, curves, loops, faces and section planes.

#include "sketchup/skp/classic/model_reader.h"

namespace skp {
namespace {

constexpr class_set curves = {object_class::curve, object_class::arc_curve};

} // namespace

// CVertex
void model_reader::read_vertex(std::uint32_t slot) {
    sketchup::vertex v = begin(m_.vertices, slot);
    read_entity(v);
    v.position = in_.v3();
    keep(m_.vertices, slot, v);
}

// CEdge. The vertices come before the curve.
void model_reader::read_edge(std::uint32_t slot) {
    sketchup::edge e = begin(m_.edges, slot);
    const drawing_fields fields = read_drawing(e);
    e.soft = fields.soft;
    e.smooth = fields.smooth;
    e.start = required_ref(object_class::vertex).place;
    e.end = required_ref(object_class::vertex).place;
    if (layout_.edge >= 2)
        e.curve = ref(curves).place;
    keep(m_.edges, slot, e);
}

// CCurve. In old files the edges that it names may be introduced by it and refer back to it.
void model_reader::read_curve(std::uint32_t slot) {
    sketchup::curve c = begin(m_.curves, slot);
    read_curve_fields(c);
    keep(m_.curves, slot, c);
}

// CArcCurve
void model_reader::read_arc_curve(std::uint32_t slot) {
    sketchup::curve c = begin(m_.curves, slot);
    read_curve_fields(c);
    c.is_arc = true;
    c.center = in_.v3();
    c.normal = in_.v3();
    c.x_axis = in_.v3();
    c.start_angle = in_.f64();
    c.end_angle = in_.f64();
    c.y_axis = in_.v3();
    keep(m_.curves, slot, c);
}

void model_reader::read_curve_fields(sketchup::curve& c) {
    read_entity(c);
    if (layout_.curve == 3) {
        ref(object_class::edge); // first
        ref(object_class::edge); // last
    }
    c.is_polygon = in_.boolean();
    skip_numbers(1); // how many edges; they name the curve themselves
}

// CEdgeUse
void model_reader::read_edge_use(std::uint32_t) {
    sketchup::entity base(sketchup::entity_kind::edge);
    sketchup::edge_use use;
    read_entity(base);
    use.persistent_id = base.persistent_id;
    use.edge = required_ref(object_class::edge).place;
    use.reversed = in_.boolean();
    const object_tag loop = in_.next_tag();
    if (loop.what != object_class::loop || loop.is_new || in_.place_of(loop.slot) != open_loop_)
        in_.fail("the loop of an edge use is not the one that holds it");
    m_.edge_uses.push_back(use);
}

// CLoop. Nothing inside a loop can introduce another one, so its uses are neighbours.
void model_reader::read_loop(std::uint32_t slot) {
    const auto place = static_cast<index>(m_.loops.size());
    in_.set_place(slot, place);
    m_.loops.emplace_back();
    open_loop_ = place;
    skip_entity();
    in_.boolean(); // outer
    in_.boolean(); // convex
    const auto first = static_cast<index>(m_.edge_uses.size());
    for (;;) {
        const object_tag tag = in_.next_tag();
        if (tag.what == object_class::none)
            break;
        if (tag.what != object_class::edge_use || !tag.is_new)
            fail_expected(object_class::edge_use, tag.what);
        read_object(tag);
    }
    m_.loops[place].uses = {first, static_cast<index>(m_.edge_uses.size()) - first};
    if (m_.loops[place].uses.count == 0)
        in_.fail("a loop without edges");
    open_loop_ = sketchup::no_index;
}

// CFace
void model_reader::read_face(std::uint32_t slot) {
    sketchup::face f = begin(m_.faces, slot);
    f.texture_mapping = read_drawing(f).texture_mapping;
    f.plane = read_plane();
    f.loops = {static_cast<index>(m_.loops.size()), list_count()};
    if (f.loops.count == 0)
        in_.fail("a face without a loop");
    for (index i = 0; i < f.loops.count; ++i)
        introduced_here(object_class::loop);
    if (layout_.face >= 3)
        f.back_material = ref(object_class::material).place;
    keep(m_.faces, slot, f);
}

// CSectionPlane
void model_reader::read_section_plane(std::uint32_t slot) {
    sketchup::section_plane s = begin(m_.section_planes, slot);
    read_drawing(s);
    s.plane = read_plane();
    if (layout_.section_plane >= 3) {
        s.name = in_.text();
        s.symbol = in_.text();
    }
    keep(m_.section_planes, slot, s);
}

sketchup::plane model_reader::read_plane() {
    sketchup::plane p;
    p.a = in_.f64();
    p.b = in_.f64();
    p.c = in_.f64();
    p.d = in_.f64();
    return p;
}

} // namespace skp
