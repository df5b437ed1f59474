// Definitions, and the groups, instances and images that place them.

#include "sketchup/skp/modern/model_data_reader.h"
#include "sketchup/skp/modern/tags.h"

namespace skp::modern {
namespace {

// 7000
sketchup::component_behavior read_behavior(byte_cursor in) {
    sketchup::component_behavior b;
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        switch (r.tag) {
        case tag::behavior_snap_to:
            b.snap_to = value.u32();
            break;
        case tag::behavior_no_scale_mask:
            b.no_scale_mask = value.u32();
            break;
        case tag::behavior_glues:
            b.glues = value.boolean();
            break;
        case tag::behavior_cuts_opening:
            b.cuts_opening = value.boolean();
            break;
        case tag::behavior_faces_camera:
            b.always_faces_camera = value.boolean();
            break;
        case tag::behavior_shadow_faces_sun:
            b.shadow_faces_sun = value.boolean();
            break;
        }
    }
    return b;
}

sketchup::definition_kind read_kind(byte_cursor in) {
    const std::uint32_t kind = in.u32();
    if (kind > static_cast<std::uint32_t>(sketchup::definition_kind::image))
        in.fail("unknown kind of definition " + std::to_string(kind));
    return static_cast<sketchup::definition_kind>(kind);
}

} // namespace

// 5500. Stands in the model already, so that placements before it could name it.
void model_data_reader::read_definition(byte_cursor in, sketchup::component_definition& d) {
    in.set_where("definition");
    d.id = m_.give_id();
    for (const record& r : records(in)) {
        byte_cursor value = r.payload;
        switch (r.tag) {
        case tag::entities:
            read_entities(value, d, d.entities);
            break;
        case tag::definition_guid:
            d.guid = guid_in(value);
            break;
        case tag::definition_name:
            d.name = text_in(value);
            break;
        case tag::definition_description:
            d.description = text_in(value);
            break;
        case tag::definition_path:
            d.path = text_in(value);
            break;
        case tag::definition_time:
            d.time = value.u32();
            break;
        case tag::definition_kind:
            d.what = read_kind(value);
            break;
        case tag::behavior:
            d.behavior = read_behavior(value);
            break;
        }
    }
}

void model_data_reader::read_instance(byte_cursor in, sketchup::entity_list& list) {
    read_placement(in, sketchup::entity_kind::component_instance, list.instances);
}

// 7500
void model_data_reader::read_group(byte_cursor in, sketchup::entity_list& list) {
    read_placement(descend(in, {tag::placement}), sketchup::entity_kind::group, list.groups);
}

// 8000
void model_data_reader::read_image(byte_cursor in, sketchup::entity_list& list) {
    read_placement(descend(in, {tag::placement}), sketchup::entity_kind::image, list.images);
}

// 6500. Without a definition there is nothing to place.
void model_data_reader::read_placement(std::optional<byte_cursor> in, sketchup::entity_kind kind,
                                       std::vector<index>& members) {
    if (!in)
        return;
    in->set_where("placement");
    sketchup::placement p(kind);
    std::optional<byte_cursor> drawing;
    for (const record& r : records(*in)) {
        switch (r.tag) {
        case tag::drawing_element:
            drawing = r.payload;
            break;
        case tag::placement_name:
            p.name = text_in(r.payload);
            break;
        case tag::placement_transform:
            p.transform = sketchup::transform_from_file(doubles_in<13>(r.payload));
            break;
        case tag::placement_definition:
            p.definition = definitions_.find(id_in(r.payload));
            break;
        case tag::placement_guid:
            p.guid = guid_in(r.payload);
            break;
        }
    }
    if (!drawing || p.definition == sketchup::no_index)
        return;
    p.id = m_.give_id();
    p.locked = read_drawing_element(*drawing, p).locked;
    members.push_back(static_cast<index>(m_.placements.size()));
    m_.placements.push_back(std::move(p));
}

} // namespace skp::modern
