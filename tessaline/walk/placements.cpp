// Which groups and instances are entered, and what their levels say. Works on the parameter stack and the attribute
// list of the run.

#include "tessaline/walk/placements.h"

#include "qlw/letter_case.h"
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

} // namespace

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

    cl_slp_oparms* const level = oparms_array.push();
    set_layer(*level, std::string(layer.name)); // while the enclosing level still is the current one
    current_oparms = level;
    take_material(element);
    read_attributes(entity);
    current_oparms->store_attributes_in_oparms("Group");

    open_lamp(walk, "Group LGHT Lamp", invisible);
    const placement_decision decision = decision_on_level(walk, invisible);
    if (decision == placement_decision::walk && extraction_log_is_on())
        log_placement("Group", name_by(SUGroupGetName, group), layer.name, walk.transform, walk.depth);
    return decision;
}

placement_decision SketchUpReader::enter_instance(SUComponentInstanceRef instance, placement_walk& walk) {
    const SUDrawingElementRef element = SUComponentInstanceToDrawingElement(instance);
    const element_layer layer = layer_of(element, layer0_hidden);
    SUComponentDefinitionRef definition = SU_INVALID;
    SUComponentInstanceGetDefinition(instance, &definition);
    const SUEntityRef definition_entity = SUComponentDefinitionToEntity(definition);
    const std::string name = name_of_instance(instance, definition);
    bool invisible = false;
    if (!is_let_in(element, layer.layer, invisible))
        return placement_decision::leave_out;

    walk.transform = composed(walk.transform, local_transform(SUComponentInstanceGetTransform, instance));
    if (always_faces_camera(definition))
        turn_to_camera(walk.transform);
    SUComponentDefinitionGetEntities(definition, &walk.entities);
    SUEntityGetID(definition_entity, &walk.id); // so two instances of one definition share a path
    if (const stand_in what = stand_in_of(definition_entity, invisible); what.kind != stand_in_kind::none) {
        write_stand_in(instance, what, walk.transform);
        return placement_decision::stand_in;
    }

    const std::string layer_name(layer.name);
    current_oparms = oparms_array.push();
    set_layer(*current_oparms, layer_name);
    take_material(element);
    read_attributes(SUComponentInstanceToEntity(instance));
    current_oparms->store_attributes_in_oparms("Component Instance - " + name);
    if (SUIsValid(definition_entity)) {
        read_attributes(definition_entity);
        current_oparms->store_attributes_in_oparms("Component Definition");
    }

    // A lamp with beams is walked once more when its block has closed.
    if (current_oparms->light.lamp_type == "spot_beams")
        blocks.want_beam_pass();
    open_lamp(walk, "Instance Lamp", invisible);
    const placement_decision decision = decision_on_level(walk, invisible);
    if (decision == placement_decision::walk)
        log_placement("Instance", name, layer_name, walk.transform, walk.depth);
    return decision;
}

placement_decision SketchUpReader::decision_on_level(const placement_walk& walk, bool invisible) const {
    if (!invisible || blocks.state().lamp_block_open)
        return placement_decision::walk;
    oparms_array.forget_all_below(walk.depth); // each enclosing object pops one
    return placement_decision::leave_level;
}

SketchUpReader::stand_in SketchUpReader::stand_in_of(SUEntityRef definition, bool invisible) {
    stand_in what;
    if (SUIsInvalid(definition))
        return what;
    read_attributes(definition);
    const bool is_rpc = read_rpc_description(what.rpc);
    const bool is_plant = read_plant_description(what.plant);
    if (invisible)
        return what;
    if (is_rpc)
        what.kind = stand_in_kind::outside_object;
    else if (is_plant && !what.plant.render_as_2d_image && !shows_plants_as_images())
        what.kind = stand_in_kind::plant;
    return what;
}

void SketchUpReader::write_stand_in(SUComponentInstanceRef instance, const stand_in& what,
                                    const transform16& transform) {
    if (what.kind == stand_in_kind::outside_object)
        write_rpc(instance, what.rpc, transform);
    else
        Write_Zyn_plant(instance, what.plant, transform, {}, {});
}

void SketchUpReader::open_lamp(const placement_walk& walk, std::string_view direct_label, bool forced_hidden) {
    if (!blocks.takes_lamps() || !is_lamp(current_oparms->light))
        return;
    const int lamp_number = current_oparms->light.add_lamp(*this, walk.transform);
    if (current_oparms->light.direct_light)
        blocks.write_direct_light(direct_label, lamp_number);
    else
        blocks.open_lamp_block(lamp_number, forced_hidden, walk.depth);
}

void SketchUpReader::close_lamp(const transform16& transform) {
    current_oparms->light.face_edge_vector = vector_image(transform, {0, 1, 0});
    current_oparms->light.face_x_axis = vector_image(transform, {1, 0, 0});
    blocks.close_lamp_block();
}
