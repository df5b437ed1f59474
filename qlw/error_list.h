#pragma once

// The error list: a text file that collects messages for runs that must not stop for a dialog. It is "error_file.txt"
// in the user's settings folder. A run keeps none unless the trace state says that it is active.

#include <string>

// Starts the list anew with a line that holds the title and the time. A file that cannot be made is told of by the
// first line that cannot be written into it.
void error_list_open(const std::string& title);

// Appends a line; the list is opened with an empty title if it has no name yet. A file that takes nothing is reported
// to the user, and the line is lost.
void error_list_append(const std::string& text);
