// The nesting of a model: components with their entity lists, definitions, and what places them.

#include "sketchup/skp/classic/model_reader.h"

#include <algorithm>
#include <array>

namespace skp {
namespace {

sketchup::transform read_transform(archive& in) {
    std::array<double, 13> numbers{};
    for (double& n : numbers)
        n = in.f64();
    return sketchup::transform_from_file(numbers);
}

sketchup::guid read_guid(archive& in) {
    sketchup::guid id{};
    std::ranges::copy(in.bytes(id.size()), id.begin());
    return id;
}

constexpr class_set placements = {object_class::component_instance, object_class::group, object_class::image};

// The list of its kind that an element of an entity list joins.
std::vector<sketchup::index>& list_of(sketchup::entity_list& list, object_class what) {
    switch (what) {
    case object_class::edge:
        return list.edges;
    case object_class::face:
        return list.faces;
    case object_class::group:
        return list.groups;
    case object_class::component_instance:
        return list.instances;
    case object_class::image:
        return list.images;
    case object_class::section_plane:
        return list.section_planes;
    default:
        return list.annotations;
    }
}

// Of what may be glued or glued to.
sketchup::entity_kind kind_of(object_class what) {
    switch (what) {
    case object_class::group:
        return sketchup::entity_kind::group;
    case object_class::component_instance:
        return sketchup::entity_kind::component_instance;
    case object_class::image:
        return sketchup::entity_kind::image;
    default:
        return sketchup::entity_kind::face;
    }
}

} // namespace

// CComponent. A definition's own materials, layers and definitions are read for the slots they take; it has none of
// use.
void model_reader::read_component(sketchup::drawing_element& base, sketchup::entity_list& list, bool is_root) {
    const reading here(in_, "CComponent");
    list.id = m_.give_id();
    read_drawing(base);
    list.dictionaries = base.dictionaries;
    list.persistent_id = base.persistent_id;
    read_material_manager(is_root);
    read_layer_manager(is_root);
    read_definition_list(is_root);
    read_entity_list(list);
    read_relationships(list);
    list.active_section_plane = ref(object_class::section_plane).place;
}

// CDefinitionList
void model_reader::read_definition_list(bool is_root) {
    const std::uint32_t count = list_count();
    for (std::uint32_t i = 0; i < count; ++i) {
        const object definition = required_ref(object_class::component_definition);
        if (is_root)
            definition_order_.push_back(definition.place);
    }
}

// The place in the list, not that of the body, gives the order: an edge may have come with a face before it.
void model_reader::read_entity_list(sketchup::entity_list& list) {
    const std::uint32_t count = list_count();
    for (std::uint32_t i = 0; i < count; ++i) {
        const object element = ref(listed_classes);
        if (!element.is_null())
            list_of(list, element.what).push_back(element.place);
    }
}

// CRelationshipMap. A relation that lacks an end says nothing.
void model_reader::read_relationships(sketchup::entity_list& list) {
    const std::uint32_t count = list_count();
    for (std::uint32_t i = 0; i < count; ++i) {
        const sketchup::glue_relation& found = relations_[required_ref(object_class::relationship).place];
        if (found.base.at != sketchup::no_index && found.glued.at != sketchup::no_index)
            list.glue.push_back(found);
    }
}

// CRelationship: the second is glued to the first. Either may be introduced here, with relations inside.
void model_reader::read_relationship(std::uint32_t slot) {
    const std::size_t place = relations_.size();
    in_.set_place(slot, static_cast<index>(place));
    relations_.emplace_back();
    skip_entity();
    const sketchup::glue_end base = glue_end_ref(placements | object_class::face);
    const sketchup::glue_end glued = glue_end_ref(placements);
    relations_[place] = {base, glued};
}

sketchup::glue_end model_reader::glue_end_ref(class_set accepted) {
    const object found = ref(accepted);
    return {kind_of(found.what), found.place};
}

// CComponentDefinition. What is on the stack here is there once for each level of nesting, hence the second function.
void model_reader::read_component_definition(std::uint32_t slot) {
    in_.set_place(slot, static_cast<index>(definitions_.size()));
    sketchup::component_definition& d = definitions_.emplace_back();
    d.id = m_.give_id();
    read_component(d, d.entities, false);
    read_definition_rest(d);
}

void model_reader::read_definition_rest(sketchup::component_definition& d) {
    d.guid = read_guid(in_);
    d.name = in_.text();
    d.description = in_.text();
    d.path = in_.text();
    d.time = in_.u32();
    in_.boolean(); // modified
    d.insertion_point = in_.v3();
    d.behavior = read_component_behavior();
    const std::uint32_t kind = in_.u32();
    if (kind > static_cast<std::uint32_t>(sketchup::definition_kind::image))
        in_.fail("unknown kind of definition " + std::to_string(kind));
    d.what = static_cast<sketchup::definition_kind>(kind);
    ref(object_class::thumbnail);
}

// CComponentBehavior
sketchup::component_behavior model_reader::read_component_behavior() {
    const reading here(in_, "CComponentBehavior");
    const int number = layout_.component_behavior;
    sketchup::component_behavior b;
    skip_entity();
    b.glues = number >= 3 && in_.boolean();
    b.cuts_opening = in_.boolean();
    b.snap_to = number >= 2 ? in_.u32() : 0;
    const std::uint8_t camera = number >= 4 ? in_.u8() : 0;
    b.always_faces_camera = (camera & 1) != 0;
    b.shadow_faces_sun = (camera & 2) != 0;
    b.no_scale_mask = number >= 5 ? in_.u32() : 0;
    return b;
}

// CComponentInstance, CGroup, CImage. The definition may be introduced here.
void model_reader::read_placement(std::uint32_t slot, sketchup::entity_kind kind) {
    in_.set_place(slot, static_cast<index>(placements_.size()));
    sketchup::placement& p = placements_.emplace_back(kind);
    p.id = m_.give_id();
    p.locked = read_drawing(p).locked;
    p.definition = required_ref(object_class::component_definition).place;
    read_placement_rest(p);
}

void model_reader::read_placement_rest(sketchup::placement& p) {
    p.transform = read_transform(in_);
    if (layout_.component_instance >= 4)
        p.name = in_.text();
    if (layout_.component_instance >= 5)
        p.guid = read_guid(in_);
}

} // namespace skp
