#pragma once

// Texts that somebody else has chosen, such as names of files, which may hold anything.

#include <string>
#include <string_view>

// The text with each control character as \xHH, so that it stands on one line and says nothing to a terminal.
std::string on_one_line(std::string_view text);
