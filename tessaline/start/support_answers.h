#pragma once

// A run whose user wants the report for support of every error.

#include "qlw/desktop.h"

#include <string>

// While it lives, it answers in the user's place: it presses "More" wherever it is offered, shows the dialog behind it
// as the platform does, and presses "Copy" there. The clipboard is standard output, so that the reports can go to a
// file.
class cl_support_answers : public cl_desktop {
public:
    cl_support_answers();
    cl_support_answers(const cl_support_answers&) = delete;
    cl_support_answers& operator=(const cl_support_answers&) = delete;
    ~cl_support_answers() override;

    platform::error_dialog_answer show_error_dialog(const platform::error_dialog_view& view) override;
    platform::clipboard_result set_clipboard_text(const std::string& text) override;
};

// Puts a report on standard output, with lines as a console ends them.
void print_support_report(std::string report);
