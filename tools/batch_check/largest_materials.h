#pragma once

// Which materials most triangles of a batch are of.

#include "tools/batch_check/stream_facts.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace batch_check {

struct shown_material {
    std::string name; // without the ending that all have; its first 255 bytes and "..." if it has more
    std::uint64_t triangles = 0;
};

// The materials with the most triangles, in descending order, those with as many by their names; at most so many, and
// none without triangles.
std::vector<shown_material> largest_materials(const stream_facts& stream, std::size_t most);

} // namespace batch_check
