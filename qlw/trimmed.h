#pragma once

// White space at the ends of a text, which never counts in the files and lines that users and parents write.

#include <string_view>

// The text without blanks, tabs and line ends (what the C library calls white space) at either end; of nothing but
// these the empty text. The result is a part of what was given and lives no longer than that.
std::string_view trimmed(std::string_view text);
