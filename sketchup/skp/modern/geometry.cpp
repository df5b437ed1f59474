// Vertices, curves, edges and faces with their loops.

#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"

namespace skp::modern {
namespace {

using sketchup::no_index;

constexpr std::int32_t use_positioned = 1;
constexpr std::int32_t use_projected = 2;

sketchup::side_mapping read_side_mapping(byte_cursor in) {
    sketchup::side_mapping side;
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        if (r.tag == tag::side_mapping_use) {
            const std::int32_t use = value.i32();
            side.positioned = (use & use_positioned) != 0;
            side.projected = (use & use_projected) != 0;
        } else if (r.tag == tag::side_mapping_matrix) {
            side.matrix = doubles_in<9>(value);
        } else if (r.tag == tag::side_mapping_direction) {
            side.direction = value.v3();
        }
    }
    return side;
}

} // namespace

// 2500
void model_data_reader::read_vertex(byte_cursor in, sketchup::entity_list&) {
    in.set_where("vertex");
    std::optional<byte_cursor> base, position;
    for (const record& r : records(in)) {
        if (r.tag == tag::entity)
            base = r.payload;
        else if (r.tag == tag::vertex_position)
            position = r.payload;
    }
    if (!base || !position)
        return;
    const auto place = static_cast<index>(m_.vertices.size());
    sketchup::vertex& v = m_.vertices.emplace_back();
    v.id = m_.give_id();
    read_entity(*base, v);
    v.position = position->v3();
    vertices_.insert(static_cast<std::uint64_t>(v.persistent_id), place);
}

// 19000
void model_data_reader::read_curve(byte_cursor in, sketchup::entity_list&) {
    sketchup::curve c;
    c.id = m_.give_id();
    read_curve_base(in, c);
    keep_curve(c);
}

// 19500
void model_data_reader::read_arc(byte_cursor in, sketchup::entity_list&) {
    in.set_where("arc");
    sketchup::curve c;
    c.id = m_.give_id();
    for (const record& r : records(in)) {
        if (r.tag == tag::curve) {
            read_curve_base(r.payload, c);
        } else if (r.tag == tag::arc_figures) {
            // Centre, plane, x axis, y axis, radius, start angle, end angle. The axes are as long as the radius.
            const auto n = doubles_in<16>(r.payload);
            c.is_arc = true;
            c.center = {n[0], n[1], n[2]};
            c.normal = {n[3], n[4], n[5]};
            c.x_axis = {n[7], n[8], n[9]};
            c.y_axis = {n[10], n[11], n[12]};
            c.start_angle = n[14];
            c.end_angle = n[15];
        }
    }
    keep_curve(c);
}

void model_data_reader::read_curve_base(byte_cursor in, sketchup::curve& c) {
    in.set_where("curve");
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        if (r.tag == tag::entity)
            read_entity(value, c);
        else if (r.tag == tag::curve_polygon)
            c.is_polygon = value.boolean();
    }
}

// Edges name their curve by its id, so one without an id has none.
void model_data_reader::keep_curve(const sketchup::curve& c) {
    if (c.persistent_id == 0)
        return;
    curves_.insert(static_cast<std::uint64_t>(c.persistent_id), static_cast<index>(m_.curves.size()));
    m_.curves.push_back(c);
}

// 3000
void model_data_reader::read_edge(byte_cursor in, sketchup::entity_list& list) {
    in.set_where("edge");
    index start = no_index, end = no_index, curve = no_index;
    std::optional<byte_cursor> drawing;
    for (const record& r : records(in)) {
        switch (r.tag) {
        case tag::drawing_element:
            drawing = r.payload;
            break;
        case tag::edge_start:
            start = vertices_.find(id_in(r.payload));
            break;
        case tag::edge_end:
            end = vertices_.find(id_in(r.payload));
            break;
        case tag::edge_curve:
            curve = curves_.find(id_in(r.payload));
            break;
        }
    }
    if (!drawing || start == no_index || end == no_index)
        return;
    const auto place = static_cast<index>(m_.edges.size());
    sketchup::edge& e = m_.edges.emplace_back();
    e.id = m_.give_id();
    const drawing_flags flags = read_drawing_element(*drawing, e);
    e.soft = flags.soft;
    e.smooth = flags.smooth;
    e.start = start;
    e.end = end;
    e.curve = curve;
    edges_.insert(static_cast<std::uint64_t>(e.persistent_id), place);
    list.edges.push_back(place);
}

