#pragma once

// The document that describes a display style in the archive container.

#include "sketchup/model/model.h"

#include <cstdint>
#include <string>

namespace skp {

// The text of style.xml: a style of that name that shows models as the options say. format: one of
// skp/modern/formats.h.
std::string style_document_text(const std::string& name, const sketchup::rendering_options& options,
                                std::uint16_t format);

} // namespace skp
