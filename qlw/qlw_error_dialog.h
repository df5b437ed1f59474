#pragma once

// Where a message of a level that the user sees ends.

#include <string>

class cl_trace;

// Writes the error line of a message to the trace and shows the message to the user, unless its place is silenced; then
// nothing happens. The message becomes the trace's last message, and the earlier ones move on. Level 4 is not shown.
// Level 5 is shown even from a silenced place, and the text is thrown as a std::string afterwards. What the user does
// in the dialog is in error_dialog.h.
void show_error_dialog(cl_trace& trace, const std::string& message);
