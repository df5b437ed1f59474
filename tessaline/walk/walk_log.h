#pragma once

// The extraction log: what the walk met, a line each, for a developer's build that opens it. Nothing is written while
// it is closed or the setting for it is off.

#include "tessaline/model/transforms.h"

#include <string_view>

// Whether a line would be written now. Ask before a name is fetched for the log alone.
bool extraction_log_is_on();

// A group or an instance that is entered. kind: "Group" or "Instance". depth: of the list that holds it; one blank
// each.
void log_placement(std::string_view kind, std::string_view name, std::string_view layer_name,
                   const transform16& transform, int depth);
void log_image_step(int depth);
// An image that is written. position: in world inches.
void log_image(std::string_view file_name, std::string_view layer_name, const fpt& position);
void log_end_of_walk();