// 3500. The loops come first: a face with an edge that is not there is left out as a whole.
void model_data_reader::read_face(byte_cursor in, sketchup::entity_list& list) {
    in.set_where("face");
    std::optional<byte_cursor> drawing, plane, loops, mapping;
    index back_material = no_index;
    for (const record& r : records(in)) {
        switch (r.tag) {
        case tag::drawing_element:
            drawing = r.payload;
            break;
        case tag::face_plane:
            plane = r.payload;
            break;
        case tag::face_loops:
            loops = r.payload;
            break;
        case tag::face_back_material:
            back_material = materials_.find(id_in(r.payload));
            break;
        }
    }
    const auto first_loop = static_cast<index>(m_.loops.size());
    const std::size_t first_use = m_.edge_uses.size();
    if (!drawing || !plane || !loops || !read_loops(*loops)) {
        m_.loops.resize(first_loop);
        m_.edge_uses.resize(first_use);
        return;
    }
    const auto place = static_cast<index>(m_.faces.size());
    sketchup::face& f = m_.faces.emplace_back();
    f.id = m_.give_id();
    read_drawing_element(*drawing, f, &mapping);
    const auto numbers = doubles_in<4>(*plane);
    f.plane = {numbers[0], numbers[1], numbers[2], numbers[3]};
    f.loops = {first_loop, static_cast<index>(m_.loops.size()) - first_loop};
    f.back_material = back_material;
    if (mapping)
        f.texture_mapping = read_texture_mapping(*mapping);
    list.faces.push_back(place);
}

// Whether there are loops and all their edges are known.
bool model_data_reader::read_loops(byte_cursor in) {
    bool any = false;
    for (const record& r : records(in)) {
        if (r.tag != tag::loop)
            continue;
        if (!read_loop(r.payload))
            return false;
        any = true;
    }
    return any;
}

// 4500
bool model_data_reader::read_loop(byte_cursor in) {
    in.set_where("loop");
    const auto first = static_cast<index>(m_.edge_uses.size());
    const std::optional<byte_cursor> uses = descend(in, {tag::loop_uses});
    if (!uses)
        return false;
    for (const record& r : records(*uses)) {
        if (r.tag != tag::edge_use)
            continue;
        sketchup::edge_use& use = m_.edge_uses.emplace_back();
        for (const record& field : records(r.payload)) {
            byte_cursor value = field.payload;
            if (field.tag == tag::edge_use_edge)
                use.edge = edges_.find(id_in(value));
            else if (field.tag == tag::edge_use_reversed)
                use.reversed = value.boolean();
        }
        if (use.edge == no_index)
            return false;
    }
    const index count = static_cast<index>(m_.edge_uses.size()) - first;
    m_.loops.push_back({{first, count}});
    return count > 0;
}

// 10000
model_data_reader::index model_data_reader::read_texture_mapping(byte_cursor in) {
    in.set_where("texture mapping");
    const auto place = static_cast<index>(m_.texture_mappings.size());
    sketchup::texture_mapping& mapping = m_.texture_mappings.emplace_back();
    if (const auto front = descend(in, {tag::texture_mapping_front, tag::side_mapping}))
        mapping.front = read_side_mapping(*front);
    if (const auto back = descend(in, {tag::texture_mapping_back, tag::side_mapping}))
        mapping.back = read_side_mapping(*back);
    return place;
}

} // namespace skp::modern
