#pragma once

// A group or an instance on its way into the walk.

#include "sketchup/SketchUpAPI.h"
#include "tessaline/model/transforms.h"

#include <cstdint>

// What is known of a placement once it has been looked at. One lives on the stack for each level of nesting, so it
// holds nothing that is needed for a moment only.
struct placement_walk {
    transform16 transform{};             // accumulated, of the content
    SUEntitiesRef entities = SU_INVALID; // the content
    std::int32_t id = 0;                 // what the path names: the group's id, or that of the instance's definition
    int depth = 0;                       // of the list that holds the placement
};

// What becomes of a placement.
enum class placement_decision {
    leave_out,   // nothing of it is written, and no level was pushed
    stand_in,    // a plant or an outside object: one record was written in its place, and no level was pushed
    leave_level, // its content is left out and its level stays: the siblings that follow inherit from it
    walk,        // a level was pushed: walk the content and pop it
};
