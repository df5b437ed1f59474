#pragma once

// A drawn picture as a file.

#include "tools/page/view_options.h"
#include "tools/raster/rasterizer.h"

#include <string>

// How many points a side a pixel of a picture of that size gets: three, but fewer in a large one, for each point takes
// memory.
std::size_t samples_for(const view_options& options);

// Writes the picture as PNG; an old file is replaced when the new one is whole. Gives why it could not be written, in
// words; an empty text if it was.
std::string put_in_place(const rasterizer& drawn, const std::string& picture_file);
