#pragma once

// The file in which a parent lists the components that a scattering tool has placed: one placement a line, fields
// separated by ";".

#include "tessaline/model/transforms.h"

#include <cstdint>
#include <functional>
#include <string>

struct skatter_placement {
    std::string definition_name; // must equal a definition's name exactly
    transform16 transform{};     // as read, neither normalised nor composed
};

// Where the file lies, if there is one: "skatter_insts.txt" in the batch folder.
std::string skatter_file_path(const std::string& batch_folder);

// Calls `use` for each placement, in the order of the file; lines that begin with "#" are comments. A number that
// cannot be read is 0. A file that cannot be opened has no placements.
void for_each_skatter_placement(const std::string& path, const std::function<void(const skatter_placement&)>& use);

// The number of lines that are no comments.
std::uint64_t skatter_line_count(const std::string& path);
