#pragma once

// Packs entries into a ZIP archive in memory.

#include "sketchup/skp/writer/material_files.h"

#include <cstdint>
#include <vector>

namespace skp {

// The bytes of an archive of the entries in their order, each deflated and dated 1980-01-01, so that equal entries give
// equal bytes. Throws std::runtime_error if two entries have one name or memory is short.
std::vector<std::uint8_t> zip_archive(const std::vector<archive_entry>& entries);

} // namespace skp
