#pragma once

#include <cstdint>
#include <string>

namespace sketchup::api {

// The name under which a texture's picture is known: the last part of the stored path, which may come from any platform
// and so is cut at slashes and backslashes. A name without an extension gets that of the picture's format.
// format: as picture::format numbers it; nothing is added for one that is not known.
std::string texture_file_name(const std::string& stored_path, std::uint32_t format);

} // namespace sketchup::api
