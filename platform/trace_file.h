#pragma once

// Text for developers, where the user has asked for it.

#include <string_view>

namespace platform {

// Whether the environment variable TESSALINE_TRACE names a place for it.
bool trace_is_wanted();

// Appends to the file that the variable names and closes it, so that nothing is lost in a crash; to standard error for
// "-". Nothing is written where it is not set, and what cannot be written is lost.
void write_to_trace(std::string_view text);

// The same for the console alone (console.cpp of each system).
void write_trace_to_console(std::string_view text);

} // namespace platform
