#pragma once

// Names of files taken apart and put together.

#include "platform/platform.h"

#include <string>
#include <string_view>

// The folder of a file, without a separator at the end; empty if the name has no folder. The root stays a separator.
std::string folder_of(std::string_view path);

// The name of a file without its folders.
std::string file_name_of(std::string_view path);

// The name of a file without the extension behind the last dot of its last part.
std::string without_extension(std::string_view path);

// Folder, separator, name; a folder that ends in a separator gets no second one.
std::string joined(std::string_view folder, std::string_view name);

// Folder, separator, name, if the file then lies in that very folder. Empty if the name, which may come out of a model,
// holds a separator of any platform or a zero byte, or stands for a folder ("", ".", "..").
std::string joined_inside(std::string_view folder, std::string_view name);
