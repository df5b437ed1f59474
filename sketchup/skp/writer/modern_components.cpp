// Entity lists, definitions and placements in the archive container.

#include "sketchup/skp/modern/formats.h"
#include "sketchup/skp/writer/definition_order.h"
#include "sketchup/skp/writer/modern_bodies.h"
#include "sketchup/skp/writer/modern_tags.h"
#include "sketchup/skp/writer/usual_settings.h"
#include "sketchup/skp/writer/written_cameras.h"
#include "sketchup/skp/writer/written_guids.h"
#include "sketchup/skp/writer/written_lists.h"

#include <array>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace skp {

namespace tag = modern::tag;

using sketchup::entity_list;
using sketchup::index;
using sketchup::no_index;

namespace {

void write_placement(modern_output& o, index at) {
    record_sink& out = o.out;
    const sketchup::placement& p = o.model.placements[at];
    out.record(tag::placement, [&] {
        write_drawing_element(o, p, o.ids.of(&p), {false, false, p.locked});
        out.text(tag::placement_name, p.name);
        out.doubles(tag::placement_transform, sketchup::transform_to_file(p.transform));
        out.id(tag::placement_definition, o.ids.of(&o.model.definitions[p.definition]));
        out.raw(tag::placement_guid, written_guid(p.guid, guid_owner::placement, at));
    });
}

// What an entity list names only through its edges.
struct parts_of_list {
    std::vector<index> edges; // of the list, then those that only its faces name
    std::vector<index> vertices;
    std::vector<index> curves;
    std::unordered_map<index, std::vector<index>> edges_of_curves;
};

// Collects each index once, in the order of its first mention.
class gathered {
public:
    explicit gathered(std::vector<index>& into) : into_(into) {}
    void add(index one) {
        if (one != no_index && seen_.insert(one).second)
            into_.push_back(one);
    }

private:
    std::vector<index>& into_;
    std::unordered_set<index> seen_;
};

std::vector<index> edges_of(const sketchup::model& m, const entity_list& list) {
    std::vector<index> edges;
    gathered gather(edges);
    for (const index edge : list.edges)
        gather.add(edge);
    for (const index face : list.faces)
        for (index l = 0; l < m.faces[face].loops.count; ++l) {
            const sketchup::index_range uses = m.loops[m.faces[face].loops.first + l].uses;
            for (index u = 0; u < uses.count; ++u)
                gather.add(m.edge_uses[uses.first + u].edge);
        }
    return edges;
}

parts_of_list parts_of(const sketchup::model& m, const entity_list& list) {
    parts_of_list parts;
    parts.edges = edges_of(m, list);
    gathered vertices(parts.vertices);
    gathered curves(parts.curves);
    for (const index edge : parts.edges) {
        const sketchup::edge& e = m.edges[edge];
        vertices.add(e.start);
        vertices.add(e.end);
        curves.add(e.curve);
        if (e.curve != no_index)
            parts.edges_of_curves[e.curve].push_back(edge);
    }
    return parts;
}

// A list of elements in its record; none for an empty list, as the program does.
template<class Write>
void write_list(modern_output& o, std::uint16_t number, const std::vector<index>& elements, Write write) {
    if (elements.empty())
        return;
    o.out.record(number, [&] {
        for (const index one : elements)
            write(one);
    });
}

void write_curves(modern_output& o, const parts_of_list& parts) {
    std::vector<index> free, arcs;
    for (const index curve : parts.curves)
        (o.model.curves[curve].is_arc ? arcs : free).push_back(curve);
    const auto write = [&](index curve) { write_curve(o, o.model.curves[curve], parts.edges_of_curves.at(curve)); };
    write_list(o, tag::entities_curves, free, write);
    write_list(o, tag::entities_arcs, arcs, write);
}

std::vector<index> annotations_of(const modern_output& o, const entity_list& list, std::uint16_t number) {
    std::vector<index> found;
    for (const index annotation : list.annotations)
        if (annotation_tag(o.model.annotations[annotation].what) == number)
            found.push_back(annotation);
    return found;
}

struct annotation_list {
    std::uint16_t list;
    std::uint16_t item;
};
constexpr annotation_list annotation_lists[] = {
    {tag::entities_guide_lines, tag::guide_line},
    {tag::entities_guide_points, tag::guide_point},
    {tag::entities_texts, tag::text},
    {tag::entities_dimensions, tag::linear_dimension},
};

// The ids of all drawing elements, each kind in the order of its list.
std::vector<std::uint64_t> order_of(const modern_output& o, const entity_list& list, const parts_of_list& parts) {
    std::vector<std::uint64_t> order;
    const auto add = [&](const auto& array, const std::vector<index>& elements) {
        for (const index one : elements)
            order.push_back(o.ids.of(&array[one]));
    };
    add(o.model.edges, parts.edges);
    add(o.model.faces, list.faces);
    for (const std::vector<index>* placed : {&list.instances, &list.groups, &list.images})
        add(o.model.placements, *placed);
    add(o.model.section_planes, list.section_planes);
    for (const annotation_list& kind : annotation_lists)
        add(o.model.annotations, annotations_of(o, list, kind.item));
    return order;
}

std::uint64_t id_of(const modern_output& o, const sketchup::glue_end& end) {
    return end.kind == sketchup::entity_kind::face ? o.ids.of(&o.model.faces[end.at])
                                                   : o.ids.of(&o.model.placements[end.at]);
}

void write_glue(modern_output& o, const entity_list& list) {
    record_sink& out = o.out;
    out.record(tag::entities_glue, [&] {
        out.record(tag::glue_manager, [&] {
            out.record(tag::glue_list, [&] {
                for (const sketchup::glue_relation& one : list.glue)
                    out.record(tag::glue, [&] {
                        out.id(tag::glue_base, id_of(o, one.base));
                        out.id(tag::glue_glued, id_of(o, one.glued));
                    });
            });
        });
    });
}

void write_placements(modern_output& o, const entity_list& list) {
    const auto bare = [&](index one) { write_placement(o, one); };
    const auto within = [&](std::uint16_t number) {
        return [&o, bare, number](index one) { o.out.record(number, [&] { bare(one); }); };
    };
    write_list(o, tag::entities_instances, list.instances, bare);
    write_list(o, tag::entities_groups, list.groups, within(tag::group));
    write_list(o, tag::entities_images, list.images, within(tag::image));
}

void write_section_planes(modern_output& o, const entity_list& list) {
    write_list(o, tag::entities_section_planes, list.section_planes,
               [&](index one) { write_section_plane(o, o.model.section_planes[one]); });
    if (list.active_section_plane != no_index)
        o.out.id(tag::entities_active_section_plane, o.ids.of(&o.model.section_planes[list.active_section_plane]));
}

// The box around what is drawn; a list in which nothing is has none.
void write_box(modern_output& o, const sketchup::box& box) {
    o.out.boolean(tag::entities_has_box, !box.is_empty());
    if (!box.is_empty())
        o.out.doubles(tag::entities_box, std::array{box.minimum.x, box.minimum.y, box.minimum.z, box.maximum.x,
                                                    box.maximum.y, box.maximum.z});
}

void write_definition(modern_output& o, index at) {
    record_sink& out = o.out;
    const sketchup::component_definition& d = o.model.definitions[at];
    out.record(tag::definition, [&] {
        write_entities(o, d.entities, d, o.ids.of(&d), o.boxes.of_definition(at));
        out.raw(tag::definition_guid, written_guid(d.guid, guid_owner::definition, at));
        out.text(tag::definition_name, d.name);
        out.text(tag::definition_description, d.description);
        out.text(tag::definition_path, d.path);
        out.boolean(tag::definition_modified, false);
        out.u32(tag::definition_kind, static_cast<std::uint32_t>(d.what));
        out.u32(tag::definition_time, d.time == 0 ? usual_time : d.time);
        write_behavior(o, d.behavior);
        out.record(tag::definition_thumbnail, [&] {
            out.record(tag::thumbnail,
                       [&] { out.record(tag::thumbnail_camera, [&] { write_camera(o, thumbnail_camera()); }); });
        });
    });
}

} // namespace

