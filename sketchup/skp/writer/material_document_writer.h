#pragma once

// The document that describes a material in the archive container.

#include "sketchup/model/model.h"

#include <cstdint>
#include <string>

namespace skp {

// The text of material.xml. picture: the path of the texture's picture, from the material's folder with "./", else from
// the root of the archive; empty for none. format: one of skp/modern/formats.h. Attributes of other types than nil,
// numbers, booleans and texts have no known text form and are left out, as are nested dictionaries. Control characters
// that XML cannot carry are written as references, which lenient parsers take; a line break inside a value is LF.
std::string material_document_text(const sketchup::model& m, const sketchup::material& material,
                                   const std::string& picture, std::uint16_t format);

} // namespace skp
