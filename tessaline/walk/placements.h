#pragma once

// A group or an instance on its way into the walk.

#include "sketchup/SketchUpAPI.h"
#include "tessaline/blocks/block_writer.h"
#include "tessaline/model/transforms.h"
#include "tessaline/state/slp_oparms.h"

#include <cstdint>

// What is known of a placement once it has been looked at. One lives on the stack for each level of nesting, so it
// holds nothing that is needed for a moment only.
struct placement_walk {
    transform16 transform{};             // accumulated, of the content
    SUEntitiesRef entities = SU_INVALID; // the content
    std::int32_t id = 0;                 // what the path names: the group's id, or that of the instance's definition
    int depth = 0;                       // of the list that holds the placement
};

// What becomes of a placement: all of it is decided before anything of it is written.
enum class placement_decision {
    leave_out,             // nothing of it is written, and no level is pushed
    outside_object,        // one record is written in its place, and no level is pushed
    plant,                 // the same
    leave_level,           // its content is left out and its level stays: the siblings that follow inherit from it
    light_and_leave_level, // a direct light is written, and then the same
    walk,                  // a level is pushed: walk the content and pop it
    light_and_walk,        // a direct light is written ahead of the content
    walk_as_lamp,          // the content is the block of a lamp
};

bool is_walked(placement_decision decision); // its content is, and its level popped
bool writes_direct_light(placement_decision decision);

// What becomes of a placement that has a level. light: what the level says of a lamp. blocks: what is open in the
// stream. invisible: its layer is off and only lamps are let through, with all that is inside them.
placement_decision decision_on_level(const cl_slp_light& light, const block_writer& blocks, bool invisible);
