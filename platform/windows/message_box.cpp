// Boxes with a text and a button.

#include "platform/platform.h"

#include "platform/message_line.h"
#include "platform/windows/open_windows.h"

namespace platform {

void message_box(std::string_view title, std::string_view text) {
    if (is_unattended()) {
        write_standard_error(message_line(title, text));
        return;
    }
    const UINT standing = title.empty() ? MB_SYSTEMMODAL : MB_APPLMODAL;
    MessageBoxA(front_window(), std::string(text).c_str(), std::string(title).c_str(), MB_OK | standing);
}

} // namespace platform
