#pragma once

// Small batches in which nothing is wrong, laid out by hand from the format, for tests that damage them.

#include <map>
#include <string>
#include <vector>

namespace small_batch {

using files_by_name = std::map<std::string, std::string>; // names from the batch folder on, with "/" between

// The full name of the folder in which these batches lie.
inline const std::string folder = "/batches/small";

// Something of everything: materials with and without pictures, faces of one and of two sides, lamps of every kind of
// block, an image, a section plane, plants, an outside object, beams for two edges, a ground cover, an option file.
files_by_name still();

// A layer table and layer lists, and the edges of a 3D document.
files_by_name animation();

} // namespace small_batch
