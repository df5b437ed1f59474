#include "qlw/clipboard.h"

#include "qlw/desktop.h"
#include "qlw/qlw_trace.h"
#include "qlw/trace_state.h"

namespace {

// What the user is told of a result; null if all is well.
const char* failure_text(platform::clipboard_result result) {
    switch (result) {
    case platform::clipboard_result::no_memory:
        return "Cannot copy text to clipboard - Cannot allocate memory.";
    case platform::clipboard_result::cannot_open:
        return "Cannot copy text to clipboard - Cannot open Windows clipboard - perhaps another application is using "
               "the clipboard.";
    case platform::clipboard_result::cannot_put:
        return "Cannot copy text to clipboard - Cannot put text on clipboard";
    case platform::clipboard_result::done:
        break;
    }
    return nullptr;
}

} // namespace

void copy_to_clipboard(const std::string& text) {
    if (const char* failure = failure_text(trace_state().desktop->set_clipboard_text(text)))
        cl_trace("qlw_std", __LINE__, "copy_to_clipboard", trace_level::user_error, 0).report("%s", failure);
}
