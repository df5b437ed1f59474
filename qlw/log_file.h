#pragma once

// The log file that a developer's build keeps.

#include <string_view>

// Appends a line to the log file, which is made anew by the first line of a run, and closes it, so that nothing is
// lost if the program dies. A file that takes nothing is skipped. line: a line feed is added if it ends in none.
void write_log_line(std::string_view line);
