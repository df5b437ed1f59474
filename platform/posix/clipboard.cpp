// A console has no clipboard.

#include "platform/platform.h"

namespace platform {

clipboard_result set_clipboard_text(const std::string&) {
    return clipboard_result::cannot_open;
}

} // namespace platform
