// Remembers the open windows of the process: the system's calls want an owner, and callers do not know of windows.

#include "platform/windows/open_windows.h"

#include <vector>

namespace platform {

namespace {

std::vector<HWND> open_windows; // process-wide, as windows are

} // namespace

HWND main_window() {
    return open_windows.empty() ? nullptr : open_windows.front();
}

HWND front_window() {
    return open_windows.empty() ? nullptr : open_windows.back();
}

void note_open_window(HWND window) {
    open_windows.push_back(window);
}

void note_closed_window() {
    open_windows.pop_back();
}

} // namespace platform
