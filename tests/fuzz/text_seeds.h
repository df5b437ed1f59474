#pragma once

// The seeds of the fuzz targets that read text.

#include <string>

// Writes FOLDER/<target>/<seed> for each; false if one could not be written.
bool write_text_seeds(const std::string& folder);
