#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace sketchup::api {

// The bytes of a file, whose path is in UTF-8; nothing if it is missing, a folder, unreadable or longer than memory can
// hold.
std::optional<std::vector<std::uint8_t>> read_whole_file(const std::string& utf8_path);

} // namespace sketchup::api
