#pragma once

// What the fields of the archive container's rendering options hold.

#include "sketchup/model/model.h"
#include "sketchup/skp/modern/option_fields.h"

namespace skp {

// The value of a field, of the type that the field has: what the options say or, where they do not, the usual value; of
// a field without a name always the usual one. An option of another type counts as zero.
sketchup::typed_value written_field(const modern::option_field& field, const sketchup::rendering_options& options);

} // namespace skp
