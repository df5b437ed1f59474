// Which groups and instances are entered, and what their levels say. Works on the parameter stack and the attribute
// list of the run.

#include "tessaline/walk/placements.h"

#include "qlw/qlw_globals.h"
#include "tessaline/faces/face_sides.h"
#include "tessaline/model/drawing_elements.h"
#include "tessaline/model/local_transform.h"
#include "tessaline/model/model_text.h"
#include "tessaline/parameters/attributes.h"
#include "tessaline/parameters/layer_inheritance.h"
#include "tessaline/state/run_state.h"
#include "tessaline/walk/lamps.h"
#include "tessaline/walk/SketchUpReader.h"
#include "tessaline/walk/walk_log.h"
#include "text/letter_case.h"

#include <optional>
#include <string>

namespace {

// The level's own material covers the one that it inherited.
void take_material(SUDrawingElementRef element) {
    SUMaterialRef material = SU_INVALID;
    SUDrawingElementGetMaterial(element, &material);
    if (SUIsValid(material))
        current_oparms->material = material;
}

bool always_faces_camera(SUComponentDefinitionRef definition) {
    SUComponentBehavior behavior{};
    SUComponentDefinitionGetBehavior(definition, &behavior);
    return behavior.component_always_face_camera;
}

void turn_to_camera(transform16& transform) {
    SUCameraRef camera = SU_INVALID;
    SUModelGetCamera(open_model, &camera);
    SUPoint3D eye{};
    SUPoint3D target{};
    SUVector3D up{};
    SUCameraGetOrientation(camera, &eye, &target, &up);
    face_camera(transform, {eye.x, eye.y, eye.z}, {target.x, target.y, target.z});
}

// The instance's name, or that of its definition if it has none.
std::string name_of_instance(SUComponentInstanceRef instance, SUComponentDefinitionRef definition) {
    std::string name = name_by(SUComponentInstanceGetName, instance);
    return name.empty() ? name_by(SUComponentDefinitionGetName, definition) : name;
}

// The parameter level of what is entered is the one on top; it gets the layer and the material.
void settle_level(cl_slp_oparms* level, SUDrawingElementRef element, const std::string& layer_name) {
    set_layer(*level, layer_name); // while the enclosing level still is the current one
    current_oparms = level;
    take_material(element);
}

} // namespace

// What is known of an instance while it is decided upon.
struct SketchUpReader::met_instance {
    SUComponentInstanceRef instance = SU_INVALID;
    SUDrawingElementRef element = SU_INVALID;
    SUComponentDefinitionRef definition = SU_INVALID;
    SUEntityRef definition_entity = SU_INVALID;
    std::string name;
    std::string layer_name;
    bool invisible = false; // its layer is off and only a lamp is let through
    rpc_description rpc{};
    plant_description plant{};
};

bool is_walked(placement_decision decision) {
    using enum placement_decision;
    return decision == walk || decision == light_and_walk || decision == walk_as_lamp;
}

bool writes_direct_light(placement_decision decision) {
    using enum placement_decision;
    return decision == light_and_leave_level || decision == light_and_walk;
}

placement_decision decision_on_level(const cl_slp_light& light, const block_writer& blocks, bool invisible) {
    using enum placement_decision;
    if (blocks.takes_lamps() && is_lamp(light)) {
        if (!is_direct_light(light))
            return walk_as_lamp;
        return invisible ? light_and_leave_level : light_and_walk;
    }
    return invisible && !blocks.state().lamp_block_open ? leave_level : walk;
}

bool SketchUpReader::is_let_in(SUDrawingElementRef element, SULayerRef layer, bool& invisible) const {
    invisible = false;
    if (is_hidden(element))
        return false;
    // Layers are switched at render time in an animation, so all of them are walked.
    if (theApp.is_doing_animation || is_visible(layer))
        return true;
    invisible = get_global_bool("bvl_process_invisible_lights");
    return invisible;
}

placement_decision SketchUpReader::enter_group(SUGroupRef group, placement_walk& walk) {
    const SUDrawingElementRef element = SUGroupToDrawingElement(group);
    const element_layer layer = layer_of(element, layer0_hidden);
    if (is_beam_helper_layer(lower_case(layer.name)))
        return placement_decision::leave_out;
    bool invisible = false;
    if (!is_let_in(element, layer.layer, invisible))
        return placement_decision::leave_out;

    walk.transform = composed(walk.transform, local_transform(SUGroupGetTransform, group));
    SUGroupGetEntities(group, &walk.entities);
    const SUEntityRef entity = SUGroupToEntity(group);
    SUEntityGetID(entity, &walk.id);
    settle_level(oparms_array.push(), element, std::string(layer.name));
    read_attributes(entity);
    current_oparms->store_attributes_in_oparms("Group");

    const placement_decision decision = decision_on_level(current_oparms->light, blocks, invisible);
    begin_level(decision, walk, "Group LGHT Lamp", invisible);
    if (is_walked(decision) && extraction_log_is_on())
        log_placement("Group", name_by(SUGroupGetName, group), layer.name, walk.transform, walk.depth);
    return decision;
}

