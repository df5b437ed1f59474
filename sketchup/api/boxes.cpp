#include "sketchup/api/boxes.h"

#include "sketchup/api/provider_state.h"

namespace sketchup::api {
namespace {

box_cache& boxes_of(const entity& e) {
    open_model& open = *open_model_of(e.owner);
    if (!open.boxes)
        open.boxes.emplace(*open.model);
    return *open.boxes;
}

} // namespace

box box_of(const entity_list& list) {
    return boxes_of(list).of_list(list);
}

box box_of(const drawing_element& element) {
    switch (element.kind) {
    case entity_kind::face:
        return face_box(*element.owner, static_cast<const face&>(element));
    case entity_kind::edge:
        return edge_box(*element.owner, static_cast<const edge&>(element));
    case entity_kind::group:
    case entity_kind::component_instance:
    case entity_kind::image:
        return boxes_of(element).of_placement(static_cast<const placement&>(element));
    case entity_kind::section_plane:
        return boxes_of(element).of_section_plane(static_cast<const section_plane&>(element));
    case entity_kind::component_definition:
        return box_of(static_cast<const component_definition&>(element).entities);
    default:
        return {}; // what is not rendered has no box
    }
}

} // namespace sketchup::api
