// The error dialog of a console: its text, and nobody who presses a button.

#include "platform/platform.h"

namespace platform {

error_dialog_answer show_error_dialog(const error_dialog_view& view) {
    std::string text = view.text;
    std::erase(text, '\r');
    message_box(view.caption, text);
    return {};
}

} // namespace platform