placement_decision SketchUpReader::enter_instance(SUComponentInstanceRef instance, placement_walk& walk) {
    met_instance met;
    met.instance = instance;
    const placement_decision decision = decide(met, walk);
    begin_instance(decision, met, walk);
    return decision;
}

placement_decision SketchUpReader::decide(met_instance& met, placement_walk& walk) const {
    met.element = SUComponentInstanceToDrawingElement(met.instance);
    const element_layer layer = layer_of(met.element, layer0_hidden);
    met.layer_name = layer.name;
    SUComponentInstanceGetDefinition(met.instance, &met.definition);
    met.definition_entity = SUComponentDefinitionToEntity(met.definition);
    met.name = name_of_instance(met.instance, met.definition);
    if (!is_let_in(met.element, layer.layer, met.invisible))
        return placement_decision::leave_out;

    walk.transform = composed(walk.transform, local_transform(SUComponentInstanceGetTransform, met.instance));
    if (always_faces_camera(met.definition))
        turn_to_camera(walk.transform);
    SUComponentDefinitionGetEntities(met.definition, &walk.entities);
    SUEntityGetID(met.definition_entity, &walk.id); // so two instances of one definition share a path
    if (const auto stand_in = stand_in_of(met))
        return *stand_in;
    push_level(met);
    return decision_on_level(current_oparms->light, blocks, met.invisible);
}

std::optional<placement_decision> SketchUpReader::stand_in_of(met_instance& met) {
    if (SUIsInvalid(met.definition_entity))
        return std::nullopt;
    read_attributes(met.definition_entity);
    const bool is_rpc = read_rpc_description(met.rpc);
    const bool is_plant = read_plant_description(met.plant);
    if (met.invisible)
        return std::nullopt;
    if (is_rpc)
        return placement_decision::outside_object;
    if (is_plant && !met.plant.render_as_2d_image && !shows_plants_as_images())
        return placement_decision::plant;
    return std::nullopt;
}

void SketchUpReader::push_level(const met_instance& met) {
    settle_level(oparms_array.push(), met.element, met.layer_name);
    read_attributes(SUComponentInstanceToEntity(met.instance));
    current_oparms->store_attributes_in_oparms("Component Instance - " + met.name);
    if (SUIsValid(met.definition_entity)) {
        read_attributes(met.definition_entity);
        current_oparms->store_attributes_in_oparms("Component Definition");
    }
}

void SketchUpReader::begin_instance(placement_decision decision, const met_instance& met, const placement_walk& walk) {
    switch (decision) {
    case placement_decision::leave_out:
        return;
    case placement_decision::outside_object:
        write_rpc(met.instance, met.rpc, walk.transform);
        return;
    case placement_decision::plant:
        Write_Zyn_plant(met.instance, met.plant, walk.transform, {}, {});
        return;
    default:
        break;
    }
    // A lamp with beams is walked once more when its block has closed.
    if (current_oparms->light.lamp_type == "spot_beams")
        blocks.want_beam_pass();
    begin_level(decision, walk, "Instance Lamp", met.invisible);
    if (is_walked(decision))
        log_placement("Instance", met.name, met.layer_name, walk.transform, walk.depth);
}

void SketchUpReader::begin_level(placement_decision decision, const placement_walk& walk, std::string_view direct_label,
                                 bool forced_hidden) {
    cl_slp_light& light = current_oparms->light;
    if (writes_direct_light(decision))
        blocks.write_direct_light(direct_label, light.add_lamp(*this, walk.transform));
    else if (decision == placement_decision::walk_as_lamp)
        blocks.open_lamp_block(light.add_lamp(*this, walk.transform), forced_hidden, walk.depth);
    if (!is_walked(decision))
        oparms_array.forget_all_below(walk.depth); // each enclosing object pops one
}

void SketchUpReader::close_lamp(const transform16& transform) {
    current_oparms->light.face_edge_vector = vector_image(transform, {0, 1, 0});
    current_oparms->light.face_x_axis = vector_image(transform, {1, 0, 0});
    blocks.close_lamp_block();
}