void write_definitions(modern_output& o) {
    record_sink& out = o.out;
    const auto begin = [&] {
        if (o.format >= modern::format_2023)
            out.u32(tag::reserved, 0);
    };
    out.record(tag::model_definitions, [&] {
        begin();
        out.record(tag::definition_manager, [&] {
            begin();
            out.record(tag::definition_list, [&] {
                begin();
                for (const index one : definitions_children_first(o.model))
                    write_definition(o, one);
            });
        });
    });
}

void write_entities(modern_output& o, const entity_list& list, const sketchup::drawing_element& owner, std::uint64_t id,
                    const sketchup::box& box) {
    record_sink& out = o.out;
    const parts_of_list parts = parts_of(o.model, list);
    out.record(tag::entities, [&] {
        write_drawing_element(o, owner, id);
        write_list(o, tag::entities_vertices, parts.vertices,
                   [&](index one) { write_vertex(o, o.model.vertices[one]); });
        write_curves(o, parts);
        write_list(o, tag::entities_edges, parts.edges, [&](index one) { write_edge(o, o.model.edges[one]); });
        write_list(o, tag::entities_faces, list.faces, [&](index one) { write_face(o, o.model.faces[one]); });
        write_placements(o, list);
        write_section_planes(o, list);
        for (const annotation_list& kind : annotation_lists)
            write_list(o, kind.list, annotations_of(o, list, kind.item),
                       [&](index one) { write_annotation(o, o.model.annotations[one]); });
        if (o.format >= modern::format_2021_1)
            out.empty(5022);
        out.ids(tag::entities_order, order_of(o, list, parts));
        write_glue(o, list);
        if (o.format >= modern::format_2024)
            write_box(o, box);
    });
}

void write_behavior(modern_output& o, const sketchup::component_behavior& behavior) {
    record_sink& out = o.out;
    out.record(tag::behavior, [&] {
        out.u32(tag::behavior_snap_to, behavior.snap_to);
        out.u32(tag::behavior_no_scale_mask, behavior.no_scale_mask);
        out.boolean(tag::behavior_glues, behavior.glues);
        out.boolean(tag::behavior_cuts_opening, behavior.cuts_opening);
        out.boolean(tag::behavior_faces_camera, behavior.always_faces_camera);
        out.boolean(tag::behavior_shadow_faces_sun, behavior.shadow_faces_sun);
    });
}

} // namespace skp
