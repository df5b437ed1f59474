#pragma once

// The file of a plant that a model brings along.

#include "tessaline/plants/plants.h"

#include <string>

// Puts the plant's file into the folder "Plants" of the batch folder and gives its full name there. A file that lies
// there keeps its bytes; otherwise it is written from the plant's base64 data, line feeds in them passed over. Data of
// the older form alone are reported and give no file. A file that cannot be written is not noticed: the stream names it
// all the same.
// file_name: of the plant; folders in front, with separators of either platform, are left out.
std::string placed_plant_file(std::string_view file_name, const plant_description& plant,
                              const std::string& batch_folder);
