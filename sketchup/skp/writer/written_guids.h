#pragma once

// The guids that a file states. In files of the program none is zero, and readers find things by them.

#include "sketchup/model/model.h"

#include <cstdint>

namespace skp {

enum class guid_owner : std::uint8_t { model, definition, placement, style };

// own, unless it is zero; then one made from the kind of its owner and the owner's index in the model, so that no two
// of a file are equal and a model is always written the same.
sketchup::guid written_guid(const sketchup::guid& own, guid_owner owner, sketchup::index at = 0);

} // namespace skp
