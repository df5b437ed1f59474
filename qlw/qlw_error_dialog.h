#pragma once

// What the user sees of an error.

#include <string>

class cl_trace;

// Writes the error line of a message to the trace and shows the message to the user; level 4 is not shown, and level 5
// throws the text as a std::string afterwards. The message becomes the trace's last message, and the earlier ones move
// on. The user sees a message box with the text and the version: there is no way yet to silence a place for the rest of
// the run, no second dialog with the source location, and no report for support.
void show_error_dialog(cl_trace& trace, const std::string& message);

// Appends a line to the error list, the file "error_file.txt" in the user's settings folder; opened with an empty title
// if error_list_open has not been called.
void error_list_append(const std::string& text);

// Starts the error list anew with a line that holds the title and the time.
void error_list_open(const std::string& title);
