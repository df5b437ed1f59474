#pragma once

// What the error dialog says and what its buttons do.

#include "platform/platform.h"
#include "qlw/suppression_list.h"

#include <string>
#include <string_view>

// One error before the user. First it shows the message with the version, and offers to silence its place for the rest
// of the run; "More" shows it again with the source location, and offers to copy a report for support.
class cl_error_dialog {
public:
    bool plain_mode = false;    // the message alone, without version, hints and check box
    bool show_location = false; // this is the dialog behind "More"
    std::string title = "Error";
    std::string message;
    std::string location_text; // "     (Error occurred in %s line: %d)"
    cl_trace_source source;    // whose messages end if the user asks for it

    // Shows the dialog and obeys the button that closed it. False if it could not be started.
    bool run() const;

    std::string window_title() const;
    std::string text() const;   // lines end in CR LF
    std::string report() const; // what "Copy" puts on the clipboard; lines end in CR LF

private:
    void show_more() const;
};

// Runs a dialog; whatever it throws is traced under `label` and goes no further.
void do_modal_dialog(const cl_error_dialog& dialog, std::string_view label);
