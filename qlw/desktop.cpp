#include "qlw/desktop.h"

platform::error_dialog_answer cl_desktop::show_error_dialog(const platform::error_dialog_view& view) {
    return platform::show_error_dialog(view);
}

void cl_desktop::message_box(std::string_view title, std::string_view text) {
    platform::message_box(title, text);
}

platform::clipboard_result cl_desktop::set_clipboard_text(const std::string& text) {
    return platform::set_clipboard_text(text);
}
