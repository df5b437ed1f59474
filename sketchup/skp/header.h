#pragma once

// The beginning that both containers share, and what tells them apart.

#include "sketchup/model/model.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace skp {

enum class container { classic, modern };

struct file_header {
    sketchup::version_number version;
    container kind = container::classic;
    bool wide_strings = true; // classic: how the strings of the file are stored
    std::size_t body = 0;     // offset behind the version string (classic: the model id; modern: "VFF")
};

// Reads the product and version strings and looks which container follows.
// Throws format_error: not_a_model if they are not there.
file_header read_header(std::span<const std::uint8_t> bytes);

// The newest major version that is known. A greater one is refused as too new, as the host does.
inline constexpr int newest_major_version = 26;

} // namespace skp
