#pragma once

// How a report reaches the user. The operations forward to the platform; a run without a user, or a test, puts its own
// in their place through the trace state.

#include "platform/platform.h"

#include <string>
#include <string_view>

class cl_desktop {
public:
    virtual ~cl_desktop() = default;

    virtual platform::error_dialog_answer show_error_dialog(const platform::error_dialog_view& view);
    virtual void message_box(std::string_view title, std::string_view text);
    virtual platform::clipboard_result set_clipboard_text(const std::string& text);
};
