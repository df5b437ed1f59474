#pragma once

// The file of a ground cover, brought to where the renderer looks for it.

#include <string>
#include <string_view>

// The name under which the stream refers to a ground cover file. A file that exists is copied into the folder "Plants"
// of the batch folder, unless one of its bare name is there, and the name of the copy is given; a copy that fails is
// not noticed. A file that does not exist gives the path as it stands. path: with separators of either platform, since
// models travel.
std::string placed_ground_cover(std::string_view path, const std::string& batch_folder);
