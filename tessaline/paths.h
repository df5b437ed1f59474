#pragma once

// Names of files taken apart and put together.

#include "platform/platform.h"

#include <string>
#include <string_view>

// The sub-folder of the batch folder for the files of plants and ground covers, which stay from run to run.
inline constexpr std::string_view plant_folder_name = "Plants";

// The folder of a file, without a separator at the end; empty if the name has no folder. The root stays a separator.
std::string folder_of(std::string_view path);

// The name of a file without its folders.
std::string file_name_of(std::string_view path);

// The same for a name that comes out of a model or from a parent, which may hold the separators of either platform.
std::string_view bare_name_of(std::string_view path);

// The name of a file without the extension behind the last dot of its last part.
std::string without_extension(std::string_view path);

// Folder, separator, name; a folder that ends in a separator gets no second one.
std::string joined(std::string_view folder, std::string_view name);
