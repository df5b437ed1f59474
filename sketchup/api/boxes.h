#pragma once

#include "sketchup/model/model.h"

namespace sketchup::api {

// The boxes that the C interface gives, in the space of the list that holds the element; each is found once for an open
// model and then kept. Both must be of an open model.
box box_of(const entity_list& list);
box box_of(const drawing_element& element);

} // namespace sketchup::api
