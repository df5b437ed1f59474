#pragma once

// Where the pictures of a batch lie.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

// The bytes of a picture by the name that a material file gives. The batch's own folders come first, under the last
// part of that name, for a batch that was moved still names the place where it was made. Nothing if no file is found or
// the one that is has more than 1 GiB.
std::optional<std::vector<std::byte>> read_batch_picture(const std::string& batch_folder, const std::string& path);
