// Entity lists, definitions and placements in the classic container.

#include "sketchup/skp/writer/classic_bodies.h"
#include "sketchup/skp/writer/definition_order.h"
#include "sketchup/skp/writer/usual_settings.h"
#include "sketchup/skp/writer/written_cameras.h"
#include "sketchup/skp/writer/written_guids.h"
#include "sketchup/skp/writer/written_lists.h"

#include <stdexcept>

namespace skp {

using sketchup::index;
using sketchup::no_index;

namespace {

void mention_definition(classic_output& c, index definition);

std::string_view class_of_placement(sketchup::entity_kind kind) {
    switch (kind) {
    case sketchup::entity_kind::group:
        return "CGroup";
    case sketchup::entity_kind::image:
        return "CImage";
    default:
        return "CComponentInstance";
    }
}

void mention_placement(classic_output& c, index placement) {
    object_archive& out = c.out;
    const sketchup::placement& p = c.model.placements[placement];
    out.object(class_of_placement(p.kind), &p, [&] {
        write_drawing_element(c, p, false, false, p.locked);
        mention_definition(c, p.definition);
        for (const double number : sketchup::transform_to_file(p.transform))
            out.f64(number);
        const int layout = out.number("CComponentInstance");
        if (layout >= 4)
            out.str(p.name);
        if (layout >= 5)
            out.raw(written_guid(p.guid, guid_owner::placement, placement));
    });
}

void mention_section_plane(classic_output& c, index section_plane) {
    object_archive& out = c.out;
    const sketchup::section_plane* p = section_plane == no_index ? nullptr : &c.model.section_planes[section_plane];
    out.object("CSectionPlane", p, [&] {
        write_drawing_element(c, *p);
        for (const double number : {p->plane.a, p->plane.b, p->plane.c, p->plane.d})
            out.f64(number);
        if (out.number("CSectionPlane") >= 3) {
            out.str(p->name);
            out.str(p->symbol);
        }
    });
}

void write_entities(classic_output& c, const sketchup::entity_list& list) {
    c.out.size(list.faces.size() + list.edges.size() + list.groups.size() + list.instances.size() + list.images.size() +
               list.section_planes.size() + list.annotations.size());
    for (const index face : list.faces)
        mention_face(c, face);
    for (const index edge : list.edges)
        mention_edge(c, edge);
    for (const std::vector<index>* placements : {&list.groups, &list.instances, &list.images})
        for (const index placement : *placements)
            mention_placement(c, placement);
    for (const index plane : list.section_planes)
        mention_section_plane(c, plane);
    for (const index annotation : list.annotations)
        mention_annotation(c, annotation);
}

void mention_glue_end(classic_output& c, const sketchup::glue_end& end) {
    if (end.kind == sketchup::entity_kind::face)
        mention_face(c, end.at);
    else
        mention_placement(c, end.at);
}

void write_relationships(classic_output& c, const sketchup::entity_list& list) {
    object_archive& out = c.out;
    out.size(list.glue.size());
    for (const sketchup::glue_relation& one : list.glue)
        out.object("CRelationship", [&] {
            write_plain_entity(c);
            mention_glue_end(c, one.base);
            mention_glue_end(c, one.glued);
        });
}

void write_materials(classic_output& c, bool is_root) {
    object_archive& out = c.out;
    write_plain_entity(c);
    const std::vector<index> listed = is_root ? materials_of_list(c.model) : std::vector<index>();
    out.size(listed.size());
    for (const index material : listed)
        mention_material(c, material);
    out.null(); // the paint tool's material
}

// The view of a definition as its files show it; never drawn here.
void write_thumbnail(classic_output& c) {
    object_archive& out = c.out;
    write_plain_entity(c);
    out.object("CCamera", [&] { write_camera(c, thumbnail_camera()); });
    out.null(); // picture
}

void write_definition(classic_output& c, index at) {
    object_archive& out = c.out;
    const sketchup::component_definition& d = c.model.definitions[at];
    write_component(c, d.entities, d, false);
    out.raw(written_guid(d.guid, guid_owner::definition, at));
    out.str(d.name);
    out.str(d.description);
    out.str(d.path);
    out.u32(d.time == 0 ? usual_time : d.time);
    out.boolean(false); // modified
    out.v3(d.insertion_point);
    write_behavior(c, d.behavior);
    out.u32(static_cast<std::uint32_t>(d.what));
    out.object("CThumbnail", [&] { write_thumbnail(c); });
}

// In the model's list, where each stands behind those that it places.
void write_definitions(classic_output& c) {
    object_archive& out = c.out;
    out.size(c.model.definitions.size());
    for (const index one : definitions_children_first(c.model))
        out.object("CComponentDefinition", &c.model.definitions[one], [&] { write_definition(c, one); });
}

void mention_definition(classic_output& c, index definition) {
    c.out.object("CComponentDefinition", &c.model.definitions[definition],
                 [] { throw std::invalid_argument("definitions contain one another in a ring"); });
}

} // namespace

void write_component(classic_output& c, const sketchup::entity_list& list, const sketchup::drawing_element& owner,
                     bool is_root) {
    object_archive& out = c.out;
    write_drawing_element(c, owner);
    write_materials(c, is_root);
    if (is_root)
        write_layer_manager(c);
    else
        write_definition_layers(c);
    if (is_root)
        write_definitions(c);
    else
        out.size(0);
    write_entities(c, list);
    write_relationships(c, list);
    mention_section_plane(c, list.active_section_plane);
}

void write_behavior(classic_output& c, const sketchup::component_behavior& behavior) {
    object_archive& out = c.out;
    const int layout = out.number("CComponentBehavior");
    write_plain_entity(c);
    out.boolean(behavior.glues);
    out.boolean(behavior.cuts_opening);
    out.u32(behavior.snap_to);
    out.u8(static_cast<std::uint8_t>((behavior.always_faces_camera ? 1U : 0U) | (behavior.shadow_faces_sun ? 2U : 0U)));
    if (layout >= 5)
        out.u32(behavior.no_scale_mask);
}

} // namespace skp
