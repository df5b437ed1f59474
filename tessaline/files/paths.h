#pragma once

// Names of files taken apart and put together, and what stands behind them.

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

// The last dot of a name's last part, and what stands behind it; empty if there is none. Cuts as bare_name_of does.
std::string_view extension_of(std::string_view path);

// The name of a file without the extension behind the last dot of its last part.
std::string without_extension(std::string_view path);

// Folder, separator, name; a folder that ends in a separator gets no second one.
std::string joined(std::string_view folder, std::string_view name);

// Folder, separator, name, if the file then lies in that very folder. name: in UTF-8, as it comes out of a model. Empty
// if it holds a separator of any platform or a zero byte, or stands for a folder ("", ".", "..").
std::string joined_inside(std::string_view folder, std::string_view name);

// Whether that is the name of a plain file, or leads to one.
bool is_file(const std::string& path);
