// Puts text on the clipboard.

#include "platform/platform.h"

#include "platform/windows/open_windows.h"

#include <cstring>

namespace platform {

namespace {

// A movable block that holds the text and a zero; null if there is no memory for it.
HGLOBAL block_with(const std::string& text) {
    const HGLOBAL block = GlobalAlloc(GMEM_MOVEABLE, text.size() + 1);
    void* const bytes = block ? GlobalLock(block) : nullptr;
    if (!bytes) {
        GlobalFree(block);
        return nullptr;
    }
    std::memcpy(bytes, text.c_str(), text.size() + 1);
    GlobalUnlock(block);
    return block;
}

} // namespace

// The system takes nothing from whoever opens the clipboard without a window.
clipboard_result set_clipboard_text(const std::string& text) {
    const HGLOBAL block = block_with(text);
    if (!block)
        return clipboard_result::no_memory;
    if (!OpenClipboard(main_window())) {
        GlobalFree(block);
        return clipboard_result::cannot_open;
    }
    const bool is_put = EmptyClipboard() && SetClipboardData(CF_TEXT, block); // which owns the block from here on
    if (!is_put)
        GlobalFree(block);
    CloseClipboard();
    return is_put ? clipboard_result::done : clipboard_result::cannot_put;
}

} // namespace platform
