#pragma once

// What a file or folder is called without the folders above it.

#include <string_view>

// The last part of a path; what separates parts is a slash or a backslash on every system, for names come from other
// ones too. Separators at the end do not count; of a path that holds nothing else, nothing is left.
std::string_view last_component(std::string_view path);
