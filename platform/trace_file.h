#pragma once

// Text for developers, where the user has asked for it.

#include <string>
#include <string_view>

namespace platform {

// Whether the environment variable TESSALINE_TRACE names a place for it.
bool trace_is_wanted();

// Appends to the file that the variable names and closes it, so that nothing is lost in a crash; to standard error for
// "-". Nothing is written where it is not set, and what cannot be written is lost.
void write_to_trace(std::string_view text);

// That a disk takes nothing under that name, with the system's words for the reason: the program that watches an
// unattended one looks here for the cause of a batch that is not whole. Nothing is written where somebody sits before
// it.
void trace_refused_write(const std::string& name, const std::string& words);

// write_to_trace for the console alone (console.cpp of each system).
void write_trace_to_console(std::string_view text);

} // namespace platform
