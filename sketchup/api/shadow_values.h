#pragma once

#include "sketchup/model/model.h"

#include <optional>
#include <string_view>

namespace sketchup::api {

// A value of the shadow settings by the name that the interface gives it, for example "Latitude"; nothing for a name
// that is not known, for the rise and set of a sun that does not cross the horizon that day, and for a sun over no
// place. The names and the type of each stand in the table of the implementation.
std::optional<typed_value> shadow_value(const shadow_info& info, std::string_view key);

} // namespace sketchup::api
