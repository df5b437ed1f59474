#pragma once

// The document of the archive that holds the model itself, apart from the archive.

#include "sketchup/model/model.h"
#include "sketchup/skp/modern/entry_source.h"

#include <cstdint>
#include <memory>
#include <span>

namespace skp::modern {

// How deep folders, dictionaries and arrays may hold one another; the reader recurses along them.
inline constexpr int deepest_containers = 200;

// Reads model.dat into an empty model. data: the unpacked document. beside: gives the documents of the materials, now,
// and the pictures of textures, when they are asked for; the model's pictures keep it.
// What the document may lack takes its default. A reference to an unknown material gives none, to an unknown layer the
// default layer; what hangs on any other unknown element is left out. Throws format_error.
void read_model_data(std::span<const std::uint8_t> data, std::shared_ptr<entry_source> beside, sketchup::model& m);

} // namespace skp::modern
