#pragma once

// The rule that ties a setting's name to its type.

#include <string_view>

// Whether the first letter of a setting's name fits its type; a misfit is reported at level 4.
bool check_global_name_int(std::string_view name);      // "i" or "b"
bool check_global_name_bool(std::string_view name);     // "b"
bool check_global_name_double(std::string_view name);   // "r"
bool check_global_name_String(std::string_view name);   // "s"
bool check_global_name_fpt(std::string_view name);      // "p"
bool check_global_name_COLORREF(std::string_view name); // "c"
