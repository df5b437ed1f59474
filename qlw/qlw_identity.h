#pragma once

// By which names the program appears in titles, folders and reports.

#include <string_view>

inline constexpr std::string_view application_name = "Tessaline"; // titles and the error dialog
inline constexpr std::string_view ini_base_name = "Tessaline";    // base name of the program's own files
inline constexpr std::string_view company_name = "Quillon Systems";

// A date code: 'S' + 1936 is the year 2019, 'C' - 64 the month March, then the day; the letter is the build's width.
inline constexpr std::string_view version_text = "SC26w";
